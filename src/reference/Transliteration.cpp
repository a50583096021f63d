#include "reference/Transliteration.h"

#include "reference/Text.h"

#include <array>
#include <utility>

namespace vexora {

namespace {

// Base letters of the canonical decompositions (Unicode character database), one a code point, with
// the stroked and dotless letters besides; a blank where there is none.
constexpr std::string_view LatinExtended = // U+0100 to U+024F
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi  JjKk LlLlLl "
    " LlNnNnNn   OoOoOo  RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZz "
    "                                Oo             Uu               "
    "             AaIiOoUuUuUuUuUu AaAa    GgKkOoOo  j   Gg  NnAa  Oo"
    "AaAaEeEeIiIiOoOoRrRrUuUuSsTt  Hh      AaEeOoOoOoOoYy            "
    "                ";
constexpr std::string_view LatinAdditional = // U+1E00 to U+1EFF
    "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMm"
    "MmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVv"
    "WwWwWwWwWwXxXxYyZzZzZzhtwy      AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEe"
    "EeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy      ";

constexpr std::array<std::string_view, 95> Latin1{
    // U+00A1 to U+00FF
    "!",   "cents", "pounds", "$",  "yen", "|", "",      "",  "(C)", "a",  "<<", "",  "-",  "(R)",
    "-",   "deg ",  "+-",     "^2", "^3",  "'", "micro", "",  "*",   ",",  "^1", "o", ">>", "1/4",
    "1/2", "3/4",   "?",      "A",  "A",   "A", "A",     "A", "A",   "Ae", "C",  "E", "E",  "E",
    "E",   "I",     "I",      "I",  "I",   "D", "N",     "O", "O",   "O",  "O",  "O", "*",  "O",
    "U",   "U",     "U",      "U",  "Y",   "P", "ss",    "a", "a",   "a",  "a",  "a", "a",  "ae",
    "c",   "e",     "e",      "e",  "e",   "i", "i",     "i", "i",   "o",  "n",  "o", "o",  "o",
    "o",   "o",     "/",      "o",  "u",   "u", "u",     "u", "y",   "p",  "y"};

constexpr std::array<std::string_view, 25> GreekNames{
    // U+03B1 to U+03C9, the capitals 32 below
    "alpha", "beta",   "gamma",   "delta", "epsilon", "zeta",    "eta",  "theta", "iota",
    "kappa", "lambda", "mu",      "nu",    "xi",      "omicron", "pi",   "rho",   "sigma",
    "sigma", "tau",    "upsilon", "phi",   "chi",     "psi",     "omega"};
constexpr char32_t Alpha = 0x391;
constexpr char32_t SmallAlpha = 0x3B1;
constexpr std::string_view Superscripts = "0i  456789+-=()n"; // U+2070 to U+207F
constexpr std::string_view Subscripts = "0123456789+-=()";    // U+2080 to U+208E

/// Greek letters with accents and the forms of them that mathematics uses, by their plain letter.
constexpr std::pair<char32_t, char32_t> GreekForms[] = {
    {0x386, 0x391}, {0x388, 0x395}, {0x389, 0x397}, {0x38A, 0x399}, {0x38C, 0x39F}, {0x38E, 0x3A5},
    {0x38F, 0x3A9}, {0x390, 0x3B9}, {0x3AA, 0x399}, {0x3AB, 0x3A5}, {0x3AC, 0x3B1}, {0x3AD, 0x3B5},
    {0x3AE, 0x3B7}, {0x3AF, 0x3B9}, {0x3B0, 0x3C5}, {0x3CA, 0x3B9}, {0x3CB, 0x3C5}, {0x3CC, 0x3BF},
    {0x3CD, 0x3C5}, {0x3CE, 0x3C9}, {0x3D0, 0x3B2}, {0x3D1, 0x3B8}, {0x3D5, 0x3C6}, {0x3D6, 0x3C0},
    {0x3F0, 0x3BA}, {0x3F1, 0x3C1}, {0x3F5, 0x3B5}, {0x2126, 0x3A9}};

bool IsBetween(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

char32_t BaseLetter(char32_t c) {
    if (c < 0x100) return c;
    if (IsBetween(c, 0x100, 0x24F) && c != U'\u0152' && c != U'\u0153')
        return static_cast<unsigned char>(LatinExtended[c - 0x100]);
    if (IsBetween(c, 0x1E00, 0x1EFF))
        return static_cast<unsigned char>(LatinAdditional[c - 0x1E00]);
    for (const auto& [form, letter] : GreekForms)
        if (c == form) return letter;
    return c;
}

/// The letter in front of a combining mark stands without it, as one that was composed would.
bool IsCombiningMark(char32_t c) {
    return IsBetween(c, 0x300, 0x36F) || IsBetween(c, 0x1AB0, 0x1AFF) ||
           IsBetween(c, 0x1DC0, 0x1DFF) || IsBetween(c, 0x20D0, 0x20FF) ||
           IsBetween(c, 0xFE20, 0xFE2F);
}

bool IsSuperscript(char32_t c) {
    return IsBetween(c, 0x2070, 0x207F) || c == 0xB9 || c == 0xB2 || c == 0xB3;
}

std::string GreekName(char32_t c) {
    const bool isCapital = IsBetween(c, Alpha, Alpha + GreekNames.size() - 1);
    if (!isCapital && !IsBetween(c, SmallAlpha, SmallAlpha + GreekNames.size() - 1)) return {};
    std::string name(GreekNames[c - (isCapital ? Alpha : SmallAlpha)]);
    if (isCapital) name.front() = UpperAscii(name).front();
    return name;
}

/// What printers set, as a typewriter has it; empty for any other character.
std::string Typewritten(char32_t c) {
    if (IsBetween(c, 0x2010, 0x2015) || c == 0x2212) return "-";
    if (IsBetween(c, 0x2018, 0x201B) || c == 0x2032) return "'";
    if (IsBetween(c, 0x201C, 0x201F) || c == 0x2033) return "\"";
    if (c == 0x152) return "OE";
    if (c == 0x153) return "oe";
    if (IsBetween(c, 0x2070, 0x207F) && Superscripts[c - 0x2070] != ' ')
        return std::string("^") + Superscripts[c - 0x2070];
    if (IsBetween(c, 0x2080, 0x208E)) return std::string(1, Subscripts[c - 0x2080]);
    return GreekName(c);
}

/// What stands for a character in the output; a plain one has to pass by itself.
std::string Plain(char32_t c) {
    if (c == U'<') return "less than";
    if (c == U'>') return "greater than";
    if (std::string typed = Typewritten(c); !typed.empty()) return typed;
    return std::string(c < 161 || c > 255 ? " " : Latin1[c - 161]);
}

bool PassesAsItIs(char32_t c) {
    return c >= 32 && c < 128 && c != U'<' && c != U'>';
}

} // namespace

std::string Transliterate(std::string_view text) {
    return TransliterateAt(text, 0).text;
}

TextAndCaret TransliterateAt(std::string_view text, std::size_t caret) {
    TextAndCaret result;
    std::size_t read = 0;
    std::size_t written = 0;
    bool skip = false;
    bool isRaised = false; // in a run of superscripts, which has one "^"
    for (std::size_t offset = 0; offset < text.size(); ++read) {
        if (read == caret) result.caret = written;
        const char32_t c = BaseLetter(NextCodePoint(text, offset));
        const bool untouched = skip || PassesAsItIs(c);
        const bool wasRaised = std::exchange(isRaised, !untouched && IsSuperscript(c));
        if (!skip && IsCombiningMark(c)) continue;
        skip = false;
        if (untouched) {
            AppendCodePoint(result.text, c);
            ++written;
        } else {
            std::string plain = Plain(c);
            if (wasRaised && isRaised) plain.erase(0, 1);
            result.text += plain;
            written += plain.size();
            // A sign without a replacement, such as a dead accent, lets the character behind it
            // pass.
            skip = plain.empty();
        }
    }
    if (caret >= read) result.caret = written;
    return result;
}

} // namespace vexora
