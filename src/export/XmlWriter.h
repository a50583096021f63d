#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class Record;

/// From this line of the file on, counted from 1, the elements come from a record.
struct XmlMark {
    int line = 0;
    const Record* record = nullptr;
};

/// Writes XML in memory: one element or tag a line, indented by tabs. Texts are escaped here and
/// nowhere else: "&", "<", ">" (and quotes in attributes) as entities, control characters dropped,
/// all that is not plain ASCII as a character reference, so that every file is well formed, pure
/// ASCII, and loses nothing.
/// Made for one document and thrown away. It knows no schema: what stands where is the callers'.
class XmlWriter {
public:
    /// For strict readers some texts and elements are others; the writer only tells who asks.
    explicit XmlWriter(bool isStrict = false) : isStrict_(isStrict) {}
    bool IsStrict() const { return isStrict_; }

    /// The declaration; the first line of a file.
    void Declaration();
    /// A comment; "--" inside is broken up.
    void Comment(std::string_view text);
    /// Opens an element. Attributes come as name, value, name, value, ...
    /// The name must be one (IsXmlName) and is not escaped.
    void Open(std::string_view name, const std::vector<std::string>& attributes = {});
    /// Closes the element opened last.
    /// Something must be open.
    void Close();
    /// A whole element with a text; nothing is left out when the text is empty.
    void Element(std::string_view name, std::string_view text);
    /// The same, but only when the text is not empty.
    void ElementIfAny(std::string_view name, std::string_view text);

    /// 1, 2, ... for elements that bear a number of their own in the document.
    int NextNumber() { return ++number_; }

    /// What follows comes from this record, until the next one; null for none.
    void Mark(const Record* record) { marks_.push_back({lines_ + 1, record}); }
    const std::vector<XmlMark>& Marks() const { return marks_; }

    /// Whole once every element is closed.
    const std::string& Text() const { return text_; }

private:
    void Indent();

    bool isStrict_;
    std::string text_;
    std::vector<std::string> open_;
    int lines_ = 0, number_ = 0;
    std::vector<XmlMark> marks_;
};

} // namespace vexora
