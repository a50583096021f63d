// Texts that nobody means well with: the tools read them, say what they think, and end with an exit
// code.
#include "cli/CommandLineFixture.h"
#include "reference/Transliteration.h"

#include <sys/stat.h>

namespace vexora::test {
namespace {

std::string Repeated(const std::string& text, std::size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

std::string Utf16(const std::string& ascii) {
    std::string text = "\xFF\xFE";
    for (const char c : ascii)
        text += {c, '\0'};
    return text;
}

std::string Bytes(std::size_t count) {
    std::string text;
    for (std::uint32_t seed = 20261122; text.size() < count;) {
        seed = seed * 1664525 + 1013904223;
        text += static_cast<char>(seed >> 24);
    }
    return text;
}

void AppendUtf8(std::string& text, unsigned code) {
    if (code < 0x80) return text.push_back(static_cast<char>(code));
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr unsigned heads[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(heads[more] | code >> 6 * more);
    for (int i = more - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (code >> 6 * i & 0x3F));
}

class HostileText : public CommandLine {
protected:
    void Try(const char* name, const std::string& text) {
        folder.Write("hostile.txt", text);
        for (const char* command :
             {"check hostile.txt", "export hostile.txt out.xml", "tree hostile.txt"}) {
            const Outcome outcome = Run(std::string(command) + " >/dev/null");
            EXPECT_TRUE(outcome.code >= 0 && outcome.code <= 4) << name << ": " << command;
            EXPECT_EQ(outcome.err.find("terminate"), std::string::npos) << name;
        }
        const std::string xml = Read("out.xml");
        EXPECT_TRUE(xml.empty() || IsWellFormed(xml)) << name;
        std::filesystem::remove(folder.File("out.xml"));
    }
};

TEST_F(HostileText, EveryToolEndsWithAnExitCode) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    std::string heads = kHead;
    for (int set = 1; set <= 3'000; ++set)
        heads += "^1 1 VDN S DIR " + std::to_string(set) + "\tC L G PB S & & &\n";
    const std::string deep = Repeated("(", 100'000) + "H" + Repeated(")", 100'000);
    const std::pair<const char*, std::string> texts[] = {
        {"nothing", ""},
        {"a line of 10 MB", kHead + "^A & O & & AB CD & & " + Repeated("x", 10'000'000)},
        {"a name of 1 MB", kHead + "^N x 7732185 & " + Repeated("n", 1'000'000) + "\n"},
        {"set heads", heads},
        {"random bytes", Bytes(300'000)},
        {"random bytes in a document", kHead + Bytes(300'000)},
        {"zeros", kHead + std::string(100'000, '\0') + "\n" + kDocument},
        {"zeros in fields", "^R 20\0"
                            "31 wag pru 1\n^L 7732185\0 DNNNN P\n^S 1 cm\0;;\n"},
        {"mixed line ends", Repeated("^A & O\r^A & O\r\n^A & O\n\r", 1'000) + kDocument},
        {"no last line end", kDocument.substr(0, kDocument.size() - 1)},
        {"a mark in front", "\xEF\xBB\xBF" + kDocument},
        {"UTF-16", Utf16(kDocument)},
        {"tags alone",
         kHead + "^A\n^a\n^M\n^z\n^f\n^1\n^2\n^3\n^D\n^d\n^Y\n^X\n^B\n^T\n^Q\n^C\n^E\nBR\n"
                 "B0\nBN\nBP\nBC\nBV\nBM\nBH\nBD\nBE\nCS\nCC\nCE\nSB\nSS\nGH\nSE\nXB\nXD\n"
                 "XC\nXE\n^N\n^J\n^I\n^L\nBL\n^S\n^R\n"},
        {"brackets of a formula", kHead + "^N x 7732185 " + deep + " name\n" + kDocument},
        {"brackets of a comment", kHead + "^A & O & & AB CD & & " + deep + ":Method:" + deep +
                                      ":\n" + "^z 1 TC S 1 L G & 647.096 & 0.1 &\n"},
        {"every byte", "^R 2031 wag pru 1\n^J#J#O#@" + everyByte + "@#" + everyByte +
                           "##A##P#1####\n^I#1#wagner#w  #" + everyByte + "\n" + kDocument},
    };
    for (const auto& [name, text] : texts)
        Try(name, text);
}

TEST_F(HostileText, WhatIsNoFileIsRefused) {
    ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0600), 0);
    folder.Write("a.vxs", "expect no file \"" + folder.File("pipe") + "\"\n");
    for (const char* command :
         {"check pipe", "export pipe", "tree /dev/zero", "diff water.txt pipe", "table /dev/zero",
          "refdb import --compounds pipe VXR.mdb", "refdb import --compounds /dev/zero VXR.mdb"}) {
        const Outcome outcome = Run(command);
        EXPECT_EQ(outcome.code, 3) << command;
        EXPECT_NE(outcome.err.find("error: "), std::string::npos) << command;
    }
    EXPECT_EQ(Run("play pipe").code, 2);
    EXPECT_EQ(Run("play a.vxs").code, 1);
}

TEST_F(HostileText, EveryCharacterGoesThroughTransliterationAndExport) {
    std::string title;
    std::size_t characters = 0;
    for (unsigned code = 1; code < 0x110000; ++code) {
        if (code >= 0xD800 && code < 0xE000) continue; // halves of pairs
        std::string one;
        AppendUtf8(one, code);
        for (const char c : Transliterate(one))
            ASSERT_TRUE(c >= ' ' && static_cast<unsigned char>(c) < 0x80) << code;
        // Each eleventh of those far out: a document of all of them takes its time to be checked.
        if ((code > 0x3000 && code % 11 != 0) || code == '\n' || code == '\r' || code == '#')
            continue;
        title += one;
        ++characters;
    }
    EXPECT_GT(characters, 100'000U);
    folder.Write("all.txt", "^R 2031 wag pru 1\n^J#J#O#@J. Chem. Thermodyn.@, 2031, $1$, 2-3#" +
                                title +
                                "##A##P#1####\n^I#1#wagner#w  #Wagner,W.\n^L 7732185 DNNNN P\n"
                                "^S 1 cm;;99.9m%,gc\n^A & O & & AB CD & &\n"
                                "^z 1 TC S 1 L G & 647.096 & 0.1 &\n");
    const Outcome outcome = Run("export all.txt all.xml");
    EXPECT_LE(outcome.code, 1) << outcome.err;
    EXPECT_TRUE(IsWellFormed(Read("all.xml")));
}

} // namespace
} // namespace vexora::test
