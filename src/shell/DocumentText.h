// The document from and to its texts, with what there is to say and to ask on the way: records and
// export show no boxes of their own while a document is read or printed.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "export/ExportDocument.h"
#include "records/RecordReader.h"
#include "ui/Desktop.h"

namespace vexora {

/// Reads the text of a record file (see ReadRecords); what comes up is said and asked at once. It
/// may be stopped, and the file that a person sees being read has this name.
ReadResult ReadDocument(std::string_view text, ReadPurpose purpose = ReadPurpose::Work,
                        const std::string& name = {});

/// What is to be said of a document that has been read, in one message: lines that it does not
/// hold, and that it is open for reading only for that. An empty text for one that holds all of
/// them.
Notice NoticeOfReading(const ReadResult& result);

/// The document as a record file (see PrintDocument). A source that does not say where it was taken
/// from is asked about first. Throws SaveRefused, and WorkStopped when the person has stopped it.
std::string DocumentAsRecords();
/// The same in parts. A refusal may come when parts have been handed on.
void DocumentAsRecords(const std::function<void(std::string_view)>& taker);

/// The document as ThermoML with what its closing check found, after the same question.
ExportedDocument DocumentForExport(const ui::Date& today, ExportFor readers = ExportFor::House);
/// The same in parts (see ExportDocument); what the closing check found.
std::vector<ExportFinding> DocumentForExport(const ui::Date& today, ExportFor readers,
                                             const std::function<void(std::string_view)>& taker);
/// The document as ThermoML, after the same question. What its closing check finds is told at once,
/// all in one message, each with its node. Throws WorkStopped when the person has stopped it.
std::string DocumentAsXml(const ui::Date& today, ExportFor readers = ExportFor::House);

} // namespace vexora
