#include "qt/QtActor.h"

#include <functional>

#include <gtest/gtest.h>

#include "host/Actor.h"
#include "qt/EveryKind.h"
#include "qt/SilentDesktop.h"

namespace vexora::qt::test {

namespace {

using Doing = std::function<void(host::Actor&, EveryKind&)>;

std::string After(host::Actor& actor, const Doing& doing) {
    SilentDesktop desktop(actor);
    ui::Forms forms(desktop);
    actor.Attach(forms);
    EveryKind& form = OpenEveryKind();
    actor.Settle();
    doing(actor, form);
    actor.Settle();
    return form.State();
}

/// Both fronts do the same, and what is left must be the same; the answer is that state.
std::string OnBoth(const Doing& doing) {
    host::Actor models;
    const std::string expected = After(models, doing);
    QtActor windows;
    EXPECT_EQ(After(windows, doing), expected);
    return expected;
}

bool Holds(const std::string& state, const std::string& line) {
    return state.find(line + "\n") != std::string::npos;
}

} // namespace

TEST(QtActor, TypesIntoFieldsLikeTheModels) {
    const std::string state = OnBoth([](host::Actor& actor, EveryKind& form) {
        actor.Type(form.txtName, "a\xC3\xA4 2#c");
        actor.PressKey(form.txtName, ui::ParseKey("Left"));
        actor.PressKey(form.txtName, ui::ParseKey("Backspace"));
        actor.Type(form.txtDigits, "1x2\t34");
        actor.Type(form.txtNotes, "\nline");
        actor.Set(form.txtDigits, "77.10");
        actor.Set(form.cboUnit, "MPa");
        actor.Type(form.cboUnit, "/s");
    });
    EXPECT_TRUE(Holds(state, "txtName: a\xC3\xA4 2c"));
    EXPECT_TRUE(Holds(state, "txtDigits: 77.10"));
    EXPECT_TRUE(Holds(state, "cboUnit: MPa/s *"));
}

TEST(QtActor, OneLineOfWhatIsPastedStaysInAFieldOfOneLine) {
    const std::string state = OnBoth([](host::Actor& actor, EveryKind& form) {
        const ui::Key paste = ui::ParseKey("Ctrl+V");
        actor.Type(form.txtName, "ab");
        actor.PressKey(form.txtName, ui::ParseKey("Left"));
        actor.ClipboardText("\tx\r\ny\n");
        actor.PressKey(form.txtName, paste);
        actor.Type(form.txtName, "z");
        actor.PressKey(form.cboUnit, paste);
        actor.PressKey(form.txtNotes, paste);
        actor.Set(form.txtDigits, "12.5\t\n");
        actor.TypeCell(form.tblData, 1, 1, "300\n");
    });
    for (const char* line :
         {"txtName: ax yzb", "cboUnit: x y", "txtDigits: 12.5", "cell 1 1 = 300"})
        EXPECT_TRUE(Holds(state, line)) << line << '\n' << state;
    EXPECT_NE(state.find("txtNotes: \tx\ny\n"), state.npos) << state;
}

TEST(QtActor, KeysFollowTheRulesOfTheForm) {
    const std::string state = OnBoth([](host::Actor& actor, EveryKind& form) {
        actor.PressKey(form.txtName, ui::ParseKey("Enter"));
        actor.PressKey(form.txtName, ui::ParseKey("Escape"));
        actor.PressKey(form.txtName, ui::ParseKey("Ctrl+S"));
        actor.PressKey(form.txtName, ui::ParseKey("F1"));
        actor.PressKey(form.txtName, ui::ParseKey("Shift+Tab"));
        actor.PressKey(form.tvwTree, ui::ParseKey("Delete"));
        actor.PressKey(form.tvwTree, ui::ParseKey("Num*"));
        actor.PressKey(form.lstOne, ui::ParseKey("Down"));
        actor.PressKey(form.lstOne, ui::ParseKey("Down"));
        actor.PressKey(form.chkDone, ui::ParseKey("Space"));
        actor.PressKey(form.cmdCancel, ui::ParseKey("Enter"));
    });
    EXPECT_TRUE(Holds(state, "cmdAccept click"));
    EXPECT_TRUE(Holds(state, "Save click"));
    EXPECT_TRUE(Holds(state, "tvwTree key Num*"));
    EXPECT_TRUE(Holds(state, "lstOne: two"));
}

TEST(QtActor, ClicksReachTheControl) {
    const std::string state = OnBoth([](host::Actor& actor, EveryKind& form) {
        actor.Click(form.txtName);
        actor.Click(form.txtPick);
        actor.Click(form.cmdAccept);
        actor.Click(form.AddReact);
        actor.Click(form.Save);
        actor.Click(form.Deep);
        actor.Check(form.chkDone, true);
        actor.Check(form.optGas, true);
        actor.Click(form.optLiquid);
        actor.DoubleClick(form.lstOne);
        actor.DoubleClick(form.txtPick);
        actor.Click(form.cmdCancel);
    });
    EXPECT_TRUE(Holds(state, "Deep click"));
    EXPECT_TRUE(Holds(state, "txtPick double click"));
    EXPECT_TRUE(Holds(state, "optLiquid click"));
}

TEST(QtActor, ListsAndPagesAreChosenByTheMouse) {
    const std::string state = OnBoth([](host::Actor& actor, EveryKind& form) {
        actor.Choose(form.lstOne, 2);
        actor.Choose(form.lstOne, 2);
        actor.DropDown(form.cboType);
        actor.Choose(form.cboType, 3);
        actor.DropDown(form.cboUnit);
        actor.Choose(form.cboUnit, 1);
        actor.Choose(form.tabPages, 1);
        actor.Choose(form.tabPages, 2);
        actor.Select(form.lstMany, 0, true);
        actor.Select(form.lstMany, 2, true);
        actor.Select(form.lstMany, 0, false);
        actor.Select(form.lstMarks, 1, true);
        actor.Select(form.lstMarks, 2, true);
        actor.Select(form.lstMarks, 1, false);
    });
    EXPECT_TRUE(Holds(state, "cboType: Report"));
    EXPECT_TRUE(Holds(state, "tabPages: Notes"));
    EXPECT_TRUE(Holds(state, "001 001"));
}

TEST(QtActor, TablesTreesAndDrawingsTakeTheMouse) {
    const std::string state = OnBoth([](host::Actor& actor, EveryKind& form) {
        actor.TypeCell(form.tblData, 1, 1, "298.15");
        actor.PasteCells(form.tblData, 2, 1, "300\t101\n310\t102\n");
        actor.SelectBlock(form.tblData, {1, 1, 3, 2});
        actor.ClickNode(form.tvwTree, *form.tvwTree.Find("S1"));
        actor.ReachNode(form.tvwTree, *form.tvwTree.Find("L2"));
        actor.DoubleClickNode(form.tvwTree, *form.tvwTree.Find("L1"));
        actor.Drop(form.tvwTree, "/tmp/paper.txt");
        actor.Choose(form.tabPages, 1);
        actor.Drag(form.picGraph, 100, 200, 300.25, 400);
        actor.Hover(form.picGraph, 10, 20);
    });
    EXPECT_TRUE(Holds(state, "cell 3 2 = 102"));
    EXPECT_TRUE(Holds(state, "open L1"));
    EXPECT_TRUE(Holds(state, "drop /tmp/paper.txt"));
    EXPECT_TRUE(Holds(state, "release 300 400"));
}

TEST(QtActor, ClosingTheWindowAsksTheForm) {
    const std::string state = OnBoth([](host::Actor& actor, EveryKind& form) {
        actor.CloseWindow(form);
        actor.Check(form.chkDone, true);
        actor.CloseWindow(form);
    });
    EXPECT_TRUE(Holds(state, "caret 0 open no"));
}

TEST(QtActor, AFaultOfAHandlerComesOutOfTheAction) {
    QtActor actor;
    SilentDesktop desktop(actor);
    ui::Forms forms(desktop);
    EveryKind& form = OpenEveryKind();
    form.cmdAccept.OnClick = [] { throw std::runtime_error("no such thing"); };
    EXPECT_THROW(actor.Click(form.cmdAccept), std::runtime_error);
    EXPECT_NO_THROW(actor.Click(form.cmdCancel));
}

TEST(QtActor, QuestionsAreAnsweredOnRealBoxes) {
    QtActor actor;
    const ui::Message question{"Save?", "Vexora", ui::MessageButtons::YesNoCancel,
                               ui::Answer::Cancel};
    for (const ui::Answer answer : {ui::Answer::Yes, ui::Answer::No, ui::Answer::Cancel})
        EXPECT_NO_THROW(actor.Answer(question, answer));
    EXPECT_THROW(actor.Answer(question, ui::Answer::Ok), host::ActorError);
    EXPECT_NO_THROW(actor.Answer(ui::Input{"Name?", "", "old"}, std::string("Ann \xC3\xA9")));
    EXPECT_NO_THROW(actor.Answer(ui::Input{"Name?", "", "old"}, std::nullopt));
    EXPECT_NO_THROW(actor.Answer(ui::FileChoice{}, std::string("/tmp/a.txt")));
}

} // namespace vexora::qt::test
