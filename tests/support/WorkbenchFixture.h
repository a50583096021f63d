#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "host/Actor.h"
#include "host/Player.h"
#include "host/WorkbenchProgram.h"
#include "shell/Places.h"
#include "support/FailingFileSystem.h"
#include "support/ScratchFolder.h"

namespace vexora::test {

struct PlayResult {
    bool held = false;
    std::string transcript;
    std::string errors;
};

/// A workbench with a home of its own, made from the installed databases and gone after the test.
/// Tests of dialogs are short scripts: Play runs lines as a session file has them, each time in a
/// fresh workbench on the same home, on 15 January 2026. ${HOME_DIR} and ${OUT} are folders of this
/// test.
class WorkbenchFixture : public ::testing::Test {
protected:
    WorkbenchFixture() : places_{folder_.Path("home"), VEXORA_SHARE_DIR} {
        EXPECT_EQ(PrepareHome(places_, Files), "");
        std::filesystem::create_directory(Out());
    }

    std::string Home() const { return places_.Home; }
    std::string Out() const { return folder_.Path("out"); }

    /// Brings the home past the steps of a first start; from then on `start` asks for the name of
    /// the user, which `input cancel` leaves as it is.
    void Configure() {
        Holds("include \"" VEXORA_SOURCE_DIR "/tests/sessions/shell/known_user.inc\"\n");
    }

    PlayResult Play(const std::string& lines) {
        const host::ScriptVariables variables{
            {"HOME_DIR", Home()}, {"OUT", Out()}, {"TODAY", "2026-01-15"}};
        std::ostringstream out;
        std::ostringstream err;
        host::PlayOptions options;
        options.today = ui::Date{2026, 1, 15};
        options.reach = {Home(), Out()};
        host::Player player(Actor, Files, host::WorkbenchIn(places_), options, out, err);
        const bool held = player.Play(host::ParseScript(lines, "test.vxs", variables));
        return {held, out.str(), err.str()};
    }

    /// Plays lines that all have to hold; the answer is the transcript.
    std::string Holds(const std::string& lines) {
        const PlayResult result = Play(lines);
        EXPECT_TRUE(result.held) << result.errors << result.transcript;
        return result.transcript;
    }

    FailingFileSystem Files;
    host::Actor Actor;

private:
    ScratchFolder folder_;
    Places places_;
};

} // namespace vexora::test
