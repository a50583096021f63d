#include "mixtures/frmMixt.h"

#include "records/LineWriter.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "support/DialogFixture.h"

namespace vexora::test {
namespace {

class frmMixtTest : public DialogFixture {
protected:
    frmMixtTest() {
        AddCompound("7732185", "water", "H2O");
        AddCompound("1034343980", "graphene", "C");
        AddCompound("64175", "ethanol", "C2H6O");
        globals.CurrentL = globals.CurrentR->FindL("7732185");
    }

    frmMixt& Begin() { return Open<frmMixt>("frmMixt"); }
    static std::string Lists(const frmMixt& dialog) {
        return dialog.cmbComp1.Chosen() + "|" + dialog.cmbComp2.Chosen() + "|" +
               dialog.cmbComp3.Chosen();
    }
    static std::string Entries(const ui::ItemList& list) {
        std::string text;
        for (const std::string& item : list.Items())
            text += item + "|";
        return text;
    }
    /// Third components are picked as a person does: the list is entered first.
    static void PickThird(frmMixt& dialog, const std::string& entry) {
        dialog.cmbComp3.SetFocus();
        Pick(dialog.cmbComp3, entry);
    }
    std::string Mixtures() const {
        std::string text;
        for (const auto& mixture : globals.CurrentR->recM) {
            LineWriter out;
            mixture->PrintM(out);
            text += out.Text();
        }
        return text;
    }
};

TEST_F(frmMixtTest, ListsOfferWhatTheListsAboveLeave) {
    auto& dialog = Begin();
    EXPECT_EQ(Entries(dialog.cmbComp1), "water|graphene|ethanol|New|");
    EXPECT_EQ(Lists(dialog), "water||");
    EXPECT_EQ(Entries(dialog.cmbComp2), "graphene|ethanol|New|");
    EXPECT_EQ(Entries(dialog.cmbComp3), "");
    EXPECT_FALSE(dialog.cmdAccept.Enabled());
    Pick(dialog.cmbComp2, "ethanol");
    EXPECT_TRUE(dialog.cmdAccept.Enabled());
    EXPECT_EQ(Entries(dialog.cmbComp3),
              "SELECT THE THIRD COMPONENT, IF PRESENT|None|graphene|New|");
    EXPECT_EQ(dialog.cmbComp3.Index(), 0);
    dialog.cmbComp3.SetFocus();
    EXPECT_EQ(Entries(dialog.cmbComp3), "None|graphene|New|");
    Pick(dialog.cmbComp3, "graphene");
    Pick(dialog.cmbComp1, "graphene"); // taken from below
    EXPECT_EQ(Lists(dialog), "graphene|ethanol|SELECT THE THIRD COMPONENT, IF PRESENT");
    EXPECT_EQ(Entries(dialog.cmbComp2), "water|ethanol|New|");
}

TEST_F(frmMixtTest, ComponentsAreStoredInTheOrderOfTheirNumbers) {
    auto& dialog = Begin();
    Pick(dialog.cmbComp1, "graphene"); // ten digits
    Pick(dialog.cmbComp2, "water");
    dialog.cmdAccept.UserClick(); // the prompt of the third list stands
    EXPECT_EQ(Mixtures(), "^B 7732185 1034343980 &\n");
    EXPECT_EQ(Lists(dialog), "water|graphene|");
    EXPECT_EQ(globals.DataContext + std::to_string(globals.CurrentMixType), "Bin2");
    EXPECT_FALSE(globals.Saved);
    EXPECT_FALSE(dialog.cmdAccept.Enabled());
    EXPECT_EQ(dialog.cmdCancel.Caption(), "Done");
    PickThird(dialog, "ethanol");
    EXPECT_EQ(dialog.cmdCancel.Caption(), "Cancel");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Mixtures(), "^B 7732185 1034343980 &\n^T 64175 7732185 1034343980 &\n");
    EXPECT_EQ(globals.DataContext + std::to_string(globals.CurrentMixType), "Tern3");
    EXPECT_EQ(Lists(dialog), "ethanol|water|graphene");
    EXPECT_NE(Tree().find("  water + graphene\n  ethanol + water + graphene\n"), std::string::npos)
        << Tree();
    dialog.cmdCancel.UserClick();
    EXPECT_EQ(forms.Find("frmMixt"), nullptr);
}

TEST_F(frmMixtTest, EachFaultHasItsMessage) {
    auto& dialog = Begin();
    Pick(dialog.cmbComp2, "ethanol");
    Pick(dialog.cmbComp1, "ethanol");
    desktop.Expect("Please select the 2nd component");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.cmbComp2.HasFocus());
    Pick(dialog.cmbComp2, "water");
    PickThird(dialog, "None");
    dialog.cmdAccept.UserClick();
    // The other way round it is the same mixture.
    Pick(dialog.cmbComp1, "water");
    Pick(dialog.cmbComp2, "ethanol");
    desktop.Expect("This mixture has already been registered");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.IsVisible());
    EXPECT_EQ(Mixtures(), "^B 64175 7732185 &\n");
    PickThird(dialog, "graphene");
    globals.CurrentR->FindL("1034343980")->Leave();
    desktop.Expect("Substance internal error");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Mixtures(), "^B 64175 7732185 &\n");
}

TEST_F(frmMixtTest, NewMakesACompoundOnTheWayUnlessItIsCancelled) {
    auto& dialog = Begin();
    desktop.ExpectModal("frmSubst", [this](ui::Form& opened) {
        EXPECT_EQ(globals.OpenForms.back(), "frmMixt");
        opened.Close();
    });
    Pick(dialog.cmbComp2, "New");
    EXPECT_EQ(Lists(dialog), "water||");
    EXPECT_FALSE(dialog.cmdAccept.Enabled());
    forms.DropClosed();
    desktop.ExpectModal("frmSubst", [this](ui::Form& opened) {
        AddCompound("67641", "acetone", "C3H6O");
        opened.Close();
    });
    Pick(dialog.cmbComp2, "New");
    EXPECT_EQ(Lists(dialog), "water|acetone|SELECT THE THIRD COMPONENT, IF PRESENT");
    EXPECT_EQ(Entries(dialog.cmbComp1), "water|graphene|ethanol|acetone|New|");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Mixtures(), "^B 67641 7732185 &\n");
}

TEST_F(frmMixtTest, CompoundsOfOneNameAreToldByTheirPlace) {
    AddCompound("64186", "ethanol", "CH2O2");
    auto& dialog = Begin();
    dialog.cmbComp2.UserChoose(1);
    dialog.cmdAccept.UserClick();
    Pick(dialog.cmbComp1, "water");
    dialog.cmbComp2.UserChoose(2);
    dialog.cmdAccept.UserClick();
    ASSERT_EQ(Mixtures(), "^B 64175 7732185 &\n^B 64186 7732185 &\n");
    EXPECT_EQ(globals.CurrentR->FindM("64186+7732185")->RN1, "64186");
    EXPECT_EQ(globals.CurrentR->FindM("ethanol + water")->RN1, "64175");
    globals.CurrentR->FindL("7732185")->Leave(); // of an unknown compound
    EXPECT_EQ(globals.CurrentR->FindM("ethanol + 7732185"), nullptr);
    EXPECT_EQ(globals.CurrentR->FindM(""), nullptr);
}

} // namespace
} // namespace vexora::test
