#include "host/PlayMain.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace vexora::test
