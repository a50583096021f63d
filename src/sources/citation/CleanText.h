// Texts of citations as this workbench keeps them. Publishers set dashes, quotation marks, blanks
// and accents in many ways, and some send the marks of a web page along.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// One line with single blanks, plain dashes and quotation marks, letters and their accents in one
/// character, no ligatures. Bytes that are no UTF-8 are read as Windows-1252.
std::string CleanText(std::string_view text);
/// The same without the marks and entities of a web page.
std::string CleanMarkup(std::string_view text);
/// A range of pages with one plain dash and both numbers in full: "387-95" is "387-395".
std::string CleanPages(std::string_view text);
/// Without one "." behind the last word; "..." and "Part A." of one letter stay.
std::string WithoutFinalPoint(std::string_view text);
/// The first year of four digits in a text, "" if none.
std::string YearIn(std::string_view text);

/// A letter with a combining mark as one character; the letter alone where there is none.
std::string WithMark(std::string_view letter, char32_t mark);

} // namespace vexora
