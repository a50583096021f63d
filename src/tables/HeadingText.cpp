#include "tables/HeadingText.h"

#include <algorithm>
#include <iterator>

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

struct PlainSign {
    char32_t sign;
    std::string_view plain;
};

// Sorted by code point.
constexpr PlainSign Signs[] = {
    {0x22, "''"},       {0x60, "'"},         {0xA0, " "},         {0xAD, ""},
    {0xAF, "^-"},       {0xB0, "\u00b0"},    {0xB2, "^2"},        {0xB3, "^3"},
    {0xB4, "'"},        {0xB5, "u"},         {0xB7, "*"},         {0xB9, "^1"},
    {0xBA, "\u00b0"},   {0xD7, "*"},         {0x2B9, "'"},        {0x2BA, "''"},
    {0x2BC, "'"},       {0x2C8, "'"},        {0x2D9, "*"},        {0x2DA, "\u00b0"},
    {0x387, "*"},       {0x3BC, "u"},        {0x3D1, "\u03b8"},   {0x1D52, "\u00b0"},
    {0x2010, "-"},      {0x2011, "-"},       {0x2012, "-"},       {0x2013, "-"},
    {0x2014, "-"},      {0x2015, "-"},       {0x2018, "'"},       {0x2019, "'"},
    {0x201B, "'"},      {0x201C, "''"},      {0x201D, "''"},      {0x2022, "*"},
    {0x2024, "*"},      {0x2027, "*"},       {0x2032, "'"},       {0x2033, "''"},
    {0x2034, "'''"},    {0x2035, "'"},       {0x2044, "/"},       {0x2070, "^0"},
    {0x207A, "^+"},     {0x207B, "^-"},      {0x207D, "("},       {0x207E, ")"},
    {0x208B, "-"},      {0x208D, "("},       {0x208E, ")"},       {0x2095, "h"},
    {0x2097, "l"},      {0x2098, "m"},       {0x209A, "p"},       {0x209B, "s"},
    {0x209C, "t"},      {0x2103, "\u00b0C"}, {0x2109, "\u00b0F"}, {0x210E, "h"},
    {0x2113, "l"},      {0x2160, "I"},       {0x2161, "II"},      {0x2162, "III"},
    {0x2212, "-"},      {0x2215, "/"},       {0x2218, "\u00b0"},  {0x2219, "*"},
    {0x2236, "/"},      {0x2296, "\u00b0"},  {0x22C5, "*"},       {0x25CB, "\u00b0"},
    {0x29B5, "\u00b0"}, {0x30FB, "*"},       {0xFE63, "-"},       {0xFF05, "%"},
    {0xFF08, "("},      {0xFF09, ")"},       {0xFF0D, "-"},       {0xFF0F, "/"},
};

static_assert(std::ranges::is_sorted(Signs, {}, &PlainSign::sign));

bool IsBlankSign(char32_t c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || (c >= 0x2000 && c <= 0x200A) ||
           c == 0x202F || c == 0x205F || c == 0x3000;
}

bool IsInvisible(char32_t c) {
    return (c >= 0x200B && c <= 0x200D) || c == 0x2060 || c == 0xFEFF;
}

/// A letter of the mathematical alphabets that are laid out as A to Z, a to z, again and again.
char MathLetter(char32_t c) {
    constexpr char32_t First = 0x1D400, Behind = 0x1D6A4;
    if (c < First || c >= Behind) return '\0';
    const auto at = static_cast<int>((c - First) % 52);
    return static_cast<char>(at < 26 ? 'A' + at : 'a' + at - 26);
}

/// 0 for no small Greek letter of those alphabets.
char32_t GreekLetter(char32_t c) {
    for (const char32_t alpha : {0x1D6C2, 0x1D6FC, 0x1D736})
        if (c >= alpha && c < alpha + 25) return 0x3B1 + (c - alpha);
    return 0;
}

