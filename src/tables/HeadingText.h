#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A printed heading in few characters: ASCII and Greek letters, digits, "'" for primes of every
/// shape, "-", "*" and "/" for the signs of products, "^" before what stood raised, one blank
/// between words, no blanks at the ends. Letters of mathematical alphabets become plain ones.
std::string PlainHeading(std::string_view text);

/// A word, a number or one sign of a plain heading. "''" and "'''" are one sign each, and so is
/// every Greek letter.
struct HeadingToken {
    enum class Kind { Word, Number, Sign } kind = Kind::Sign;
    std::string_view text;
    std::size_t begin = 0, end = 0; // bytes of the heading
};

/// The parts of a plain heading, which they are views of.
std::vector<HeadingToken> HeadingTokens(std::string_view plain);

/// A cell that holds a value, with the footnote, uncertainty or sign of doubt that papers print
/// beside it. Rows with such a cell are no headings. A dash is none: it may stand for "no unit".
bool IsValueCell(std::string_view cell);

} // namespace vexora
