#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <streambuf>

#include <gtest/gtest.h>

#include "globals/KVOGlobal.h"
#include "host/Actor.h"
#include "host/PlayMain.h"
#include "host/PosixRecoveryFolder.h"
#include "host/TreeText.h"
#include "host/WorkbenchProgram.h"
#include "records/RecordReader.h"
#include "records/clsR.h"
#include "shell/Recovery.h"
#include "support/ScratchFolder.h"
#include "support/Sessions.h"

namespace vexora::test {
namespace {

namespace fs = std::filesystem;

std::string Content(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// All that is in memory: what the tree shows, what a save prints, and what it would leave out.
std::string InMemory() {
    std::string text = host::TreeText(*Globals().tvwTree) + "\n" + DocumentInMemory();
    for (const auto& source : Globals().recR)
        text += "registered as " + source->RegisteredAs + "\n";
    return text + PrintDocument().text;
}

/// A transcript that does something as soon as the script notes "now".
class AtTheNote : public std::streambuf {
public:
    explicit AtTheNote(std::function<void()> act) : act_(std::move(act)) {}

protected:
    int_type overflow(int_type c) override {
        text_ += static_cast<char>(c);
        if (text_.ends_with("> note \"now\"\n")) act_();
        return c;
    }

private:
    std::string text_;
    std::function<void()> act_;
};

class RecoveryTest : public ::testing::Test {
protected:
    RecoveryTest() { fs::create_directory(folder_.Path("out")); }

    std::string Home() const { return folder_.Path("home"); }
    std::string Out(const std::string& name) const { return folder_.Path("out/" + name); }

    /// Plays lines as the program does; what is in memory at `note "now"` goes into a file.
    int Play(const std::string& lines, std::function<void()> atNote = {}) {
        const std::string script = folder_.Path("lines.vxs");
        std::ofstream(script) << lines;
        AtTheNote notes([&] {
            std::ofstream(Out("memory")) << InMemory();
            if (atNote) atNote();
        });
        std::ostream transcript(&notes);
        std::ostringstream errors;
        host::Actor actor;
        const int status =
            host::PlayMain({"--recovery", "--home", Home(), "--date", "2026-01-15", "--var",
                            "OUT=" + folder_.Path("out"), script},
                           {actor, transcript, errors, "vexora-tests", host::WorkbenchIn});
        EXPECT_EQ(status, 0) << errors.str();
        return status;
    }
    /// The same in a process of its own, which is killed at the note.
    void PlayAndKill(const std::string& lines) {
        const pid_t child = fork();
        if (child == 0) {
            Play(lines, [] { ::kill(::getpid(), SIGKILL); });
            ::_exit(1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
    }
    /// Files beside the program's state.
    std::string Left() const {
        std::string names;
        const std::string folder = Home() + "/recovery";
        if (!fs::exists(folder)) return {};
        for (const auto& entry : fs::directory_iterator(folder))
            names += entry.path().filename().string() + "\n";
        return names;
    }

    ScratchFolder folder_;
};

constexpr const char* Compounds =
    "include \"" VEXORA_SOURCE_DIR "/tests/sessions/mixtures/ethanol_and_water.inc\"\n";
constexpr const char* Offered =
    "The program ended without saving a new document.\\nDo you want to restore the document as it "
    "was after the last accepted dialog?";

std::string Asked(const std::string& answer) {
    return "start\ninput cancel\nanswer " + answer + " \"" + Offered + "\" \"Recovery\"\n";
}

} // namespace

// The dialog of compounds is still open with a half-typed one behind the last that was accepted;
// the mixture has no data and the compound no sample, and neither would stand in a saved file.
TEST_F(RecoveryTest, AProgramKilledBetweenTwoDialogsLosesNothingThatWasAccepted) {
    PlayAndKill(std::string(Compounds) + "node \"2026*\"\nclick frmMain.AddComp\n"
                                         "set frmSubst.txtRN2 \"67-56-1\"\n"
                                         "set frmSubst.txtName \"methanol\"\n"
                                         "set frmSubst.txtFormula \"CH4O\"\n"
                                         "click frmSubst.cmdAccept\n"
                                         "set frmSubst.txtName \"propanol\"\n"
                                         "note \"now\"\n"
                                         "click frmSubst.cmdAccept\n");
    const std::string before = Content(Out("memory"));
    EXPECT_NE(before.find("methanol"), std::string::npos) << before;
    fs::remove(Out("memory"));

    // Restored, killed again with nothing done, and offered again.
    PlayAndKill(Asked("Yes") + "note \"now\"\n");
    EXPECT_EQ(Content(Out("memory")), before);
    Play(Asked("Yes") + "expect frmMain.lblStatus contains \"not saved\"\n"
                        "note \"now\"\n"
                        "quit\nanswer Yes\nfile \"${OUT}/saved.txt\"\n");
    EXPECT_EQ(Content(Out("memory")), before);
    EXPECT_EQ(Left(), "");
    Play("start \"${OUT}/saved.txt\"\ninput cancel\nexpect selected \"2026 com & 1\"\nquit\n");
}

TEST_F(RecoveryTest, WhatIsSavedOrGivenUpIsNotOffered) {
    const std::string water = VEXORA_SOURCE_DIR "/tests/sessions/shell/water.txt";
    Play(std::string(Compounds) + "click frmMain.Save\nfile \"${OUT}/mine.txt\"\n");
    EXPECT_EQ(Left(), "");
    Play("start\ninput cancel\nquit\n");
    const std::string ends[] = {"quit\nanswer No\n", "drop \"" + water + "\"\nanswer No\n",
                                "click frmMain.New\nanswer No\n"};
    for (const std::string& end : ends) {
        PlayAndKill("start \"${OUT}/mine.txt\"\ninput cancel\n"
                    "node \"2026* / water / Sample 2*\"\nclick frmMain.mnuDelete\nanswer Yes\n"
                    "note \"now\"\n");
        EXPECT_NE(Left(), "");
        // The killed one is taken; what becomes of the document then becomes of the copy.
        Play("start\ninput cancel\nanswer Yes\n"
             "expect frmMain.lblStatus contains \"mine.txt - not saved\"\n" +
             end);
        EXPECT_EQ(Left(), "") << end;
    }
    // A deletion that was taken back leaves nothing to restore.
    Play("start \"${OUT}/mine.txt\"\ninput cancel\n"
         "node \"2026* / water / Sample 2*\"\nclick frmMain.mnuDelete\nanswer Yes\n"
         "click frmMain.mnuUndoDelete\n");
    EXPECT_EQ(Left(), "");
}

TEST_F(RecoveryTest, ARestoredDocumentIsSavedByTheUsualRules) {
    Play(std::string(Compounds) + "click frmMain.Save\nfile \"${OUT}/mine.txt\"\n");
    PlayAndKill("start \"${OUT}/mine.txt\"\ninput cancel\n"
                "node \"2026* / water / Sample 2*\"\nclick frmMain.mnuDelete\nanswer Yes\n"
                "note \"now\"\n");
    const std::string present = Content(Out("mine.txt"));
    std::ofstream(Out("mine.txt"), std::ios::app) << "^S 9 xx\n";
    Play("start\ninput cancel\nanswer Yes\nclick frmMain.Save\n"
         "answer Cancel \"The file has been changed by another program since it was opened.\"\n"
         "quit\nanswer Yes\nanswer Yes\n");
    EXPECT_EQ(Content(Out("mine.txt.bak")), present + "^S 9 xx\n");
    EXPECT_EQ(Content(Out("mine.txt")).find("^S 2"), std::string::npos);
}

// Programs that live keep their copies; Escape decides nothing; one that was declined or cannot be
// read is not asked about again.
TEST_F(RecoveryTest, EachProgramHasItsOwnCopy) {
    const std::string place = folder_.Path("copies");
    std::string error;
    host::PosixRecoveryFolder first(place);
    const std::string copy = first.Own(error);
    std::ofstream(copy) << "text";
    {
        host::PosixRecoveryFolder second(place);
        EXPECT_TRUE(second.Orphans().empty());
        const std::string other = second.Own(error);
        EXPECT_NE(other, copy);
        std::ofstream(other) << "text";
    }
    host::PosixRecoveryFolder third(place), fourth(place);
    ASSERT_EQ(third.Orphans().size(), 1U);
    EXPECT_TRUE(fourth.Orphans().empty()); // being offered by another one
    third.LeaveOthers();
    EXPECT_EQ(fourth.Orphans().size(), 1U);

    Play(Compounds);
    Play(Asked("Cancel") + "expect caption frmMain "
                           "\"Vexora - Thermophysical and Thermochemical Data\"\nquit\n");
    Play(Asked("No") + "quit\nstart\ninput cancel\nquit\n");
    EXPECT_EQ(Left(), "");
    std::ofstream(Home() + "/recovery/7-1.recovery") << "vexora recovery 1\nfile\nrecords\n";
    Play("start\ninput cancel\nanswer OK\nquit\nstart\ninput cancel\nexpect no message\nquit\n");
    EXPECT_EQ(Left(), "7-1.recovery.unread\n");
}

// A file stands where the folder should be.
TEST_F(RecoveryTest, WhatCannotBeWrittenIsToldOnceAndStopsNothing) {
    fs::create_directories(Home());
    std::ofstream(Home() + "/recovery") << "";
    Play("include \"" VEXORA_SOURCE_DIR "/tests/sessions/compounds/a_source.inc\"\n"
         "expect no message\n"
         "expect frmMain.lblStatus contains \"no recovery copy can be written: Not a directory\"\n"
         "click frmMain.AddComp\n"
         "set frmSubst.txtRN2 \"7732-18-5\"\n"
         "set frmSubst.txtName \"water\"\n"
         "set frmSubst.txtFormula \"H2O\"\n"
         "click frmSubst.cmdAccept\n"
         "click frmSubst.cmdAccept\n"
         "expect frmMain.lblStatus contains \"New document - not saved - new: water\"\n");
}

} // namespace vexora::test
