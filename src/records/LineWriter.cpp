#include "records/LineWriter.h"

#include "reference/Text.h"

namespace vexora {

void LineWriter::Line(std::string_view line) {
    text_ += line.find_first_of("\r\n") == line.npos ? std::string(line) : SingleLine(line);
    text_ += '\n';
}

void LineWriter::Fields(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields)
        AppendField(line, field);
    Line(line);
}

void LineWriter::Fields(const std::vector<std::string>& fields, std::string_view rest) {
    Fields(fields);
    // The line that has just ended goes on.
    text_.back() = ' ';
    Line(OrPlaceholder(Trim(rest)));
}

void LineWriter::Blank() {
    text_ += '\n';
}

void AppendField(std::string& line, std::string_view field) {
    if (!line.empty()) line += ' ';
    field = Trim(field);
    if (field.empty()) field = "&";
    for (const char c : field)
        line += c == ' ' || c == '\t' || c == '\r' || c == '\n' ? '_' : c;
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
