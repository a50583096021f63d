#include "ui/Form.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "support/SmallProgram.h"
#include "support/StrictDesktop.h"
#include "ui/Forms.h"

namespace vexora::test {
namespace {

class ModalDesktop : public StrictDesktop {
public:
    std::function<void(ui::Form&)> OnModal;
    void RunModal(ui::Form& form) override { OnModal(form); }
};

class FormTest : public ::testing::Test {
protected:
    FormTest() {
        forms_.Register<frmSmall>("frmSmall");
        forms_.Register<frmSmallModal>("frmSmallModal");
    }
    frmSmall& Small() { return forms_.Get<frmSmall>("frmSmall"); }

    ModalDesktop desktop_;
    ui::Forms forms_{desktop_};
};

TEST_F(FormTest, FocusStartsAtTheFirstFieldAndFollowsTab) {
    frmSmall& form = Small();
    form.Show();
    EXPECT_TRUE(form.txtName.HasFocus());
    form.UserKey(ui::ParseKey("Tab"));
    EXPECT_TRUE(form.txtLocked.HasFocus());
    form.UserKey(ui::ParseKey("Shift+Tab"));
    EXPECT_TRUE(form.txtName.HasFocus());
    form.UserKey(ui::ParseKey("Shift+Tab"));
    EXPECT_TRUE(form.cmdInput.HasFocus());
}

TEST_F(FormTest, FocusPassesOverWhatCannotTakeIt) {
    frmSmall& form = Small();
    form.Show();
    form.txtLocked.Enabled(false);
    form.txtNotes.Visible(false);
    form.UserKey(ui::ParseKey("Tab"));
    EXPECT_TRUE(form.cboKind.HasFocus());
    form.txtNotes.SetFocus();
    form.lblResult.SetFocus();
    EXPECT_TRUE(form.cboKind.HasFocus());
}

TEST_F(FormTest, TabKeepsToThePageInSightAndARefusalTurnsUpThatOfItsField) {
    frmSmall& form = Small();
    form.Show();
    for (int n = 0; n < 40; ++n) {
        form.UserKey(ui::ParseKey("Tab"));
        ASSERT_FALSE(form.txtSecondPage.HasFocus());
    }
    desktop_.Expect("Enter it");
    form.Refuse(form.txtSecondPage, "Enter it");
    EXPECT_TRUE(form.txtSecondPage.HasFocus());
    EXPECT_EQ(form.tabPages.Chosen(), "Second");
    form.txtName.SetFocus();
    EXPECT_EQ(form.tabPages.Chosen(), "First");
}

TEST_F(FormTest, AFrameHidesAndDisablesWhatStandsInIt) {
    ui::Form form("frmFrames", "Frames");
    ui::Frame outer(form, "fraOuter");
    ui::Frame inner(form, "fraInner");
    ui::TextBox box(form, "txtBox");
    form.Arrangement = ui::Column({ui::Group(outer, {ui::Group(inner, {box})})});
    EXPECT_EQ(box.Container(), &inner);
    outer.Enabled(false);
    EXPECT_FALSE(box.IsUsable());
    EXPECT_TRUE(box.IsShown());
    outer.Visible(false);
    EXPECT_FALSE(box.IsShown());
    EXPECT_TRUE(box.Visible());
}

TEST_F(FormTest, MenusAreReachedByTheirShortcutUnlessDisabledAbove) {
    frmSmall& form = Small();
    form.Show();
    form.UserKey(ui::ParseKey("Ctrl+S"));
    EXPECT_EQ(form.lblResult.Caption(), "saved");
    form.lblResult.Caption("");
    form.mnuFile.Enabled(false);
    form.UserKey(ui::ParseKey("Ctrl+S"));
    form.mnuSave.UserClick();
    EXPECT_EQ(form.lblResult.Caption(), "");
}

TEST_F(FormTest, AFormThatRefusesToCloseStaysAsItWas) {
    frmSmall& form = Small();
    form.Show();
    desktop_.Expect("Close it?", ui::Answer::No);
    form.UserClose();
    EXPECT_EQ(forms_.Find("frmSmall"), &form);
    desktop_.Expect("Close it?", ui::Answer::Yes);
    form.UserClose();
    EXPECT_EQ(forms_.Find("frmSmall"), nullptr);
    EXPECT_FALSE(form.IsOpen());
    forms_.DropClosed();
}

TEST_F(FormTest, AFormOpenedAgainIsAFreshOne) {
    Small().Show();
    Small().txtName.Text("left over");
    desktop_.Expect("Close it?", ui::Answer::Yes);
    Small().Close();
    Small().Show();
    EXPECT_EQ(Small().txtName.Text(), "");
    EXPECT_THROW(forms_.Get("frmNone"), std::logic_error);
}

int loadsOfUnsound = 0;

class frmUnsound : public ui::Form {
public:
    frmUnsound() : Form("frmUnsound", "Unsound") {}
    void Load() override {
        if (++loadsOfUnsound == 1) throw std::runtime_error("damaged");
    }
};

TEST_F(FormTest, AFormThatCouldNotBeFilledIsNotOpenAndStartsAfresh) {
    loadsOfUnsound = 0;
    forms_.Register<frmUnsound>("frmUnsound");
    ui::Form& first = forms_.Get("frmUnsound");
    EXPECT_THROW(first.ShowModal(), std::runtime_error);
    EXPECT_FALSE(first.IsOpen());
    EXPECT_EQ(forms_.TopModal(), nullptr);
    ui::Form& second = forms_.Get("frmUnsound");
    EXPECT_NE(&second, &first);
    second.Show();
    EXPECT_EQ(loadsOfUnsound, 2);
    EXPECT_EQ(forms_.Find("frmUnsound"), &second);
}

TEST_F(FormTest, ARefusalAndANoLeadToTheFieldAndAYesGoesOn) {
    frmSmall& form = Small();
    form.Show();
    desktop_.Expect("Too long | Notes");
    EXPECT_FALSE(form.Refuse(form.txtNotes, "Too long", "Notes"));
    EXPECT_TRUE(form.txtNotes.HasFocus());
    desktop_.Expect("So short?", ui::Answer::Yes);
    EXPECT_TRUE(form.Confirm(form.txtName, "So short?"));
    EXPECT_TRUE(form.txtNotes.HasFocus());
    desktop_.Expect("So short?", ui::Answer::No);
    EXPECT_FALSE(form.Confirm(form.txtName, "So short?"));
    EXPECT_TRUE(form.txtName.HasFocus());
}

TEST_F(FormTest, AModalFormStandsInFrontUntilItCloses) {
    Small().Show();
    auto& modal = forms_.Get<frmSmallModal>("frmSmallModal");
    std::string seen;
    forms_.Opened.Connect([&](ui::Form& form) {
        seen = form.Name() + (Small().IsReachable() ? " beside" : " in front");
    });
    desktop_.OnModal = [](ui::Form& form) { form.Close(); };
    modal.ShowModal();
    EXPECT_EQ(seen, "frmSmallModal in front");
    EXPECT_TRUE(Small().IsReachable());
    EXPECT_EQ(forms_.Front(), &Small());
}

TEST_F(FormTest, CloseAllAsksNobody) {
    Small().Show();
    forms_.CloseAll();
    EXPECT_TRUE(forms_.OpenForms().empty());
}

} // namespace
} // namespace vexora::test
