// Plain ASCII for texts that reach the export. Letters with marks become their base letter, Greek
// ones their names, signs of Latin-1 words, printers' dashes and quotes those of a typewriter, and
// raised and lowered digits "^2" and "2"; everything else becomes a blank. The ampersand passes:
// escaping is the emitter's work.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexora {

/// The text in plain ASCII. A sign whose replacement is empty takes the character behind it out of
/// the treatment, so that one stays as it is.
std::string Transliterate(std::string_view text);

/// A text and the number of characters in front of the caret.
/// The field is rewritten at every key, and the caret must not jump to its end.
struct TextAndCaret {
    std::string text;
    std::size_t caret = 0;
};
/// Transliterate for a field being typed in: the caret stays behind the same character.
TextAndCaret TransliterateAt(std::string_view text, std::size_t caret);

} // namespace vexora
