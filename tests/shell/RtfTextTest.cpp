#include "plot/RtfText.h"

#include <gtest/gtest.h>

namespace vexora::test {

TEST(RtfTextTest, TextAndLookRemain) {
    const std::pair<const char*, const char*> cases[] = {
        {"plain {text} < 1\nmore", "plain {text} &lt; 1<br>\nmore"},
        {R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}{\colortbl;\red0;}\fs22 One\par\b Two\b0 , three})",
         "One<br>\n<b>Two</b>, three"},
        {R"({\rtf1 a\tab b\line c\~d\-e\_f})", "a\u00a0\u00a0\u00a0 b<br>\nc de-f"},
        {R"({\rtf1 \{x\}\\y & z})", "{x}\\y &amp; z"},
        {R"({\rtf1 caf\'e9 \u181?m \u8212-})", "caf\u00e9 \u00b5m \u2014"},
        {R"({\rtf1{\*\generator Some 1.0;}text})", "text"},
        {R"({\rtf1 not closed\par {\b x)", "not closed<br>\n<b>x</b>"},
        {R"({\rtf1 {\fs32\b Head}\par{\i a\ul b}c m{\super 2} H{\sub 2}O})",
         "<span style=\"font-size:large\"><b>Head</b></span><br>\n<i>a</i><i><u>b</u></i>c "
         "m<sup>2</sup> H<sub>2</sub>O"},
        {R"({\rtf1\b bold \plain plain\super 1\nosupersub 2})", "<b>bold </b>plain<sup>1</sup>2"},
    };
    for (const auto& [rtf, html] : cases)
        EXPECT_EQ(HtmlOfRtf(rtf), html) << rtf;
}

} // namespace vexora::test
