#include "host/PlayMain.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/ScratchFolder.h"
#include "support/SmallProgram.h"

namespace vexora::test {
namespace {

class PlayMain : public ::testing::Test {
protected:
    std::string File(const std::string& name, const std::string& text) {
        std::ofstream(folder_.Path(name)) << text;
        return folder_.Path(name);
    }
    int Run(std::vector<std::string> arguments) {
        out_.str({});
        err_.str({});
        host::Actor actor;
        const auto program = [](const Places&) { return MakeSmallProgram; };
        return host::PlayMain(arguments, {actor, out_, err_, "vexora-cli", program});
    }
    std::string Home() const { return folder_.Path("home"); }

    ScratchFolder folder_;
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(PlayMain, EachFileIsPlayedInAFreshProgramOnTheSameHome) {
    const std::string first = File("a.vxs", "start\nset frmSmall.txtName \"${NAME}\"\n");
    const std::string second = File("b.vxs", "start\nexpect frmSmall.txtName empty\n"
                                             "note \"${HOME_DIR} ${TODAY}\"\n"
                                             "expect file \"${HOME_DIR}/VXR.mdb\" contains \"\"\n");
    EXPECT_EQ(Run({"--home", Home(), "--var", "NAME=a=b", "--date=2026-01-15", first, second}), 0)
        << err_.str();
    EXPECT_NE(out_.str().find("> note \"${HOME_DIR} ${TODAY}\"\n"), std::string::npos);
}

TEST_F(PlayMain, AFailureOfOneFileIsTheFailureOfAll) {
    const std::string bad = File("bad.vxs", "start\nexpect closed frmSmall\n");
    const std::string good = File("good.vxs", "start\n");
    EXPECT_EQ(Run({"--home", Home(), bad, good}), 1);
    EXPECT_NE(err_.str().find("bad.vxs:2: error: expect closed frmSmall"), std::string::npos);
    EXPECT_EQ(Run({"--home", Home(), "--keep-going", good}), 0);
}

TEST_F(PlayMain, WhatIsMalformedPlaysNothing) {
    const std::string good = File("good.vxs", "start\n");
    const std::string wrong = File("wrong.vxs", "stort\n");
    const std::vector<std::vector<std::string>> cases = {
        {},
        {"--home"},
        {"--fast", good},
        {"--date", "2026-02-30", good},
        {"--date", "yesterday", good},
        {"--var", "NAME", good},
        {"--keep-going=yes", good},
        {"--home", Home(), folder_.Path("missing.vxs")},
        {"--home", Home(), good, wrong},
    };
    for (const auto& arguments : cases) {
        EXPECT_EQ(Run(arguments), 2) << testing::PrintToString(arguments);
        EXPECT_EQ(out_.str(), "");
        EXPECT_NE(err_.str(), "");
    }
}

TEST_F(PlayMain, AScriptChangesFilesOnlyWhereItWasSent) {
    namespace fs = std::filesystem;
    for (const char* name : {"scripts", "out", "outside", "papers", "named", "home"})
        fs::create_directory(folder_.Path(name));
    File("outside/kept.txt", "kept");
    File("papers/paper.txt", "paper");
    fs::create_symlink(folder_.Path("outside"), folder_.Path("out/door"));
    fs::create_symlink(folder_.Path("outside/kept.txt"), folder_.Path("out/link.txt"));
    const std::string top = "\"" + folder_.Path() + "/";
    const std::string copy = "copyfile " + top + "papers/paper.txt\" " + top;
    const std::string remove = "deletefile " + top;
    const std::string refused =
        "A script may write there only when it is played with --allow-files ";
    const std::string outside = refused + fs::canonical(folder_.Path("outside")).string();
    const struct {
        std::string line, told; // empty where it is done
    } cases[] = {
        {copy + "out/a.txt\"", ""},
        {copy + "out/new/a.txt\"", ""},
        {copy + "home/a.txt\"", ""},
        {copy + "scripts/a.txt\"", ""},
        {copy + "named/a.txt\"", ""},
        {remove + "out/link.txt\"\ncopyfile " + top + "papers/paper.txt\" " + top +
             "out/link.txt\"",
         ""},
        {copy + "outside/kept.txt\"", outside},
        {copy + "out/../outside/kept.txt\"", outside},
        {copy + "out\\\\..\\\\outside\\\\kept.txt\"", outside},
        {copy + "out/door/kept.txt\"", outside},
        {copy + "out/link.txt\"", outside},
        {copy + "outsider.txt\"", refused + fs::canonical(folder_.Path()).string()},
        {remove + "outside/kept.txt\"", outside},
        {remove + "out/door/kept.txt\"", outside},
        {remove + "papers/paper.txt\"", refused + fs::canonical(folder_.Path("papers")).string()},
        {"start " + top + "papers/paper.txt\"\n" + remove + "papers/paper.txt\"", ""},
    };
    for (const auto& sample : cases) {
        std::error_code none;
        fs::remove(folder_.Path("out/link.txt"), none);
        fs::create_symlink(folder_.Path("outside/kept.txt"), folder_.Path("out/link.txt"));
        File("papers/paper.txt", "paper");
        const std::string script = File("scripts/a.vxs", sample.line + "\n");
        const std::vector<std::string> arguments = {"--home", Home(),
                                                    "--var",  "OUT=" + folder_.Path("out"),
                                                    "--var",  "MORE=" + folder_.Path("named"),
                                                    script};
        EXPECT_EQ(Run(arguments), sample.told.empty() ? 0 : 1) << sample.line << err_.str();
        EXPECT_NE(err_.str().find(sample.told + (sample.told.empty() ? "" : "\n")),
                  std::string::npos)
            << sample.line << err_.str();
        std::ifstream kept(folder_.Path("outside/kept.txt"));
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(kept), {}), "kept") << sample.line;
    }
    File("papers/paper.txt", "paper");
    const std::string script = File("scripts/a.vxs", cases[6].line + "\n");
    EXPECT_EQ(Run({"--home", Home(), "--allow-files", folder_.Path("outside"), script}), 0)
        << err_.str();
}

} // namespace
} // namespace vexora::test
