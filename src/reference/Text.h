// Small text functions that every floor shares. Text is UTF-8; positions and lengths count code
// points, positions start at 1, and 0 means "not found". Nothing here depends on a locale.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// Takes the next field off a "#"-separated text. A leading "#" is passed over; the text keeps its
/// tail from the "#" that ended the field. An empty text gives "".
/// Record fields that may hold blanks are parted so, the names of an author among them.
std::string NextHashField(std::string& text);

/// Reads words off a record line without copying it: white space at both ends goes, a word is what
/// stands before the first blank, tab, CR or LF; the rest is what stands behind that separator.
class WordReader {
public:
    explicit WordReader(std::string_view text) : rest_(text) {}
    /// The next word, "" behind the last one.
    std::string_view NextWord();
    /// What stands behind the separator of the last word read.
    std::string_view Rest() const { return rest_; }
    /// True when no further word follows.
    bool AtEnd() const;

private:
    std::string_view rest_;
};

/// Blanks (U+0020 only) removed at both ends.
std::string_view TrimBlanks(std::string_view text);
/// Blanks, tabs, CR and LF removed at both ends.
std::string_view Trim(std::string_view text);

/// ASCII letters folded, all else as it stands.
std::string UpperAscii(std::string_view text);
std::string LowerAscii(std::string_view text);
/// Equal without regard to the case of ASCII letters.
bool EqualNoCase(std::string_view a, std::string_view b);

/// True for a text that is one of these, case and all.
bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> texts);

/// Every occurrence of `what` replaced; an empty `what` changes nothing.
std::string Replace(std::string_view text, std::string_view what, std::string_view with);
/// Parts between separators; n separators give n + 1 parts.
std::vector<std::string> Split(std::string_view text, char separator);

/// Number of code points; a stray byte counts as one.
/// Record fields are measured in characters: a name with an umlaut is not longer for it.
std::size_t CodePointCount(std::string_view text);
/// Position of `what` at or behind `from`, 0 if absent or `what` is empty. Case-sensitive.
std::size_t Find(std::string_view text, std::string_view what, std::size_t from = 1);
/// `count` characters from position `from` on (all by default); outside the text gives "".
std::string Substring(std::string_view text, std::size_t from,
                      std::size_t count = std::string::npos);
/// Byte offset of a position; the length in bytes when it lies behind the end.
std::size_t ByteOffset(std::string_view text, std::size_t position);
/// The code point that starts at byte `offset`, which moves behind it. A byte that starts no valid
/// sequence is returned as it is.
char32_t NextCodePoint(std::string_view text, std::size_t& offset);
/// Appends one code point as UTF-8.
void AppendCodePoint(std::string& text, char32_t codePoint);

bool IsValidUtf8(std::string_view text);
/// Text of the Windows-1252 code page as UTF-8; the five unassigned codes become U+FFFD.
/// Papers and older files were typed on such systems; the page has a sign for nearly every byte.
std::string FromWindows1252(std::string_view bytes);
/// The bytes as UTF-8: unchanged if valid, else read as Windows-1252.
std::string ToUtf8(std::string_view bytes);
/// True for a text that can be the name of an element.
/// ASCII only, without a colon: all that names of the schema need.
bool IsXmlName(std::string_view text);
/// One line: every line end (CR LF, CR or LF) becomes one blank.
std::string SingleLine(std::string_view text);

/// Pattern match over the whole text: "*" or "%" any run, "?" one character, "#" one digit,
/// "[a-z]" one of a list, "[!a-z]" none of it; an unclosed "[" stands for itself. Case of ASCII
/// letters counts only when asked for.
bool Like(std::string_view pattern, std::string_view text, bool caseSensitive = false);

/// True when a record field holds nothing: "" or "&".
bool IsBlankField(std::string_view field);

} // namespace vexora
