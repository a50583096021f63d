#include "reactions/frmChanged.h"

#include "entry/frmProperty.h"
#include "entry/frmUnc.h"
#include "reactions/ReactionFixture.h"

namespace vexora::test {
namespace {

class frmChangedTest : public ReactionFixture {
protected:
    frmChangedTest() {
        reaction = AddCombustion();
        reaction->SetMe();
    }

    /// Through frmProperty to the open form.
    frmChanged& Choose(const std::string& unit, const std::string& property = HR) {
        forms.DropClosed();
        auto& form = Open<frmProperty>("frmProperty");
        Pick(form.lstPropGroup, "Reaction property changes");
        Pick(form.lstProp, property);
        Pick(form.lstConv, unit);
        form.lstMethod.UserChoose(0);
        Pick(form.lstExpPurpose, "Principal objective of the work");
        form.cmdOK.UserClick();
        forms.DropClosed();
        return forms.Get<frmChanged>("frmChanged");
    }
    static void Complete(frmChanged& form, const std::string& value) {
        int n = 0;
        for (const char* phase : {"Crystal", "Gas", "Liquid", "Gas"})
            Pick(form.cboPhase(n++), phase);
        form.txtInitialT.UserReplaceAll("298.15");
        form.txtInitialP.UserReplaceAll("101.325");
        form.txtValue.UserReplaceAll(value);
    }
    frmChanged& EditValue(const std::shared_ptr<clsC>& value) {
        forms.DropClosed();
        globals.EditChanged = true;
        globals.OpenForms.clear();
        value->SetMe();
        globals.CurrentMethod = std::make_shared<clsMethod>();
        auto& form = forms.Get<frmChanged>("frmChanged");
        form.Show();
        return form;
    }
    void Refused(frmChanged& form, const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(form.IsVisible()) << text;
    }

