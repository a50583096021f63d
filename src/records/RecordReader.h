#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// What came of reading a record file.
struct ReadResult {
    bool whole = false;   // false: the read was abandoned and the document is empty
    int linesNotKept = 0; // lines of kinds of data that this edition reads over
    std::string fault;    // the message that was shown when the read was abandoned
    int faultLine = 0;    // line of the file, from 1
};

/// Work adds sources that the reference database lacks to it; Look leaves it as it is.
enum class ReadPurpose { Work, Look };

/// Reads the text of a record file into the globals: sources join recR, their nodes the tree. The
/// text may be UTF-8 or, line by line, Windows-1252, with any line ends. A bad record is told and
/// the whole read is dropped: the document is empty then, never half loaded. Lines with a tag that
/// no edition knows are passed over.
ReadResult ReadRecords(std::string_view text, ReadPurpose purpose = ReadPurpose::Work);

/// The document as a record file. It may ask for the source of the document (see clsR::PrintR).
/// Throws SaveRefused (LineWriter.h), whose text is for the user, for a record that cannot be
/// written truly.
std::string PrintDocument();

/// Rewrites the text of every node from its record.
void RefreshLabels();

} // namespace vexora
