#include "reference/TableText.h"

#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace vexora {

std::string LineRemark::Line(std::string_view severity) const {
    return file + ":" + std::to_string(line) + ": " + std::string(severity) + ": " + text;
}

namespace {

constexpr char16_t ByteOrderMark = 0xFEFF;

/// UTF-16 by its mark, or by the zeros that its letters bring; nothing for another text.
std::optional<bool> IsBigEndian(std::string_view bytes) {
    if (bytes.starts_with("\xFE\xFF")) return true;
    if (bytes.starts_with("\xFF\xFE")) return false;
    if (bytes.size() < 2 || (bytes[0] == 0) == (bytes[1] == 0)) return std::nullopt;
    return bytes[0] == 0;
}

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
    std::string text;
    const auto unit = [&](std::size_t at) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return static_cast<char32_t>(bigEndian ? first << 8 | second : second << 8 | first);
    };
    const auto isHalf = [](char32_t c, char32_t from) { return c >= from && c < from + 0x400; };
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        char32_t c = unit(at);
        if (c == ByteOrderMark) continue;
        // Beyond the first plane a character is two units, a high and a low half.
        if (isHalf(c, 0xD800) && at + 3 < bytes.size() && isHalf(unit(at + 2), 0xDC00)) {
            c = 0x10000 + ((c - 0xD800) << 10) + (unit(at + 2) - 0xDC00);
            at += 2;
        }
        AppendCodePoint(text, c);
    }
    return text;
}

/// What stands between the cells of a line: the sign of which it has most outside quotes.
char SeparatorOf(std::string_view line) {
    constexpr std::string_view signs = "\t;,"; // of equally many the first
    std::array<std::size_t, signs.size()> counts{};
    bool inside = false;
    for (const char c : line) {
        if (c == '"') inside = !inside;
        if (const auto at = signs.find(c); at != signs.npos && !inside) ++counts[at];
    }
    return signs[static_cast<std::size_t>(std::ranges::max_element(counts) - counts.begin())];
}

} // namespace

TableReader::TableReader(const std::string& path, Kind kind)
    : quoted_(EqualNoCase(std::filesystem::path(path).extension().string(), ".csv")) {
    // Opening a pipe would wait for its other end for ever.
    std::error_code unknown;
    if (!std::filesystem::is_regular_file(path, unknown)) return;
    std::ifstream file(path, std::ios::binary);
    if (!file) return;
    text_.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    isOpen_ = !file.bad();
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (kind == Kind::Foreign) TakeForeign();
    if (text_.starts_with(byteOrderMark)) at_ = byteOrderMark.size();
}

void TableReader::TakeForeign() {
    if (const auto bigEndian = IsBigEndian(text_)) text_ = FromUtf16(text_, *bigEndian);
    if (text_.starts_with("PK\x03\x04"))
        fault_ = "this is a spreadsheet or an archive; save it as text first";
    else if (text_.find('\0') != text_.npos)
        fault_ = "this is no text";
    isOpen_ = isOpen_ && fault_.empty();
    std::string_view first = std::string_view(text_).substr(0, text_.find_first_of("\r\n"));
    separator_ = SeparatorOf(first);
    quoted_ = true;
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
        else if (c == separator_ && !inside)
            cells.emplace_back();
        else
            cells.back() += c;
    }
}

} // namespace vexora
