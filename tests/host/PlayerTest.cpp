#include "host/Player.h"

#include <gtest/gtest.h>

#include "support/SmallProgram.h"

namespace vexora::test {
namespace {

/// The script holds; what it says on standard error is shown when it does not.
void Holds(const std::string& lines) {
    const SmallPlay play = PlaySmall(lines);
    EXPECT_TRUE(play.held) << lines << '\n' << play.errors;
}

/// The last line fails, and the failure tells of this.
void Fails(const std::string& lines, const std::string& found) {
    const SmallPlay play = PlaySmall(lines);
    EXPECT_FALSE(play.held) << lines;
    EXPECT_NE(play.errors.find(found), std::string::npos) << lines << '\n' << play.errors;
}

TEST(Player, TranscriptTellsCommandsWindowsAndMessages) {
    const SmallPlay play = PlaySmall(R"(click frmSmall.cmdTell
click frmSmall.cmdAsk   # asks
answer Yes "Really?" "Small"
click frmSmall.cmdOpen
set frmSmallModal.txtAnswer "a \"b\""
click frmSmallModal.cmdAccept
key frmSmall.txtName "F1"
quit
answer Yes
)");
    EXPECT_TRUE(play.held) << play.errors;
    EXPECT_EQ(play.transcript, R"(> start
[open] frmSmall "Small"
> click frmSmall.cmdTell
[message] "Small" "Two\nlines" (OK) -> OK
> click frmSmall.cmdAsk   # asks
[message] "Small" "Really?" (Yes/No) -> Yes
> answer Yes "Really?" "Small"
> click frmSmall.cmdOpen
[open] frmSmallModal "Modal"
> set frmSmallModal.txtAnswer "a \"b\""
> click frmSmallModal.cmdAccept
[close] frmSmallModal
> key frmSmall.txtName "F1"
[help] 110
> quit
[message] "" "Close it?" (Yes/No) -> Yes
> answer Yes
[close] frmSmall
)");
}

TEST(Player, SetEntersReplacesAndLeaves) {
    Holds("set frmSmall.txtName \"abc\"\n"
          "expect frmSmall.lblResult \"got change lost\"\n"
          "expect frmSmall.txtName \"abc\"\n");
}

TEST(Player, TypedCharactersPassTheKeyHandlersAndFollowTheFocus) {
    Holds("type frmSmall.txtName \"a*b>cd\"\n"
          "expect frmSmall.txtName \"ab\"\n"
          "expect frmSmall.txtNotes \"cd\"\n"
          "expect frmSmall.txtNotes focused\n"
          "key frmSmall.txtNotes \"Enter\"\n"
          "key frmSmall.txtNotes \"Backspace\"\n"
          "expect frmSmall.txtNotes \"cd\"\n");
}

TEST(Player, ControlsAreReachedAsOnTheScreen) {
    Holds(R"(choose frmSmall.cboKind "liquid"
expect frmSmall.cboKind "liquid"
choose frmSmall.cboUnit #1
expect frmSmall.cboUnit "C"
set frmSmall.cboUnit "mK"
expect frmSmall.cboUnit "mK"
select frmSmall.lstMany "red" on
select frmSmall.lstMany #2 on
expect frmSmall.lstMany "red; blue"
expect frmSmall.lstMany has "green"
expect frmSmall.lstMany lacks "pink"
expect frmSmall.lstMany count 3
check frmSmall.chkAll on
expect frmSmall.chkAll on
check frmSmall.optTwo on
click frmSmall.optOne
expect frmSmall.optTwo off
set frmSmall.txtCoeff(1) "1.50"
expect frmSmall.txtCoeff(1) contains ".5"
expect frmSmall.txtCoeff(0) empty
click frmSmall.mnuSave
expect frmSmall.lblResult "saved"
drag frmSmall.picPlot 1 2.5 99 3
expect frmSmall.lblResult "right"
tab frmSmall.tabPages "Second"
set frmSmall.txtSecondPage "x"
expect frmSmall.txtName hidden
)");
}

TEST(Player, GridTakesTypedAndPastedCells) {
    Holds(R"(cell frmSmall.grdData 1 0 "300"
cells frmSmall.grdData 1 1 <<END
10
20
END
expect frmSmall.grdData cell 1 0 "300"
expect frmSmall.grdData cell 2 1 "20"
expect frmSmall.grdData count 3
block frmSmall.grdData 1 0 2 1
key frmSmall.grdData "Ctrl+C"
expect clipboard "300\t10\n\t20"
clipboard <<X
pasted
X
key frmSmall.txtName "Ctrl+V"
expect frmSmall.txtName "pasted"
)");
}

TEST(Player, TreeIsReachedByLabelsAndKeys) {
    Holds(R"(node "Source / water / ice"
expect frmSmall.lblResult "C1"
expect selected "Source / wat*"
keynode key "C2"
expect selected "Source / benzene"
expect frmSmall.lblResult "C1"
expect no node "Source / toluene"
expect tree <<END
Source
  water / ice
  benzene
END
)");
}

TEST(Player, QuestionsAreAnsweredByTheNextLines) {
    Holds(R"(click frmSmall.cmdFile
file "a b.txt"
expect frmSmall.lblResult "a b.txt"
click frmSmall.cmdInput
input cancel
expect frmSmall.lblResult "no input"
click frmSmall.cmdTell
answer OK
expect message "Two\nlines" "Small"
note "nothing happens"
expect message "Two\nlines"
click frmSmall.txtName
expect no message
)");
}

TEST(Player, WhatAPersonCouldNotDoFailsTheLine) {
    Fails("set frmSmall.txtLocked \"x\"", "txtLocked is locked");
    Fails("type frmSmall.cboKind \"x\"", "cboKind takes none");
    Fails("click frmSmall.cmdNone", "frmSmall has no such control");
    Fails("click frmOther.cmdNone", "frmOther is not open");
    Fails("choose frmSmall.cboKind \"gas\"", "\"solid\", \"liquid\"");
    Fails("set frmSmall.txtSecondPage \"x\"", "txtSecondPage is hidden");
    Fails("cell frmSmall.grdData 0 0 \"x\"", "a fixed cell");
    Fails("cell frmSmall.grdData 7 0 \"x\"", "3 rows and 2 columns");
    Fails("drag frmSmall.picPlot 1 1 101 1", "a width of 100 and a height of 50");
    Fails("click frmSmall.cmdOpen\nclick frmSmall.cmdTell", "frmSmall stands behind frmSmallModal");
    Fails("click frmSmall.cmdOpen\nquit", "frmSmall stands behind frmSmallModal");
    Fails("click frmSmall.lblResult", "it does not");
    Fails("check frmSmall.optOne on\ncheck frmSmall.optOne off", "only another option");
    Fails("node \"Source / toluene\"", "none");
    Fails("answer Yes", "the workbench has asked nothing");
    Fails("start", "it is running");
}

TEST(Player, ExpectationsThatDoNotHoldFail) {
    Fails("expect frmSmall.txtName \"x\"", "found: \"\"");
    Fails("expect frmSmall.txtName disabled", "it is not");
    Fails("expect frmSmall.lstMany count 2", "count 3: \"red\", \"green\", \"blue\"");
    Fails("expect frmSmall.lstMany has #3", "\"red\"");
    Fails("expect closed frmSmall", "it is open");
    Fails("expect modal frmSmall", "it is not modal");
    Fails("expect message \"Hello\"", "no message");
    Fails("click frmSmall.cmdTell\nexpect no message", "\"Two\\nlines\"");
    Fails("expect tree <<END\nSource\n  benzene\nEND", "line 2 \"  water / ice\"");
    Fails("expect selected \"Source\"", "no node");
    Fails("expect file \"/nowhere/x\" contains \"a\"", "none");
}

TEST(Player, AnUnansweredOrWronglyAnsweredQuestionFails) {
    Fails("click frmSmall.cmdAsk\nexpect frmSmall.lblResult \"no\"", "\"Really?\"");
    Fails("click frmSmall.cmdAsk\nanswer OK", "(Yes/No)");
    Fails("click frmSmall.cmdAsk\nanswer Yes \"Sure?\"", "\"Really?\"");
    Fails("click frmSmall.cmdAsk\nanswer Yes \"Really?\" \"Big\"", "\"Small\"");
    Fails("click frmSmall.cmdFile", "save \"new.txt\"");
    Fails("click frmSmall.cmdInput", "\"Which?\"");
}

TEST(Player, FailureTellsPlaceWantedFoundAndOpenForms) {
    const SmallPlay play =
        PlaySmall("click frmSmall.cmdOpen\nexpect frmSmallModal.txtAnswer \"x\"\n"
                  "note \"not reached\"\n");
    EXPECT_EQ(play.errors, "small.vxs:3: error: expect frmSmallModal.txtAnswer \"x\"\n"
                           "  wanted: \"x\"\n"
                           "  found: \"\"\n"
                           "  open forms: frmSmall, frmSmallModal (modal)\n");
    EXPECT_EQ(play.transcript.find("not reached"), std::string::npos);
}

TEST(Player, GoesOnBehindAFailedExpectationWhenAsked) {
    host::PlayOptions options;
    options.keepGoing = true;
    const SmallPlay play =
        PlaySmall("expect frmSmall.txtName \"x\"\nexpect frmSmall.txtName \"y\"\n"
                  "click frmSmall.cmdNone\nnote \"not reached\"\n",
                  options);
    EXPECT_FALSE(play.held);
    EXPECT_NE(play.errors.find("small.vxs:3: error: "), std::string::npos);
    EXPECT_NE(play.errors.find("small.vxs:4: error: "), std::string::npos);
    EXPECT_EQ(play.transcript.find("not reached"), std::string::npos);
}

TEST(Player, EndOfTheScriptBelowAModalFormEndsTheProgram) {
    const SmallPlay play = PlaySmall("click frmSmall.cmdOpen\nset frmSmallModal.txtAnswer \"x\"\n");
    EXPECT_TRUE(play.held) << play.errors;
    EXPECT_EQ(play.transcript, "> start\n[open] frmSmall \"Small\"\n> click frmSmall.cmdOpen\n"
                               "[open] frmSmallModal \"Modal\"\n"
                               "> set frmSmallModal.txtAnswer \"x\"\n");
    EXPECT_FALSE(ui::Forms::IsPresent());
}

/// A front whose event handling no exception may pass, as that of windows.
class WindowLikeActor : public host::Actor {
public:
    bool LetsExceptionsThrough() const override { return false; }
};

TEST(Player, HandlersThatReturnWhenTheProgramIsOverChangeNothingOnDisk) {
    const std::string lines = "click frmSmall.cmdOpen\nset frmSmallModal.txtAnswer \"x\"\n";
    WindowLikeActor windows;
    const SmallPlay play = PlaySmall(lines, {}, windows);
    EXPECT_EQ(AfterModal(), "the program is over");
    EXPECT_EQ(play.transcript, PlaySmall(lines).transcript);
    PlaySmall(lines + "click frmSmallModal.cmdAccept\n", {}, windows);
    EXPECT_EQ(AfterModal(), "No such file or directory");
}

TEST(Player, AHiddenModalFormGoesOnWithItsCaller) {
    Holds("click frmSmall.cmdOpen\nset frmSmallModal.txtAnswer \"x\"\n"
          "click frmSmallModal.cmdAgain\n"
          "expect closed frmSmallModal\n"
          "expect frmSmall.lblResult \"modal said x\"\n"
          "click frmSmall.cmdOpen\nexpect modal frmSmallModal\n"
          "key frmSmallModal.txtAnswer \"Enter\"\n"
          "expect frmSmall.lblResult \"modal said x\"\n");
}

TEST(Player, PrintShowsTheStateOfControls) {
    const SmallPlay play = PlaySmall("check frmSmall.chkAll on\nprint frmSmall.chkAll\n"
                                     "print frmSmall.txtLocked\nprint frmSmall.cboKind\n"
                                     "print forms\n");
    const std::string shown = play.transcript.substr(play.transcript.find("> print frmSmall.chk"));
    EXPECT_EQ(shown, "> print frmSmall.chkAll\nchkAll CheckBox \"All\" on focused\n"
                     "> print frmSmall.txtLocked\ntxtLocked TextBox \"fixed\" locked\n"
                     "> print frmSmall.cboKind\ncboKind ComboBox \"\"\n  \"solid\"\n  \"liquid\"\n"
                     "> print forms\nfrmSmall \"Small\"\n");
}

} // namespace
} // namespace vexora::test
