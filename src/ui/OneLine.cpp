#include "ui/OneLine.h"

#include <algorithm>

#include "ui/Utf8.h"

namespace vexora::ui {

namespace {

// Line feed, vertical tab, form feed, carriage return, next line, line and paragraph separator.
constexpr std::u32string_view Breaks = U"\t\n\v\f\r\u0085\u2028\u2029";
constexpr std::u32string_view White = U" \t\n\v\f\r\u0085\u2028\u2029";

} // namespace

std::u32string OneLine(std::u32string_view piece) {
    if (piece.find_first_of(Breaks) == piece.npos) return std::u32string(piece);
    std::u32string line;
    for (std::size_t at = piece.find_first_not_of(White); at < piece.size();) {
        const std::size_t end = std::min(piece.find_first_of(White, at), piece.size());
        const std::size_t next = std::min(piece.find_first_not_of(White, end), piece.size());
        line.append(piece.substr(at, end - at));
        const std::u32string_view gap = piece.substr(end, next - end);
        if (next < piece.size())
            line.append(gap.find_first_of(Breaks) == gap.npos ? gap : std::u32string_view(U" "));
        at = next;
    }
    return line;
}

std::string OneLine(std::string_view piece) {
    return FromPoints(OneLine(ToPoints(piece)));
}

} // namespace vexora::ui
