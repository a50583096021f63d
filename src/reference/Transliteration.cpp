#include "reference/Transliteration.h"

#include "reference/Text.h"

#include <array>

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

char32_t BaseLetter(char32_t c) {
    if (c >= 0x100 && c <= 0x24F) return static_cast<unsigned char>(LatinExtended[c - 0x100]);
    if (c >= 0x1E00 && c <= 0x1EFF) return static_cast<unsigned char>(LatinAdditional[c - 0x1E00]);
    return c;
}

/// What stands for a character in the output; a plain one has to pass by itself.
std::string Plain(char32_t c) {
    if (c == U'<') return "less than";
    if (c == U'>') return "greater than";
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
    for (std::size_t offset = 0; offset < text.size(); ++read) {
        if (read == caret) result.caret = written;
        const char32_t c = BaseLetter(NextCodePoint(text, offset));
        const bool untouched = skip || PassesAsItIs(c);
        skip = false;
        if (untouched) {
            AppendCodePoint(result.text, c);
            ++written;
        } else {
            const std::string plain = Plain(c);
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
