#include "host/ScriptParser.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/ScratchFolder.h"

namespace vexora::test {
namespace {

using host::ParseScript;
using host::Script;
using host::ScriptError;

std::string ErrorOf(const std::string& text) {
    try {
        ParseScript(text, "a.vxs", {{"X", "value"}});
        return "none";
    } catch (const ScriptError& error) {
        return error.what();
    }
}

TEST(ScriptParser, ReadsWordsQuotesEscapesAndComments) {
    const Script script = ParseScript("\xEF\xBB\xBF# first\r\n\r\n"
                                      "  set  f.txt\t\"a \\\"b\\\" \\\\ \\n\\t#\"  # rest \"\r\n",
                                      "a.vxs", {});
    ASSERT_EQ(script.size(), 1U);
    EXPECT_EQ(script[0].number, 3);
    ASSERT_EQ(script[0].words.size(), 3U);
    EXPECT_EQ(script[0].Text(1), "f.txt");
    EXPECT_EQ(script[0].Text(2), "a \"b\" \\ \n\t#");
    EXPECT_EQ(host::Quoted("a \"b\" \\ \n\t#"), "\"a \\\"b\\\" \\\\ \\n\\t#\"");
}

TEST(ScriptParser, APositionIsNoCommentWhereAnEntryStands) {
    const Script script = ParseScript("choose f.cbo #2 # two\nexpect f.lst has #0\n"
                                      "click f.cmd #2\n",
                                      "a.vxs", {});
    EXPECT_EQ(script[0].Text(2), "#2");
    EXPECT_EQ(script[1].Text(3), "#0");
    EXPECT_EQ(script[2].words.size(), 2U);
}

TEST(ScriptParser, BlocksAreTakenAsTheyStandWithKnownVariables) {
    const Script script = ParseScript(
        "clipboard <<END\n  \"a\" # ${X}\n${OTHER}\n END\nEND\nquit\n", "a.vxs", {{"X", "value"}});
    EXPECT_EQ(script[0].BlockText(), "  \"a\" # value\n${OTHER}\n END");
    EXPECT_EQ(script[0].source.size(), 5U);
    EXPECT_EQ(script[1].number, 6);
}

TEST(ScriptParser, VariablesAreReplacedInWordsAndQuotes) {
    const Script script =
        ParseScript("note \"${X} $Y ${SCRIPT_DIR}\"\n", "dir/a.vxs", {{"X", "a \"b\""}});
    EXPECT_EQ(script[0].Text(1), "a \"b\" $Y dir");
    EXPECT_EQ(script[0].source.front(), "note \"${X} $Y ${SCRIPT_DIR}\"");
}

TEST(ScriptParser, MalformedLinesAreToldWithTheirPlace) {
    const std::pair<const char*, const char*> cases[] = {
        {"fly f.cmd", "a.vxs:1: error: unknown command fly"},
        {"\"click\" f.cmd", "a.vxs:1: error: unknown command click"},
        {"\n\nnote \"open", "a.vxs:3: error: the quotes are not closed"},
        {"note \"a\"b", "a.vxs:1: error: a blank is missing behind the quotes"},
        {"note a\"b\"", "a.vxs:1: error: quotes in the middle of a word"},
        {"note \"\\x\"", "a.vxs:1: error: \\ stands before \", \\, n or t only"},
        {"note \"${X\"", "a.vxs:1: error: ${ is not closed"},
        {"note \"${Y}\"", "a.vxs:1: error: unknown variable Y"},
        {"clipboard <<", "a.vxs:1: error: << needs the word that ends the block"},
        {"quit\nclipboard <<END\nEND ", "a.vxs:2: error: the block is not ended by END"},
    };
    for (const auto& [text, error] : cases)
        EXPECT_EQ(ErrorOf(text), error) << text;
}

TEST(ScriptParser, CommandsOfAnotherFormAreMalformed) {
    const char* const lines[] = {
        "click",
        "click cmdOk",
        "click .cmdOk",
        "click form.",
        "click \"f.cmd\"",
        "click f.cmd f.cmd",
        "set f.txt",
        "set f.txt word",
        "choose f.cbo word",
        "choose f.cbo #x",
        "choose f.cbo #-1",
        "select f.lst \"a\"",
        "select f.lst \"a\" maybe",
        "check f.chk",
        "node",
        "node Source",
        "node key Source",
        "cell f.grd 1 \"a\"",
        "cell f.grd 1 -2 \"a\"",
        "cell f.grd 1 99999999999 \"a\"",
        "cells f.grd 1 2",
        "cells f.grd 1 2 \"a\"",
        "quit <<END\nEND",
        "drag f.pic 1 2 3",
        "drag f.pic 1 2 3 inf",
        "close f.txt",
        "answer Maybe",
        "answer \"Yes\"",
        "answer Yes \"a\" \"b\" \"c\"",
        "input",
        "file nowhere",
        "expect",
        "expect f.txt",
        "expect f.txt green",
        "expect f.txt cell 1 \"a\"",
        "expect no",
        "expect no form frmMain",
        "expect tree \"a\"",
        "expect xml \"a\" \"b\"",
        "expect xml \"a\" count \"b\" many",
        "print",
        "print form",
        "include",
    };
    for (const std::string line : lines)
        EXPECT_NE(ErrorOf(line).find("a.vxs:1: error: the command is written\n"), std::string::npos)
            << line << '\n'
            << ErrorOf(line);
}

TEST(ScriptParser, IncludesPlayFromTheirOwnFolder) {
    const ScratchFolder folder;
    std::filesystem::create_directory(folder.Path("sub"));
    std::ofstream(folder.Path("main.vxs")) << "include \"sub/part.vxs\"\nquit\n";
    std::ofstream(folder.Path("sub/part.vxs")) << "note \"${SCRIPT_DIR}\"\n";
    const Script script = host::ReadScript(folder.Path("main.vxs"), {});
    ASSERT_EQ(script.size(), 3U);
    EXPECT_EQ(script[1].Text(1), folder.Path("sub"));
    EXPECT_EQ(script[1].number, 1);

    std::ofstream(folder.Path("sub/part.vxs")) << "include \"part.vxs\"\n";
    EXPECT_THROW(host::ReadScript(folder.Path("main.vxs"), {}), ScriptError);
    EXPECT_THROW(host::ReadScript(folder.Path("missing.vxs"), {}), ScriptError);
    EXPECT_THROW(host::ReadScript(folder.Path("sub"), {}), ScriptError);
}

} // namespace
} // namespace vexora::test
