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
        {"a\tb\nc\u00A0d\u2603e\u20AC", "a b c d e "},
        {"\u03B3-butyrolactone at \u22125 \u00B0C", "gamma-butyrolactone at -5 deg C"},
        {"1\u20102\u20113\u20124\u20135\u20146\u20157", "1-2-3-4-5-6-7"},
        {"\u201Ca\u201D \u201Eb\u201F \u2018c\u2019 4,4\u2032", "\"a\" \"b\" 'c' 4,4'"},
        {"\u0152rsted, \u0153uvre", "OErsted, oeuvre"},
        {"\u0391\u03A9 \u0394H \u03B1\u03C2\u03C3\u03C9 \u03AC\u03D1\u03F5\u2126",
         "AlphaOmega DeltaH alphasigmasigmaomega alphathetaepsilonOmega"},
        {"x\u2074 10\u207B\u00B9\u00B2 a\u207F s\u00B2m\u00B3", "x^4 10^-12 a^n s^2m^3"},
        {"H\u2082SO\u2084 x\u2081\u2080\u208A", "H2SO4 x10+"},
        {"Mu\u0308ller A\u030Angstro\u0308m e\u0301", "Muller Angstrom e"},
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
    EXPECT_EQ(at("u\u0308x", 2), 1U);
    EXPECT_EQ(at("u\u0308x", 3), 2U);
    EXPECT_EQ(at("\u03B1\u207B\u00B9x", 3), 8U);
    EXPECT_EQ(at("", 5), 0U);
}

} // namespace
} // namespace vexora
