#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace vexora {

namespace {

constexpr bool IsWhite(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Record lines and numbers are short; a loop is done before a search in a list of characters has
// begun.
template <class Unwanted>
std::string_view Strip(std::string_view text, Unwanted isUnwanted) {
    while (!text.empty() && isUnwanted(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isUnwanted(text.back()))
        text.remove_suffix(1);
    return text;
}

char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

std::string_view WordReader::NextWord() {
    rest_ = Strip(rest_, IsWhite);
    const auto end = static_cast<std::size_t>(std::ranges::find_if(rest_, IsWhite) - rest_.begin());
    const std::string_view word = rest_.substr(0, end);
    // One separator goes: blanks behind it may belong to a text that is the rest of the line.
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return word;
}

bool WordReader::AtEnd() const {
    return Strip(rest_, IsWhite).empty();
}

std::string NextHashField(std::string& text) {
    if (text.empty()) return {};
    const std::size_t start = text[0] == '#' && text.size() > 1 ? 1 : 0;
    if (start + 1 == text.size() && text[start] == '#') {
        text.clear();
        return {};
    }
    const std::size_t end = std::min(text.find('#', start), text.size());
    std::string field = text.substr(start, end - start);
    text.erase(0, end);
    return field;
}

std::string_view TrimBlanks(std::string_view text) {
    return Strip(text, [](char c) { return c == ' '; });
}
std::string_view Trim(std::string_view text) {
    return Strip(text, IsWhite);
}

std::string UpperAscii(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), Upper);
    return result;
}

std::string LowerAscii(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), Lower);
    return result;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return Lower(x) == Lower(y); });
}

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> texts) {
    return std::ranges::find(texts, text) != texts.end();
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string result;
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos;
         at = text.find(what, from)) {
        // What was put in is not searched again, so that a text may be replaced by one that holds
        // it.
        result.append(text.substr(from, at - from)).append(with);
        from = at + what.size();
    }
    return result.append(text.substr(from));
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator, from)) {
        parts.emplace_back(text.substr(from, at - from));
        from = at + 1;
    }
    parts.emplace_back(text.substr(from));
    return parts;
}

std::size_t CodePointCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size(); ++count)
        if (static_cast<unsigned char>(text[offset]) < 0x80)
            ++offset;
        else
            NextCodePoint(text, offset);
    return count;
}

std::size_t ByteOffset(std::string_view text, std::size_t position) {
    std::size_t offset = 0;
    for (std::size_t i = 1; i < position && offset < text.size(); ++i)
        NextCodePoint(text, offset);
    return offset;
}

std::size_t Find(std::string_view text, std::string_view what, std::size_t from) {
    if (what.empty()) return 0;
    const std::size_t at = text.find(what, ByteOffset(text, from));
    return at == std::string_view::npos ? 0 : CodePointCount(text.substr(0, at)) + 1;
}

std::string Substring(std::string_view text, std::size_t from, std::size_t count) {
    if (from == 0) return {};
    text.remove_prefix(ByteOffset(text, from));
    if (count >= text.size()) return std::string(text);
    return std::string(text.substr(0, ByteOffset(text, count + 1)));
}

std::string SingleLine(std::string_view text) {
    std::string result = Replace(text, "\r\n", "\n");
    std::ranges::replace(result, '\r', ' ');
    std::ranges::replace(result, '\n', ' ');
    return result;
}

bool IsXmlName(std::string_view text) {
    const auto letter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
    };
    const auto follows = [&](char c) {
        return letter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
    };
    return !text.empty() && letter(text.front()) && std::ranges::all_of(text, follows);
}

bool IsBlankField(std::string_view field) {
    return field.empty() || field == "&";
}

char32_t NextCodePoint(std::string_view text, std::size_t& offset) {
    const auto lead = static_cast<unsigned char>(text[offset]);
    // C0, C1 and F5 to FF begin no character (RFC 3629).
    const std::size_t length = lead >= 0xC2 && lead < 0xE0   ? 2
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xF0 && lead < 0xF5 ? 4
                                                             : 1;
    ++offset;
    if (length == 1 || offset + length - 1 > text.size()) return lead;
    // Overlong forms would give one character several spellings.
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    char32_t value = lead & (0x7FU >> length);
    for (std::size_t i = 0; i + 1 < length; ++i) {
        if (!IsContinuation(text[offset + i])) return lead;
        value = (value << 6U) | (static_cast<unsigned char>(text[offset + i]) & 0x3FU);
    }
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < smallest[length] || value > 0x10FFFF || surrogate) return lead;
    offset += length - 1;
    return value;
}

void AppendCodePoint(std::string& text, char32_t codePoint) {
    const auto tail = [&](unsigned shift) {
        text += static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
    };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0U | (codePoint >> 6U));
        tail(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0U | (codePoint >> 12U));
        tail(6), tail(0);
    } else {
        text += static_cast<char>(0xF0U | (codePoint >> 18U));
        tail(12), tail(6), tail(0);
    }
}

bool IsValidUtf8(std::string_view text) {
    constexpr std::size_t block = sizeof(std::uint64_t);
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    for (std::size_t offset = 0; offset < text.size();) {
        // Texts are ASCII nearly everywhere: eight of it at a time.
        if (std::uint64_t eight = 0; offset + block <= text.size()) {
            std::memcpy(&eight, text.data() + offset, block);
            if ((eight & highBits) == 0) {
                offset += block;
                continue;
            }
        }
        if (static_cast<unsigned char>(text[offset]) < 0x80) {
            ++offset;
            continue;
        }
        const std::size_t start = offset;
        NextCodePoint(text, offset);
        if (offset == start + 1) return false;
    }
    return true;
}

std::string FromWindows1252(std::string_view bytes) {
    // The code page differs from Latin-1 in 128 to 159 only (Unicode mapping table CP1252).
    static constexpr std::array<char16_t, 32> high{
        0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};
    std::string result;
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        AppendCodePoint(result, code >= 128 && code < 160 ? char32_t{high[code - 128U]} : code);
    }
    return result;
}

std::string ToUtf8(std::string_view bytes) {
    return IsValidUtf8(bytes) ? std::string(bytes) : FromWindows1252(bytes);
}

} // namespace vexora
