#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>

#include "host/PlayMain.h"
#include "reference/Text.h"
#include "support/Sessions.h"
#include "support/WorkbenchFixture.h"
#include "support/Xml.h"

namespace vexora::test {
namespace {

class Sessions : public ::testing::TestWithParam<std::string> {};

TEST_P(Sessions, EveryLineHolds) {
    const SessionPlay play = PlaySession(GetParam());
    EXPECT_EQ(play.status, 0) << play.errors << play.transcript;
    for (const auto& [name, text] : play.files)
        EXPECT_TRUE(!text.starts_with("<?xml") || IsWellFormed(text)) << name;
}

INSTANTIATE_TEST_SUITE_P(All, Sessions, ::testing::ValuesIn(SessionFiles()),
                         [](const auto& session) { return SessionName(session.param); });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Sessions);

std::string Content(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(VEXORA_SOURCE_DIR + path, std::ios::binary).rdbuf();
    return content.str();
}

/// An example with the files that it leaves.
struct Example {
    std::string folder, records, golden = folder;
};
const Example Water{"water", "2002wagpru1"};
const Example EthanolWater{"ethanol_water", "1932carlew1"};
const Example Reactions{"reactions", "2026com1", "reactions_example"};
const Example Bio{"bio", "2026com1", "bio_example"};
const Example Hydrates{"hydrates", "2026com1", "hydrates_example"};

std::string RecordsOf(const Example& example) {
    return Content("/examples/" + example.folder + "/" + example.records + ".txt");
}

// The numbers of the expected exports were worked out from the figures of the papers.
TEST(Examples, LeaveTheFilesThatAreExpected) {
    for (const Example& example : {Water, EthanolWater, Reactions, Bio, Hydrates}) {
        const std::string name = example.folder;
        const SessionPlay play =
            PlaySession(VEXORA_SOURCE_DIR "/examples/" + name + "/" + name + ".vxs");
        ASSERT_EQ(play.status, 0) << play.errors;
        EXPECT_EQ(play.files.at(example.records + ".txt"), RecordsOf(example));
        const std::string& xml = play.files.at(example.records + ".xml");
        EXPECT_EQ(Replace(xml, "Vexora " VEXORA_VERSION, "Vexora VERSION"),
                  Content("/tests/export/golden/" + example.golden + ".xml"));
        EXPECT_TRUE(IsWellFormed(xml));
    }
}

/// What a person does of a script: presses, clicks, choices, entries, answers and chosen files.
/// What is copied elsewhere, and what is only looked at, is none of it.
std::size_t ActionsIn(const std::string& script) {
    static const std::set<std::string> actions = {
        "click", "dblclick", "set",     "type",    "key",   "choose", "select", "check",
        "tab",   "node",     "dblnode", "keynode", "cell",  "cells",  "block",  "drag",
        "hover", "drop",     "close",   "answer",  "input", "file",   "quit"};
    std::istringstream lines(script);
    std::size_t count = 0;
    std::string end; // of a block that is passed over
    for (std::string line; std::getline(lines, line);) {
        if (!end.empty()) {
            if (line == end) end.clear();
            continue;
        }
        count += actions.count(line.substr(0, line.find(' ')));
        if (const auto at = line.rfind(" <<"); at != line.npos) end = line.substr(at + 3);
    }
    return count;
}

// The first count stands for how it was done before forms led on and remembered.
TEST(Examples, OfWaterIsMadeWithHalfTheHands) {
    const std::string folder = VEXORA_SOURCE_DIR "/examples/water/";
    const SessionPlay play = PlaySession(folder + "water_short.vxs");
    ASSERT_EQ(play.status, 0) << play.errors;
    EXPECT_EQ(play.files.at(Water.records + ".txt"), RecordsOf(Water));
    const std::size_t all = ActionsIn(Content("/examples/water/water.vxs"));
    const std::size_t few = ActionsIn(Content("/examples/water/water_short.vxs"));
    std::cout << "The example of water takes " << few << " actions, step by step " << all << "\n";
    EXPECT_GT(all, 160U);
    EXPECT_LE(few, 90U);
}

TEST(Examples, OfMixturesDoNotChangeByAnotherLoadAndSave) {
    const SessionPlay play =
        PlaySession(VEXORA_SOURCE_DIR "/tests/sessions/mixtures/from_papers_to_file.vxs");
    ASSERT_EQ(play.status, 0) << play.errors;
    EXPECT_EQ(play.files.at("saved_again.txt"), play.files.at("saved.txt"));
}

TEST(Examples, AreSavedAsTheyWereWhenAcceptedUnchanged) {
    const struct {
        const Example& example;
        std::string folder, saved;
    } cases[] = {{Water, "road", "example.txt"},
                 {Reactions, "reactions", "saved_again.txt"},
                 {Bio, "bio", "saved_again.txt"},
                 {Hydrates, "structures", "saved_again.txt"}};
    for (const auto& [example, folder, saved] : cases) {
        const SessionPlay play = PlaySession(VEXORA_SOURCE_DIR "/tests/sessions/" + folder +
                                             "/the_example_reopened.vxs");
        ASSERT_EQ(play.status, 0) << play.errors;
        EXPECT_EQ(play.files.at(saved), RecordsOf(example));
    }
}

/// Forms, menu entries and toolbar buttons by the names under which scripts address them.
std::vector<std::string> NamesToVisit(ui::Forms& forms) {
    std::vector<std::string> names;
    for (const std::string& form : forms.KnownNames()) {
        names.push_back(form);
        for (const ui::Control* control : forms.Get(form).Controls()) {
            const bool isEntry = control->Kind() == ui::ControlKind::MenuItem &&
                                 static_cast<const ui::MenuItem*>(control)->Children().empty();
            if (isEntry || control->Kind() == ui::ControlKind::ToolButton)
                names.push_back(form + "." + control->Name());
        }
    }
    return names;
}

bool Occurs(const std::string& text, const std::string& name) {
    for (std::size_t at = text.find(name); at != text.npos; at = text.find(name, at + 1)) {
        const char behind = at + name.size() < text.size() ? text[at + name.size()] : ' ';
        if (!std::isalnum(static_cast<unsigned char>(behind)) && behind != '_') return true;
    }
    return false;
}

/// With the parts that sessions include.
std::string TextOfAllSessions() {
    std::ostringstream text;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(VEXORA_SOURCE_DIR "/tests/sessions")) {
        const auto ending = entry.path().extension();
        if (ending == ".vxs" || ending == ".inc") text << std::ifstream(entry.path()).rdbuf();
    }
    return text.str();
}

class SessionCoverage : public WorkbenchFixture {};

TEST_F(WorkbenchFixture, AConfiguredHomeStartsWithTheNameAlone) {
    Configure();
    Holds("start\ninput cancel\nexpect open frmMain\nexpect frmMain.tvwTree empty\n");
    EXPECT_FALSE(Play("start\nexpect open frmMain\n").held);
}

// Buttons that open no dialog yet. A name that a session visits, or that is gone, has to leave the
// list, so that it can only shrink.
const std::set<std::string> Unvisited = {};

TEST_F(SessionCoverage, FormsAndCommandsOccurInASession) {
    const std::string text = TextOfAllSessions();
    std::set<std::string> missing;
    host::Player desktop(Actor, Files, nullptr, {}, std::cout, std::cerr);
    Workbench workbench(desktop, {Home(), VEXORA_SHARE_DIR});
    for (const std::string& name : NamesToVisit(workbench.Forms())) {
        if (!Occurs(text, name)) missing.insert(name);
    }
    EXPECT_EQ(missing, Unvisited);
}

} // namespace
} // namespace vexora::test
