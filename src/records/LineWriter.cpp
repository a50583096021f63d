#include "records/LineWriter.h"

#include "reference/Text.h"

#include <algorithm>

namespace vexora {

void LineWriter::Line(std::string_view line) {
    text_ += line.find_first_of("\r\n") == line.npos ? std::string(line) : SingleLine(line);
    text_ += '\n';
}

void LineWriter::Fields(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields) {
        if (!line.empty()) line += ' ';
        std::string word = OrPlaceholder(Trim(field));
        // A blank inside would shift all words behind it.
        std::replace_if(
            word.begin(), word.end(),
            [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }, '_');
        line += word;
    }
    Line(line);
}

void LineWriter::Fields(const std::vector<std::string>& fields, std::string_view rest) {
    Fields(fields);
    text_.back() = ' ';
    Line(OrPlaceholder(Trim(rest)));
}

void LineWriter::Blank() {
    text_ += '\n';
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
