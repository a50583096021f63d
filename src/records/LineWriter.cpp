#include "records/LineWriter.h"

#include "reference/Text.h"

#include <cstring>

namespace vexora {

namespace {

/// Parts large enough that handing them on costs nothing beside making them.
constexpr std::size_t PartSize = std::size_t{1} << 20U;

bool HasLineEnd(std::string_view line) {
    return !line.empty() && (std::memchr(line.data(), '\n', line.size()) != nullptr ||
                             std::memchr(line.data(), '\r', line.size()) != nullptr);
}

/// One word: "&" for nothing, "_" for each blank inside.
void AddWord(std::string& text, std::string_view field) {
    field = Trim(field);
    if (field.empty()) field = "&";
    const std::size_t begin = text.size();
    text += field;
    for (std::size_t at = begin; at < text.size(); ++at) {
        char& c = text[at];
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') c = '_';
    }
}

} // namespace

void LineWriter::Line(std::string_view line) {
    const std::size_t begin = text_.size();
    text_ += line;
    if (HasLineEnd(std::string_view(text_).substr(begin)))
        text_.replace(begin, text_.npos, SingleLine(line));
    End();
}

void LineWriter::Field(std::string_view field) {
    if (text_.size() > lineBegin_) text_ += ' ';
    AddWord(text_, field);
}

void LineWriter::End() {
    text_ += '\n';
    lineBegin_ = text_.size();
    if (taker_ && text_.size() >= PartSize) Flush();
}

void LineWriter::Flush() {
    if (!taker_) return;
    if (!text_.empty()) taker_(text_);
    text_.clear();
    lineBegin_ = 0;
}

void LineWriter::Fields(const std::vector<std::string>& fields) {
    for (const std::string& field : fields)
        Field(field);
    End();
}

void LineWriter::Fields(const std::vector<std::string>& fields, std::string_view rest) {
    for (const std::string& field : fields)
        Field(field);
    text_ += ' ';
    Line(OrPlaceholder(Trim(rest)));
}

void LineWriter::Blank() {
    End();
}

void AppendField(std::string& line, std::string_view field) {
    if (!line.empty()) line += ' ';
    AddWord(line, field);
}

std::string OrPlaceholder(std::string_view field) {
    return field.empty() ? "&" : std::string(field);
}

std::string WithoutPlaceholder(std::string_view field) {
    return field == "&" ? std::string() : std::string(field);
}

std::string BlanksToUnderscores(std::string_view field) {
    return Replace(field, " ", "_");
}

std::string UnderscoresToBlanks(std::string_view field) {
    return Replace(field, "_", " ");
}

} // namespace vexora
