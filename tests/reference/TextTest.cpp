#include "reference/Text.h"

#include <gtest/gtest.h>

namespace vexora {
namespace {

TEST(Text, WordsAreTakenAtAnyWhiteSpace) {
    WordReader line(" \t^1 12\tY  two words\r");
    EXPECT_EQ(line.NextWord(), "^1");
    EXPECT_EQ(line.NextWord(), "12");
    EXPECT_EQ(line.NextWord(), "Y");
    EXPECT_EQ(line.Rest(), " two words");
    WordReader reader("^1 12 &\t rest of it ");
    EXPECT_EQ(reader.NextWord(), "^1");
    EXPECT_EQ(reader.NextWord(), "12");
    EXPECT_EQ(reader.NextWord(), "&");
    EXPECT_EQ(reader.Rest(), " rest of it");
    WordReader blank(" \t ");
    EXPECT_EQ(blank.NextWord(), "");
    EXPECT_EQ(blank.Rest(), "");
    EXPECT_EQ(WordReader("").NextWord(), "");
}

TEST(Text, HashFieldsKeepEmptyOnesApart) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {{"#a##c", {"a", "", "c", ""}},
                                                                      {"a#b", {"a", "b", ""}},
                                                                      {"#", {"", ""}},
                                                                      {"##", {"", ""}},
                                                                      {"", {"", ""}},
                                                                      {"#a#", {"a", "", ""}}};
    for (const auto& [text, fields] : cases) {
        std::string rest = text;
        for (const std::string& field : fields)
            EXPECT_EQ(NextHashField(rest), field) << text;
        EXPECT_EQ(rest, "") << text;
    }
}

TEST(Text, PositionsCountCharactersFromOne) {
    const std::string text = "a\u00E4\u20AC\U0001D11Ez";
    EXPECT_EQ(CodePointCount(text), 5U);
    EXPECT_EQ(Find(text, "z"), 5U);
    EXPECT_EQ(Find(text, "\u20AC", 3), 3U);
    EXPECT_EQ(Find(text, "\u20AC", 4), 0U);
    EXPECT_EQ(Find(text, ""), 0U);
    EXPECT_EQ(Substring(text, 2, 2), "\u00E4\u20AC");
    EXPECT_EQ(Substring(text, 4), "\U0001D11Ez");
    EXPECT_EQ(Substring(text, 0, 2), "");
    EXPECT_EQ(Substring(text, 6), "");
    EXPECT_EQ(Substring(text, 5, 100), "z");
}

TEST(Text, InvalidBytesAreReadAsWindows1252) {
    EXPECT_TRUE(IsValidUtf8("M\u00FCller \U0001D11E"));
    for (const char* bytes :
         {"M\xFCller", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\x80"})
        EXPECT_FALSE(IsValidUtf8(bytes));
    EXPECT_EQ(ToUtf8("M\xFCller \x80 \x96"), "M\u00FCller \u20AC \u2013");
    EXPECT_EQ(ToUtf8("M\u00FCller"), "M\u00FCller");
    EXPECT_EQ(CodePointCount("M\xFCller"), 6U);
}

TEST(Text, PatternsMatchTheWholeText) {
    struct Case {
        const char* pattern;
        const char* text;
        bool folded;
        bool exact;
    };
    const Case cases[] = {{"*benz*", "1,4-Benzoquinone", true, false},
                          {"benz*", "toluene benzene", false, false},
                          {"CO", "Co", true, false},
                          {"C?", "CO", true, true},
                          {"C?", "C", false, false},
                          {"?thane", "\u00E4thane", true, true},
                          {"C#H##", "C6H14", true, true},
                          {"C#H##", "C6H1x", false, false},
                          {"[A-C]1", "b1", true, false},
                          {"[!A-C]1", "b1", false, true},
                          {"a[*]b", "a*b", true, true},
                          {"a[*]b", "axb", false, false},
                          {"a[b", "a[b", true, true},
                          {"%ol", "ethanol", true, true},
                          {"a*b*c", "a b bb c", true, true},
                          {"a*b*c", "a b bb", false, false},
                          {"*", "", true, true},
                          {"", "", true, true},
                          {"", "a", false, false},
                          {"**a", "a", true, true}};
    for (const Case& c : cases) {
        EXPECT_EQ(Like(c.pattern, c.text), c.folded) << c.pattern << " ~ " << c.text;
        EXPECT_EQ(Like(c.pattern, c.text, true), c.exact) << c.pattern << " = " << c.text;
    }
}

TEST(Text, ManyStarsStayQuick) {
    EXPECT_FALSE(Like("*a*a*a*a*a*a*a*a*b", std::string(5000, 'a')));
}

TEST(Text, SmallHelpers) {
    EXPECT_EQ(SingleLine("a\r\nb\nc\rd"), "a b c d");
    EXPECT_EQ(Replace("::a::", "::", ":"), ":a:");
    EXPECT_EQ(Replace("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(Split("a;;b", ';'), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_EQ(TrimBlanks(" \ta\t "), "\ta\t");
    EXPECT_TRUE(EqualNoCase("hvp", "HVP"));
    EXPECT_FALSE(EqualNoCase("\u00E4", "\u00C4"));
}

} // namespace
} // namespace vexora
