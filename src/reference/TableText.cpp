#include "reference/TableText.h"

#include "reference/Text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace vexora {

std::string LineRemark::Line(std::string_view severity) const {
    return file + ":" + std::to_string(line) + ": " + std::string(severity) + ": " + text;
}

TableReader::TableReader(const std::string& path)
    : quoted_(EqualNoCase(std::filesystem::path(path).extension().string(), ".csv")) {
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path)) return;
    text_.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    isOpen_ = !file.bad();
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text_.starts_with(byteOrderMark)) at_ = byteOrderMark.size();
}

bool TableReader::NextLine(std::string_view& line) {
    if (at_ >= text_.size()) return false;
    const std::size_t end = std::min(text_.find_first_of("\r\n", at_), text_.size());
    line = std::string_view(text_).substr(at_, end - at_);
    at_ = end + (text_.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    ++line_;
    return true;
}

std::optional<std::vector<std::string>> TableReader::NextRow() {
    std::string_view line;
    // Editors leave an empty line at the end.
    do {
        if (!NextLine(line)) return std::nullopt;
    } while (line.empty());
    rowLine_ = line_;
    std::vector<std::string> cells = quoted_ ? QuotedCells(line) : Split(line, '\t');
    for (std::string& cell : cells)
        // By cell: one stray name must not spoil a file that is UTF-8 elsewhere.
        if (!IsValidUtf8(cell)) cell = FromWindows1252(cell);
    return cells;
}

/// Cells in double quotes may hold commas, doubled quotes and line ends.
std::vector<std::string> TableReader::QuotedCells(std::string_view line) {
    std::vector<std::string> cells(1);
    bool inside = false;
    for (std::size_t i = 0;; ++i) {
        if (i >= line.size()) {
            // A cell in quotes goes on in the next line; at the end of the text an open quote is
            // forgiven.
            if (!inside || !NextLine(line)) return cells;
            cells.back() += '\n';
            i = static_cast<std::size_t>(-1);
            continue;
        }
        const char c = line[i];
        if (c == '"' && inside && i + 1 < line.size() && line[i + 1] == '"')
            cells.back() += line[i++];
        else if (c == '"' && (inside || cells.back().empty()))
            inside = !inside;
        else if (c == ',' && !inside)
            cells.emplace_back();
        else
            cells.back() += c;
    }
}

} // namespace vexora
