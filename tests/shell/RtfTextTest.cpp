#include "plot/RtfText.h"

#include <gtest/gtest.h>

namespace vexora::test {

TEST(RtfTextTest, ThePlainTextRemains) {
    const std::pair<const char*, const char*> cases[] = {
        {"plain {text}", "plain {text}"},
        {R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}{\colortbl;\red0;}\fs22 One\par\b Two\b0 , three})",
         "One\nTwo, three"},
        {R"({\rtf1 a\tab b\line c\~d\-e\_f})", "a\tb\nc de-f"},
        {R"({\rtf1 \{x\}\\y})", "{x}\\y"},
        {R"({\rtf1 caf\'e9 \u181?m \u8212-})", "caf\u00e9 \u00b5m \u2014"},
        {R"({\rtf1{\*\generator Some 1.0;}text})", "text"},
        {R"({\rtf1 not closed\par {\b x)", "not closed\nx"},
    };
    for (const auto& [rtf, text] : cases)
        EXPECT_EQ(TextOfRtf(rtf), text) << rtf;
}

} // namespace vexora::test