void AppendPlain(std::string& plain, char32_t c) {
    if (IsInvisible(c)) return;
    if (IsBlankSign(c)) {
        plain += ' ';
    } else if (c >= 0x2074 && c <= 0x2079) { // raised digits
        plain += '^';
        plain += static_cast<char>('4' + (c - 0x2074));
    } else if (c >= 0x2080 && c <= 0x2089) { // lowered digits
        plain += static_cast<char>('0' + (c - 0x2080));
    } else if (const char letter = MathLetter(c)) {
        plain += letter;
    } else if (const char32_t greek = GreekLetter(c)) {
        AppendCodePoint(plain, greek);
    } else {
        const auto* sign = std::ranges::lower_bound(Signs, c, {}, &PlainSign::sign);
        if (sign != std::end(Signs) && sign->sign == c)
            plain += sign->plain;
        else
            AppendCodePoint(plain, c);
    }
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Raised figures of several characters get one "^" ("^-^1" is "^-1"), runs of blanks one blank.
std::string Joined(const std::string& text) {
    std::string joined;
    bool isRaised = false;
    for (const char c : text) {
        if (c == ' ' && (joined.empty() || joined.back() == ' ')) continue;
        if (c == '^' && isRaised) continue;
        isRaised = c == '^' || (isRaised && (IsDigit(c) || c == '-' || c == '+'));
        joined += c;
    }
    return std::string(TrimBlanks(joined));
}

/// "x_{1}" is "x_1": braces behind a sign of lowering or raising only hold together.
std::string WithoutGroups(std::string text) {
    for (std::size_t at = 0; (at = text.find_first_of("_^", at)) != text.npos; ++at) {
        const std::size_t end = text.find('}', at);
        if (end == text.npos || text[at + 1] != '{') continue;
        text.erase(end, 1);
        text.erase(at + 1, 1);
    }
    return text;
}

} // namespace

std::string PlainHeading(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size();)
        AppendPlain(plain, NextCodePoint(text, at));
    plain = Joined(plain);
    // As typesetting programs mark what they lower and raise.
    for (const std::string_view mark : {"$", "<sub>", "</sub>", "</sup>", "<i>", "</i>"})
        plain = Replace(plain, mark, "");
    return WithoutGroups(Replace(Replace(plain, "<sup>", "^"), "\\", ""));
}

namespace {

std::size_t EndOfToken(std::string_view plain, std::size_t at, HeadingToken::Kind& kind) {
    const auto run = [&plain](std::size_t from, auto&& belongs) {
        while (from < plain.size() && belongs(plain[from]))
            ++from;
        return from;
    };
    if (IsLetter(plain[at])) {
        kind = HeadingToken::Kind::Word;
        return run(at, IsLetter);
    }
    if (IsDigit(plain[at])) {
        kind = HeadingToken::Kind::Number;
        std::size_t end = run(at, IsDigit);
        if (end + 1 < plain.size() && plain[end] == '.' && IsDigit(plain[end + 1]))
            end = run(end + 1, IsDigit);
        return end;
    }
    kind = HeadingToken::Kind::Sign;
    if (plain[at] == '\'') return run(at, [](char c) { return c == '\''; });
    NextCodePoint(plain, at);
    return at;
}

} // namespace

std::vector<HeadingToken> HeadingTokens(std::string_view plain) {
    std::vector<HeadingToken> tokens;
    for (std::size_t at = 0; at < plain.size();) {
        if (plain[at] == ' ') {
            ++at;
            continue;
        }
        HeadingToken token;
        token.begin = at;
        token.end = at = EndOfToken(plain, at, token.kind);
        token.text = plain.substr(token.begin, token.end - token.begin);
        tokens.push_back(token);
    }
    return tokens;
}

namespace {

bool IsWordSign(char c) {
    return IsLetter(c) || c == '/' || static_cast<unsigned char>(c) >= 0x80;
}

/// What may stand behind a number: nothing, a letter or sign of a footnote, an uncertainty.
bool IsFootnote(std::string_view rest) {
    rest = TrimBlanks(rest);
    if (rest.starts_with('^')) rest.remove_prefix(1);
    if (rest.empty() || rest.starts_with("\u00b1") || rest.starts_with("+/-")) return true;
    if (rest.size() <= 2 && std::ranges::all_of(rest, IsLetter))
        return rest.find_first_of("wxyzWXYZ") == rest.npos;
    return CodePointCount(rest) == 1 || std::ranges::none_of(rest, IsWordSign);
}

} // namespace

bool IsValueCell(std::string_view cell) {
    const std::string plain = PlainHeading(cell);
    std::string_view text = plain;
    if (IsNumeric(NormalizeNumber(text))) return true;
    while (!text.empty() && std::string_view("+-<>~=( ").find(text.front()) != text.npos)
        text.remove_prefix(1);
    std::size_t end = 0;
    while (end < text.size() && (IsDigit(text[end]) || text[end] == '.' || text[end] == ','))
        ++end;
    return end > 0 && IsFootnote(text.substr(end));
}

} // namespace vexora
