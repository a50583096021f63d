#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class Record;
struct XmlMark;

/// What a reader of a written file could not make sense of.
struct ExportFinding {
    std::string text;
    const Record* record = nullptr; // that the element came from; null for the frame of the file
    bool isError = true;            // false where the file is right, but not for every reader
};

/// Reads a written file as a stranger would, who has nothing else: is it well formed, does every
/// number that is referred to stand for something, and for one thing only, do numbers parse and
/// stand for the value of the record in the system unit, does no count of digits exceed the digits
/// of its text, is no element empty.
/// The file may come in parts while it is written, cut between lines; each record must stand until
/// the file has gone past it as it stood when it was written.
class ClosingCheck {
public:
    /// marks say which record an element came from, by lines; they stand before the lines come.
    explicit ClosingCheck(const std::vector<XmlMark>& marks);
    ~ClosingCheck();

    void Read(std::string_view part);
    /// What was found, to be asked at the end of the file.
    std::vector<ExportFinding> Finish();

private:
    class Stranger;
    std::unique_ptr<Stranger> stranger_;
};

/// The same of a whole file.
std::vector<ExportFinding> CheckExport(std::string_view xml, const std::vector<XmlMark>& marks);

} // namespace vexora