    static constexpr const char* HR = "Molar enthalpy of reaction";
    std::shared_ptr<clsQ> reaction;
};

TEST_F(frmChangedTest, ChecksComeInOrderAndPutTheFocusOnTheField) {
    const std::string before = Lines();
    auto& form = Choose("J/g");
    const auto set = [](ui::TextBox& box, const std::string& text) { box.UserReplaceAll(text); };
    const std::string code = std::exchange(globals.PropertyCode, "");
    Refused(form, "Please review the property selection", form.cmdMethod);
    globals.PropertyCode = code;
    // Everything else is wrong as well.
    Pick(form.cboSample(0), "None");
    Pick(form.cboPhase(0), "Crystal");
    Pick(form.cboPhase(1), "Gas");
    Refused(form, "Select phase for 3 participant", form.cboPhase(2));
    Pick(form.cboPhase(2), "Solution 1");
    Pick(form.cboPhase(3), "Gas");
    for (const auto& answer : {std::optional<std::string>(), std::optional<std::string>(" ")}) {
        desktop.ExpectInput("Please enter solvent:", answer);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(form.IsVisible() && form.cboPhase(2).HasFocus());
    }
    desktop.ExpectInput("Please enter solvent:", "nobody knows it");
    Refused(form, "No compound of the name \"nobody knows it\" is known", form.cboPhase(2));
    const auto rival = AddReaction("^Q CMO 65850 124389 7732185 7782447 N N & & & & 7732185 &",
                                   "^q -1 7 3 -7.5 & & & & 1 & & & & & & &");
    desktop.ExpectInput("Please enter solvent:", "Water");
    Refused(form, "This reaction has already been entered", form.cboPhase(2));
    rival->Leave();
    desktop.ExpectInput("Please enter solvent:", "water");
    Refused(form, "Enter initial temperature", form.txtInitialT);
    EXPECT_EQ(form.lblSolvent.Caption(), "Solvent: water");
    for (const char* wrong : {"warm", "0", "-1"}) {
        set(form.txtInitialT, wrong);
        Refused(form, "Invalid initial temperature", form.txtInitialT);
    }
    set(form.txtInitialT, "298,15");
    Refused(form, "Enter initial pressure", form.txtInitialP);
    set(form.txtInitialP, "-0.1");
    Refused(form, "Invalid initial pressure", form.txtInitialP);
    set(form.txtInitialP, "0");
    // What is empty is that of the beginning; what was typed is not.
    set(form.txtFinalT, "x");
    set(form.txtFinalP, "-7");
    Refused(form, "Invalid final temperature", form.txtFinalT);
    set(form.txtFinalT, "");
    Refused(form, "Invalid final pressure", form.txtFinalP);
    EXPECT_EQ(form.txtFinalT.Text(), "298.15");
    set(form.txtFinalP, "101");
    Refused(form, "Invalid property value", form.txtValue);
    set(form.txtValue, "-26434");
    Refused(form, "Select the solvent phase", form.cboSolventPhase);
    Pick(form.cboSolventPhase, "Liquid");
    Refused(form, "No samples specified\nAt least one participant must have a sample number",
            form.cboSample(0));
    Pick(form.cboSample(0), "2");
    set(form.txtComposition(2), "200");
    Refused(form, "Select the kind of composition of participant 3", form.cboComposition(2));
    Pick(form.cboComposition(2), "Amount ratio of solvent to participant");
    for (const char* wrong : {"many", "0"}) {
        set(form.txtComposition(2), wrong);
        Refused(form, "Invalid composition of participant 3", form.txtComposition(2));
    }
    set(form.txtComposition(2), "");
    Refused(form, "Enter the composition of participant 3", form.txtComposition(2));
    set(form.txtComposition(2), "200");
    Refused(form, "Select the participant by whose mass the value goes", form.cboMassOf);
    Pick(form.cboMassOf, "benzoic acid");
    EXPECT_NEAR(globals.CurrentMethod->MMass, 122.12, 0.01);
    globals.CurrentMethod->MMass = 0;
    Refused(form, "Molar mass of the compound is not known", form.cboUnit);
    EXPECT_EQ(Lines(), before);
    EXPECT_TRUE(globals.Saved);
    Pick(form.cboMassOf, "benzoic acid");
    form.cmdAccept.UserClick();
    EXPECT_EQ(form.cmdAccept.Caption() + form.txtPrpSetNo.Text() + form.txtValue.Text(), "Done2");
    EXPECT_EQ(Lines(), "^Q CMO 65850 124389 7732185 7782447 Y N & & & & 7732185 &\n"
                       "^A & O B & & & 1/15/2026 ::Method:STATBOMB:\n"
                       "^c -1 7 3 -7.5 0 0 0 0 HR Z 65850 1 C G S1 G & & & & 2 & & & & & & & "
                       "& & P & & & & & 0 0 200 0 0 0 0 0 L & 298.15 0 298.15 101 -26434 & & &\n");
    EXPECT_NEAR(reaction->recC.Item(1)->SystemValue(), -3228.1, 0.1);
    form.cmdAccept.UserClick();
    EXPECT_EQ(forms.Find("frmChanged"), nullptr);
}

/// Each value and a look at it, with fields as files may have them.
TEST_F(frmChangedTest, ALookChangesNothing) {
    const std::string fields = " & & & & 01 & & & & & & & & & J & & & & & 0 0 1.0 0 0 0 0 0 ";
    const std::string lines[] = {
        "^C -1 7 3 -7.5 0 0 0 0 HR S S 1 C G S G" + fields +
            "ZZ I 298 100.0 299 0 -3226.90 & 0.5 3",
        "^c -2 14 6 -15 0 0 0 0 UR Z 7732185 01 C1 G QQ G" + fields +
            "S M 298 1 298 1 -26434 & & &",
        "^c -1 7 3 -7.5 0 0 0 0 UR Z S 2 C G S2 G" + fields + "L & 298 1 298 1 -26434 & & &",
        "^C -1 7 3 -7.5 0 0 0 0 SR Q S 1 C G L G" + fields + "& & 298 1 298 1 4 & 1% &",
        "^c -1 7 3 -7.5 0 0 0 0 GR J S 7 C G L G & & & & 9 & & & & & & & & & P & & & & & "
        "0 0 0 0 0 0 0 0 & X 298 1 298 1 7 & & &"};
    Pick(Edit(reaction).cmbSolvent, "water");
    forms.Get<frmReact>("frmReact").cmdAccept.UserClick();
    globals.EditReaction = false;
    for (const std::string& line : lines) {
        const auto value = AddValue(*reaction, line);
        value->Header.Load("^A N O P 8 AAA BBB 1/2/2003 text ::Method:STATBOMB:H:odd:dHR:0.2:");
        LineWriter before, after;
        value->Print(before);
        auto& form = EditValue(value);
        EXPECT_EQ(form.lblPart(0).Caption(), value->PARTICIPANT_COEFF(1) + " benzoic acid:");
        form.cmdAccept.UserClick();
        EXPECT_FALSE(form.IsOpen()) << line;
        value->Print(after);
        EXPECT_EQ(after.Text(), before.Text());
        auto& second = EditValue(value);
        second.txtValue.UserReplaceAll("1");
        Pick(second.cboPhase(0), "Gas");
        second.cmdFinish.UserClick();
        LineWriter still;
        value->Print(still);
        EXPECT_EQ(still.Text(), before.Text());
    }
}

TEST_F(frmChangedTest, WhatBelongsToAnotherChoiceGoes) {
    auto& form = Choose("kJ/mol");
    Complete(form, "-3226,9");
    Pick(form.cboPhase(2), "Solution");
    Pick(form.cboComposition(2), "Mass ratio of participant to solvent");
    form.txtComposition(2).UserReplaceAll("0.1");
    desktop.ExpectInput("Please enter solvent:", "water");
    Refused(form, "Select the solvent phase", form.cboSolventPhase);
    Pick(form.cboSolventPhase, "Liquid");
    Pick(form.cboPhase(2), "Liquid");
    EXPECT_EQ(form.txtComposition(2).Text(), "");
    EXPECT_FALSE(form.cboComposition(2).Enabled() || form.cboSolventPhase.Enabled());
    desktop.OnModal([](ui::Form& opened) {
        auto& stated = static_cast<frmUnc&>(opened);
        EXPECT_EQ(stated.Frame(0).Caption(), "Property: Molar enthalpy of reaction (kJ/mol)");
        stated.chkUnc(0).UserClick();
        stated.txtUValue(0).UserReplaceAll("0.5");
        stated.cmdOK.UserClick();
    });
    form.cmdUnc.UserClick();
    desktop.OnModal([](ui::Form& opened) {
        auto& property = static_cast<frmProperty&>(opened);
        EXPECT_EQ(property.lstPropGroup.Find("Reaction equilibria"), -1);
        EXPECT_EQ(property.lstProp.Find("Thermodynamic equilibrium constant"), -1);
        Pick(property.lstProp, "Molar entropy of reaction");
        Pick(property.lstConv, "J/K/mol");
        property.lstMethod.UserChoose(0);
        property.cmdOK.UserClick();
    });
    form.cmdMethod.UserClick();
    EXPECT_EQ(form.Caption() + " " + form.cboUnit.Chosen(), "Molar entropy of reaction J/K/mol");
    form.cmdAccept.UserClick();
    ASSERT_EQ(reaction->recC.Count(), 1U);
    LineWriter out;
    reaction->recC.Item(1)->Print(out);
    EXPECT_NE(out.Text().find(" SR S S 1 C G L G & & & & 1 & & & & & & & & & & & & & & & 0 0 0 0 0 "
                              "0 0 0 & & 298.15 101.325 298.15 101.325 -3226.9 & & &\n"),
              std::string::npos)
        << out.Text();
    EXPECT_EQ(out.Text().find("^X"), std::string::npos);
    EXPECT_EQ(reaction->SOLVENTRN, "");
}

TEST_F(frmChangedTest, TheUnitIsChosenBesideTheValue) {
    desktop.ExpectInput("Property value in the original units", "4.2");
    auto& form = Choose("ALL OTHER UNITS");
    EXPECT_EQ(form.cboUnit.Chosen(), "4.2* kJ/mol");
    Complete(form, "-771");
    Pick(form.cboUnit, "J/mol");
    Pick(form.cboUnit, "J/g");
    EXPECT_TRUE(form.cboMassOf.IsShown());
    Pick(form.cboUnit, "4.2* kJ/mol");
    EXPECT_FALSE(form.cboMassOf.IsShown());
    form.cmdAccept.UserClick();
    EXPECT_NE(Lines().find("^M 4.2\n^c -1 7 3 -7.5 0 0 0 0 HR S S 1"), std::string::npos);
    form.txtValue.UserReplaceAll("-3226900");
    Pick(form.cboUnit, "J/mol");
    form.cmdAccept.UserClick();
    EXPECT_NEAR(reaction->recC.Item(2)->SystemValue(), -3226.9, 1e-9);
    EXPECT_EQ(reaction->recC.Item(2)->Factor, 0);
}

} // namespace
} // namespace vexora::test
