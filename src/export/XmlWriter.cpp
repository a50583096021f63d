#include "export/XmlWriter.h"

#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vexora {

namespace {

void AppendEscaped(std::string& out, char32_t point, bool attribute) {
    if (point == U'&')
        out += "&amp;";
    else if (point == U'<')
        out += "&lt;";
    else if (point == U'>')
        out += "&gt;";
    else if (point == U'"' && attribute)
        out += "&quot;";
    else if (point > 126)
        out += "&#" + std::to_string(static_cast<unsigned long>(point)) + ";";
    else if (point >= U' ')
        out += static_cast<char>(point);
}

// DEL, the C1 controls and the two non-characters at the end of the plane are no XML text.
bool IsXmlText(char32_t point) {
    return (point >= U' ' && point < 0x7F) || (point > 0x9F && point != 0xFFFE && point != 0xFFFF);
}

/// Stands in a file as it is, in a text and in an attribute.
constexpr std::array<bool, 256> PlainCharacters = [] {
    std::array<bool, 256> plain{};
    for (std::size_t c = ' '; c < 0x7F; ++c)
        plain[c] = c != '&' && c != '<' && c != '>' && c != '"';
    return plain;
}();

bool IsPlain(std::string_view text) {
    for (const char c : text)
        if (!PlainCharacters[static_cast<unsigned char>(c)]) return false;
    return true;
}

std::string Escaped(std::string_view text, bool attribute) {
    std::string out;
    for (std::size_t at = 0; at < text.size();) {
        char32_t point = NextCodePoint(text, at);
        // One element a line: a line break in a field becomes a blank.
        if (point == U'\t' || point == U'\n' || point == U'\r') point = U' ';
        if (IsXmlText(point)) AppendEscaped(out, point, attribute);
    }
    return out;
}

// No character takes more: "&#65535;" stands for one of three bytes, "&quot;" for one of a byte.
constexpr std::size_t MostOfByte = 6;
// What is handed over at once: it fits into the caches that writer and reader share.
constexpr std::size_t PartSize = 256 * 1024;

} // namespace

XmlWriter::XmlWriter(bool isStrict, Taker taker) : isStrict_(isStrict), taker_(std::move(taker)) {
    if (!taker_) taker_ = [this](std::string_view part) { text_ += part; };
}

int XmlWriter::NextNumber(std::string_view element) {
    auto found = numbers_.find(element);
    if (found == numbers_.end()) found = numbers_.emplace(element, 0).first;
    return ++found->second;
}

void XmlWriter::Finish() {
    if (used_ > 0) taker_({part_.data(), used_});
    used_ = 0;
}

const std::string& XmlWriter::Text() {
    Finish();
    return text_;
}

void XmlWriter::BeginLine(std::size_t most) {
    ++lines_; // each line begins here
    const std::size_t needed = begin_.size() + most;
    if (used_ + needed > part_.size()) {
        if (used_ + needed > PartSize) Finish();
        part_.resize(std::max(PartSize, needed));
    }
    std::fill_n(part_.data() + used_, begin_.size(), '\t');
    used_ += begin_.size();
}

void XmlWriter::PutText(std::string_view text, bool ofAttribute) {
    // Nearly all texts are numbers and words of the schema.
    if (IsPlain(text))
        Put(text);
    else
        Put(Escaped(text, ofAttribute));
}

void XmlWriter::Declaration() {
    constexpr std::string_view declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    BeginLine(declaration.size());
    Put(declaration);
}

void XmlWriter::Comment(std::string_view text) {
    std::string inside = Escaped(text, false);
    // XML forbids "--" within a comment; of "---" the first replacement leaves one more.
    while (inside.find("--") != std::string::npos)
        inside = Replace(inside, "--", "- -");
    const std::string comment = "<!-- " + inside + " -->\n";
    BeginLine(comment.size());
    Put(comment);
}

void XmlWriter::Open(std::string_view name, const std::vector<std::string>& attributes) {
    constexpr std::size_t signs = 4; // of a tag or an attribute
    std::size_t most = name.size() + signs;
    for (const std::string& part : attributes)
        most += part.size() * MostOfByte + signs;
    BeginLine(most);
    Put('<');
    Put(name);
    for (std::size_t i = 0; i + 1 < attributes.size(); i += 2) {
        Put(' ');
        Put(attributes[i]);
        Put("=\"");
        PutText(attributes[i + 1], true);
        Put('"');
    }
    Put(">\n");
    begin_.push_back(names_.size());
    names_ += name;
}

void XmlWriter::Close() {
    constexpr std::size_t signs = 4;
    const std::size_t begin = begin_.back();
    begin_.pop_back();
    BeginLine(names_.size() - begin + signs);
    Put("</");
    Put(std::string_view(names_).substr(begin));
    Put(">\n");
    names_.resize(begin);
}

void XmlWriter::Element(std::string_view name, std::string_view text) {
    constexpr std::size_t signs = 6;
    BeginLine(2 * name.size() + text.size() * MostOfByte + signs);
    Put('<');
    Put(name);
    Put('>');
    PutText(text);
    Put("</");
    Put(name);
    Put(">\n");
}

void XmlWriter::ElementIfAny(std::string_view name, std::string_view text) {
    if (!text.empty()) Element(name, text);
}

} // namespace vexora
