// The document from and to its texts, with what there is to say and to ask on the way: records and
// export show no boxes of their own while a document is read or printed.
#pragma once

#include <string>
#include <string_view>

#include "records/RecordReader.h"
#include "ui/Desktop.h"

namespace vexora {

/// Reads the text of a record file (see ReadRecords); what comes up is said and asked at once.
ReadResult ReadDocument(std::string_view text, ReadPurpose purpose = ReadPurpose::Work);

/// What is to be said of a document that has been read, in one message: lines that it does not
/// hold, and that it is open for reading only for that. An empty text for one that holds all of
/// them.
Notice NoticeOfReading(const ReadResult& result);

/// The document as a record file (see PrintDocument). A source that does not say where it was taken
/// from is asked about first. Throws SaveRefused.
std::string DocumentAsRecords();

/// The document as ThermoML, after the same question.
std::string DocumentAsXml(const ui::Date& today);

} // namespace vexora
