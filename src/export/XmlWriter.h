#pragma once

#include <cstddef>
#include <functional>
#include <map>
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

/// Writes XML: one element or tag a line, indented by tabs. Texts are escaped here and nowhere
/// else:
/// "&", "<", ">" (and quotes in attributes) as entities, control characters dropped, all that is
/// not plain ASCII as a character reference, so that every file is well formed, pure ASCII, and
/// loses nothing.
/// Made for one document and thrown away. It knows no schema: what stands where is the callers'.
class XmlWriter {
public:
    /// Takes what is written, in parts of whole lines.
    using Taker = std::function<void(std::string_view)>;

    /// For strict readers some texts and elements are others; the writer only tells who asks.
    /// Without a taker the text gathers in the writer.
    explicit XmlWriter(bool isStrict = false, Taker taker = {});
    XmlWriter(const XmlWriter&) = delete;
    XmlWriter& operator=(const XmlWriter&) = delete;
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

    /// 1, 2, ... for elements of this name, which bear a number of their own in the document.
    int NextNumber(std::string_view element);

    /// What follows comes from this record, until the next one; null for none.
    void Mark(const Record* record) { marks_.push_back({lines_ + 1, record}); }
    const std::vector<XmlMark>& Marks() const { return marks_; }

    /// Hands over what is left, at the end of the document.
    void Finish();
    /// What was written to a writer without a taker; whole once every element is closed.
    const std::string& Text();

private:
    /// Begins a line of at most so many bytes behind the tabs.
    void BeginLine(std::size_t most);
    void Put(char c) { part_[used_++] = c; }
    void Put(std::string_view text) { used_ += text.copy(part_.data() + used_, text.size()); }
    void PutText(std::string_view text, bool ofAttribute = false);

    bool isStrict_;
    Taker taker_;
    std::string text_; // without a taker
    std::string part_; // in hand, with room behind what is used of it
    std::size_t used_ = 0;
    std::string names_;              // of the open elements, one behind the other
    std::vector<std::size_t> begin_; // where each of them begins
    int lines_ = 0;
    std::map<std::string, int, std::less<>> numbers_; // given out, by element
    std::vector<XmlMark> marks_;
};

} // namespace vexora
