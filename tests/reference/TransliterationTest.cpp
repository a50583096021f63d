#include "reference/Transliteration.h"

#include <gtest/gtest.h>

namespace vexora {
namespace {

TEST(Transliteration, SignsAndLettersBecomePlainAscii) {
    const std::pair<const char*, const char*> cases[] = {
        {"plain ASCII & \"all\" of {it}~", "plain ASCII & \"all\" of {it}~"},
        {"p<1 and T>2", "pless than1 and Tgreater than2"},
        {"\u00C4\u00D6\u00DC\u00E4\u00F6\u00FC\u00DF", "AOUaouss"},
        {"\u00C6\u00E6\u00D8\u00F8\u00C5\u00E5\u00D0\u00F0\u00DE\u00FE", "AeaeOoAaDoPp"},
        {"25 \u00B0C \u00B1 0.1 \u00B5m\u00B2", "25 deg C +- 0.1 microm^2"},
        {"\u00BC\u00BD\u00BE\u00D7\u00F7\u00A9\u00AE", "1/41/23/4*/(C)(R)"},
        {"Dvo\u0159\u00E1k \u0160koda \u017Di\u017Eka \u0141\u00F3d\u017A",
         "Dvorak Skoda Zizka Lodz"},
        {"Nguy\u1EC5n \u0130stanbul \u0131", "Nguyen Istanbul i"},
        {"a\tb\nc\u00A0d\u2013e\u201Cf\u03B1g\u20AC", "a b c d e f g "},
        {"x\u007Fy", "x\u007Fy"}};
    for (const auto& [text, plain] : cases)
        EXPECT_EQ(Transliterate(text), plain) << text;
}

TEST(Transliteration, AnEmptyReplacementSkipsTheCharacterBehind) {
    EXPECT_EQ(Transliterate("\u00A7<a<"), "<aless than");
    EXPECT_EQ(Transliterate("\u00A8\u00E9\u00E9"), "\u00E9e");
    EXPECT_EQ(Transliterate("end\u00A7"), "end");
}

TEST(Transliteration, TheCaretStaysBehindItsCharacter) {
    const auto at = [](std::string_view text, std::size_t caret) {
        return TransliterateAt(text, caret).caret;
    };
    EXPECT_EQ(at("a\u00DFb", 0), 0U);
    EXPECT_EQ(at("a\u00DFb", 1), 1U);
    EXPECT_EQ(at("a\u00DFb", 2), 3U);
    EXPECT_EQ(at("a\u00DFb", 3), 4U);
    EXPECT_EQ(at("p<", 2), 10U);
    EXPECT_EQ(at("\u00A7x", 2), 1U);
    EXPECT_EQ(at("", 5), 0U);
}

} // namespace
} // namespace vexora
