#include "ui/Utf8.h"

namespace vexora::ui {

namespace {

constexpr char32_t Replacement = 0xFFFD;

bool IsScalar(char32_t point) {
    return point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF);
}

int TrailingBytes(unsigned char lead) {
    if (lead < 0x80) return 0;
    if (lead >= 0xC2 && lead <= 0xDF) return 1;
    if (lead >= 0xE0 && lead <= 0xEF) return 2;
    if (lead >= 0xF0 && lead <= 0xF4) return 3;
    return -1;
}

// Reads the point that begins at text[at] and moves at behind it, or behind one bad byte.
char32_t NextPoint(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    const int trailing = TrailingBytes(lead);
    if (trailing == 0) return lead;
    if (trailing < 0 || at + static_cast<std::size_t>(trailing) > text.size()) return Replacement;
    char32_t point = lead & (0x3FU >> trailing);
    for (std::size_t i = 0; i < static_cast<std::size_t>(trailing); ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0U) != 0x80U) return Replacement;
        point = (point << 6U) | (next & 0x3FU);
    }
    const bool overlong = (trailing == 2 && point < 0x800) || (trailing == 3 && point < 0x10000);
    if (overlong || !IsScalar(point)) return Replacement;
    at += static_cast<std::size_t>(trailing);
    return point;
}

} // namespace

std::u32string ToPoints(std::string_view text) {
    std::u32string points;
    points.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        points.push_back(NextPoint(text, at));
    return points;
}

std::string FromPoints(std::u32string_view points) {
    std::string text;
    text.reserve(points.size());
    const auto add = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    static constexpr char32_t leads[] = {0, 0xC0, 0xE0, 0xF0}; // by the bytes that trail
    for (char32_t point : points) {
        if (!IsScalar(point)) point = Replacement;
        unsigned trailing = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
        add(leads[trailing] | (point >> (6 * trailing)));
        while (trailing-- > 0)
            add(0x80U | ((point >> (6 * trailing)) & 0x3FU));
    }
    return text;
}

} // namespace vexora::ui
