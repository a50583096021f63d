#include "export/XmlWriter.h"

#include "reference/Text.h"

#include <algorithm>

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
bool IsPlain(char c) {
    return c >= ' ' && c < 0x7F && c != '&' && c != '<' && c != '>' && c != '"';
}

void AppendText(std::string& out, std::string_view text, bool attribute = false) {
    // Nearly all texts are numbers and words of the schema.
    if (std::ranges::all_of(text, IsPlain)) {
        out += text;
        return;
    }
    for (std::size_t at = 0; at < text.size();) {
        char32_t point = NextCodePoint(text, at);
        // One element a line: a line break in a field becomes a blank.
        if (point == U'\t' || point == U'\n' || point == U'\r') point = U' ';
        if (IsXmlText(point)) AppendEscaped(out, point, attribute);
    }
}

} // namespace

void XmlWriter::Declaration() {
    Indent();
    text_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
}

void XmlWriter::Comment(std::string_view text) {
    std::string inside;
    AppendText(inside, text);
    // XML forbids "--" within a comment; of "---" the first replacement leaves one more.
    while (inside.find("--") != std::string::npos)
        inside = Replace(inside, "--", "- -");
    Indent();
    text_ += "<!-- " + inside + " -->\n";
}

void XmlWriter::Indent() {
    ++lines_; // each line begins here
    text_.append(open_.size(), '\t');
}

void XmlWriter::Open(std::string_view name, const std::vector<std::string>& attributes) {
    Indent();
    text_.append("<").append(name);
    for (std::size_t i = 0; i + 1 < attributes.size(); i += 2) {
        text_ += " " + attributes[i] + "=\"";
        AppendText(text_, attributes[i + 1], true);
        text_ += '"';
    }
    text_ += ">\n";
    open_.emplace_back(name);
}

void XmlWriter::Close() {
    const std::string name = open_.back();
    open_.pop_back();
    Indent();
    text_ += "</" + name + ">\n";
}

void XmlWriter::Element(std::string_view name, std::string_view text) {
    Indent();
    text_.append("<").append(name).append(">");
    AppendText(text_, text);
    text_.append("</").append(name).append(">\n");
}

void XmlWriter::ElementIfAny(std::string_view name, std::string_view text) {
    if (!text.empty()) Element(name, text);
}

} // namespace vexora
