#include "structures/frmComplex.h"

#include "records/LineWriter.h"
#include "records/Walk.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsS.h"
#include "structures/frmComplexSample.h"
#include "support/DialogFixture.h"

namespace vexora::test {
namespace {

class ComplexForms : public DialogFixture {
protected:
    ComplexForms() {
        globals.CompilerCode = "XXX";
        const auto methane = AddCompound("74828", "methane", "CH4");
        AddSample(*methane);
        AddSample(*methane);
        AddSample(*AddCompound("7732185", "water", "H2O"));
        AddCompound("124389", "carbon dioxide", "CO2");
    }
    static void AddSample(clsL& compound) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = std::to_string(compound.NextSampleNumber());
        sample->AttachTo(compound);
    }
    std::shared_ptr<clsComplex> AddComplex(const std::string& type,
                                           const std::vector<std::string>& components) {
        auto complex = std::make_shared<clsComplex>();
        complex->SetNo(NextComplexNumber(*globals.CurrentR));
        complex->CType = type;
        for (const std::string& line : components)
            EXPECT_TRUE(complex->LoadComponent("CC " + line));
        complex->AttachTo(*globals.CurrentR);
        return complex;
    }
    static std::shared_ptr<clsComplexSample>
    AddSampleOf(clsComplex& complex, const std::vector<std::string>& components) {
        auto sample = std::make_shared<clsComplexSample>();
        sample->SetNo(complex.NextSampleNumber());
        for (const std::string& line : components)
            EXPECT_TRUE(sample->LoadComponent("SS " + line));
        sample->AttachTo(complex);
        return sample;
    }
    std::shared_ptr<clsComplex> AddHydrate() {
        return AddComplex("Gas Hydrate",
                          {"74828 1 Enclathrated_species 0.148 X", "7732185 & Water 0.852 X"});
    }
    /// All complexes with their samples, as the file has them.
    std::string Lines() const {
        LineWriter out;
        for (const auto& complex : globals.CurrentR->recComplex)
            Walk(*complex, [&out](Record& record) { record.Print(out); });
        return out.Text();
    }

    frmComplex& Edit(clsComplex& complex) {
        globals.EditComplex = true;
        globals.OpenForms.clear();
        globals.CurrentKey.clear();
        complex.SetMe();
        return Open<frmComplex>("frmComplex");
    }
    frmComplexSample& BeginSample(clsComplex& complex) {
        globals.CurrentKey.clear();
        complex.SetMe();
        return Open<frmComplexSample>("frmComplexSample");
    }
    frmComplexSample& Edit(clsComplexSample& sample) {
        globals.EditComplexSample = true;
        globals.OpenForms.clear();
        globals.CurrentKey.clear();
        sample.SetMe();
        return Open<frmComplexSample>("frmComplexSample");
    }
    static void Put(frmComplex& dialog, const std::string& compound, const std::string& function,
                    const std::string& content, const std::string& kind) {
        Pick(dialog.cboComp, compound);
        if (!function.empty()) Pick(dialog.cboFunction, function);
        dialog.txtContent.UserReplaceAll(content);
        if (!kind.empty()) Pick(dialog.cboContent, kind);
    }
    void Refused(ui::Form& dialog, ui::CommandButton& button, const std::string& text,
                 const ui::Control& control) {
        desktop.Expect(text);
        button.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(dialog.IsVisible()) << text;
    }
};

TEST_F(ComplexForms, ASystemIsRefusedFaultByFaultAndThenStored) {
    auto& dialog = Open<frmComplex>("frmComplex");
    EXPECT_EQ(dialog.cboType.Items(), std::vector<std::string>{"Gas Hydrate"});
    EXPECT_EQ(dialog.cboFunction.Items(),
              (std::vector<std::string>{"Enclathrated species", "Gas", "Water", "Other"}));
    Refused(dialog, dialog.cmdOK, "Select type of complex system", dialog.cboType);
    Enter(dialog.cboType, " gas hydrate");
    Refused(dialog, dialog.cmdOK, "Select the component", dialog.cboComp);
    Put(dialog, "methane", "Enclathrated species", "0,1a", "");
    Refused(dialog, dialog.cmdOK, "Content is not numeric", dialog.txtContent);
    dialog.txtContent.UserReplaceAll("1.01");
    Refused(dialog, dialog.cmdAdd, "Content representation is not selected", dialog.cboContent);
    Pick(dialog.cboContent, "Mole fraction");
    Refused(dialog, dialog.cmdAdd, "Illegal content", dialog.txtContent);
    dialog.txtContent.UserReplaceAll("-0.1");
    Refused(dialog, dialog.cmdAdd, "Illegal content", dialog.txtContent);
    dialog.txtContent.UserReplaceAll("1"); // is legal
    dialog.cmdAdd.UserClick();
    Put(dialog, "methane", "Water", "0,852", "Mole fraction");
    Refused(dialog, dialog.cmdOK, "This component stands in the list already", dialog.cboComp);
    Pick(dialog.cboComp, "water");
    EXPECT_EQ(dialog.cboSample.Chosen(), "1") << "one alone";
    EXPECT_EQ(dialog.txtContent.Text() + dialog.cboFunction.Chosen(), "") << "were of the other";
    Pick(dialog.cboFunction, "Water");
    Pick(dialog.cboContent, "Mole fraction");
    // A line that is not right yet is not left; what the fields show follows the list.
    dialog.txtContent.UserReplaceAll("7");
    desktop.Expect("Illegal content");
    dialog.lstComp.UserChoose(0);
    EXPECT_EQ(dialog.lstComp.Index(), 1);
    dialog.txtContent.UserReplaceAll("0,852");
    dialog.lstComp.UserChoose(0);
    EXPECT_EQ(dialog.txtContent.Text() + dialog.cboComp.Chosen(), "1methane");
    dialog.txtContent.UserReplaceAll("0.148");
    Pick(dialog.cboSample, "2");
    dialog.cmdAdd.UserClick(); // left empty, it is none
    Refused(dialog, dialog.cmdAdd, "Select the component", dialog.cboComp);
    EXPECT_EQ(dialog.lstComp.Items(),
              (std::vector<std::string>{
                  "methane, sample 2, Enclathrated species, 0.148 mole fraction",
                  "water, sample 1, Water, 0.852 mole fraction", "(a component to be selected)"}));
    EXPECT_TRUE(globals.Saved);
    dialog.cmdOK.UserClick();
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_FALSE(globals.Saved);
    EXPECT_EQ(Lines(), "CS 1 Gas Hydrate\nCC 74828 2 Enclathrated_species 0.148 X\n"
                       "CC 7732185 1 Water 0.852 X\nCE\n");
    // One of another type, of one component without a content.
    auto& second = Open<frmComplex>("frmComplex");
    Enter(second.cboType, "Ice");
    Pick(second.cboComp, "water");
    second.cmdDelete.UserClick();
    Refused(second, second.cmdOK, "A complex system has at least one component", second.cmdAdd);
    second.cmdAdd.UserClick();
    Pick(second.cboComp, "water");
    second.cmdOK.UserClick();
    EXPECT_EQ(globals.CurrentR->recComplex.Item(std::size_t{2})->ShowKey(), "Ice (water)");
}

TEST_F(ComplexForms, WhatAFileSaysIsAcceptedUnchangedAndCancelChangesNothing) {
    const auto odd =
        AddComplex("gas hydrate", {"74828 7 Guest_of_kind about w", "999 & & 2 X", "74828 & & & "});
    AddSampleOf(*odd, {"74828 much w 9", "999 -1 X &", "71432 1 n &", "74828 0.5 X 1"});
    const std::string before = Lines();
    auto& dialog = Edit(*odd);
    EXPECT_EQ(dialog.cboFunction.Chosen() + "|" + dialog.cboContent.Chosen() + "|" +
                  dialog.cboSample.Chosen(),
              "Guest of kind|w|None");
    dialog.lstComp.UserChoose(1);
    EXPECT_EQ(dialog.cboComp.Chosen(), "999");
    dialog.lstComp.UserChoose(2);
    dialog.cmdOK.UserClick();
    EXPECT_TRUE(globals.DialogAccepted);
    globals.EditComplex = false;
    auto& sample = Edit(*odd->recS.Item(std::size_t{1}));
    EXPECT_EQ(sample.lstComp.Items(),
              (std::vector<std::string>{"methane, much w, sample 9", "999, -1 mole fraction",
                                        "methane, 0.5 mole fraction, sample 1",
                                        "71432 (no component of the system), 1 mol"}));
    EXPECT_FALSE(sample.frmGH.Visible());
    for (int line = 3; line >= 0; --line)
        sample.lstComp.UserChoose(line);
    sample.cmdOK.UserClick();
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_EQ(Lines(), before);
    EXPECT_TRUE(globals.Saved);
    // Given up, nothing has changed.
    auto& again = Edit(*odd->recS.Item(std::size_t{1}));
    again.chkComp.UserClick();
    again.txtComment.UserReplaceAll("changed");
    again.cmdCancel.UserClick();
    globals.EditComplexSample = false;
    auto& last = Edit(*odd);
    last.cmdDelete.UserClick();
    last.cmdCancel.UserClick();
    EXPECT_FALSE(globals.DialogAccepted);
    EXPECT_EQ(Lines(), before);
}

TEST_F(ComplexForms, ContentsInSamplesGoWithTheComponentOnlyWhenThatIsMeant) {
    const auto hydrate = AddHydrate();
    AddSampleOf(*hydrate, {"74828 0.15 X 1", "7732185 0.85 X &"});
    const std::string before = Lines();
    auto& dialog = Edit(*hydrate);
    dialog.lstComp.UserChoose(0);
    Pick(dialog.cboComp, "carbon dioxide"); // another one in its place
    EXPECT_EQ(dialog.cboSample.Chosen(), "None");
    const std::string question = "Samples of this complex system state contents of methane.\n"
                                 "Remove these contents, too?";
    desktop.Expect(question, ui::Answer::No);
    dialog.cmdOK.UserClick();
    EXPECT_TRUE(dialog.IsVisible());
    EXPECT_TRUE(dialog.lstComp.HasFocus());
    EXPECT_EQ(Lines(), before);
    desktop.Expect(question, ui::Answer::Yes);
    dialog.cmdOK.UserClick();
    EXPECT_EQ(Lines(), "CS 1 Gas Hydrate\nCC 124389 & & &\n"
                       "CC 7732185 & Water 0.852 X\nCE\n"
                       "^A & & & & & & & &\nSB 1\nSS 7732185 0.85 X &\nGH & & & &\nSE\n");
}

TEST_F(ComplexForms, ASampleTakesItsComponentsFromTheSystem) {
    const auto hydrate = AddHydrate();
    auto& dialog = BeginSample(*hydrate);
    EXPECT_EQ(dialog.txtSampleNo.Text() + " " + dialog.lblComplex.Caption(),
              "1 Gas Hydrate (methane + water)");
    EXPECT_TRUE(dialog.frmGH.Visible());
    dialog.txtContent.UserReplaceAll("some");
    Refused(dialog, dialog.cmdOK, "Content is not numeric", dialog.txtContent);
    dialog.txtContent.UserReplaceAll("1.01");
    Refused(dialog, dialog.cmdOK, "Illegal content", dialog.txtContent);
    dialog.txtContent.UserReplaceAll("0.15");
    dialog.txtPrepT.UserReplaceAll("cold");
    Refused(dialog, dialog.cmdOK, "Preparation temperature is not numeric", dialog.txtPrepT);
    dialog.txtPrepT.UserReplaceAll("-3");
    Refused(dialog, dialog.cmdOK, "Illegal preparation temperature", dialog.txtPrepT);
    dialog.txtPrepT.UserReplaceAll("273,7");
    dialog.txtPrepP.UserReplaceAll("2.76 MPa");
    Refused(dialog, dialog.cmdOK, "Preparation pressure is not numeric", dialog.txtPrepP);
    dialog.txtPrepP.UserReplaceAll("0");
    Refused(dialog, dialog.cmdOK, "Illegal preparation pressure", dialog.txtPrepP);
    dialog.txtPrepP.UserReplaceAll("2760");
    dialog.txtMethod.UserReplaceAll("stirred for 3 days");
    // An unchecked component is not asked about and goes; checked again, it is as it was.
    dialog.txtContent.UserReplaceAll("x");
    dialog.chkComp.UserClick();
    EXPECT_FALSE(dialog.txtContent.Enabled());
    EXPECT_EQ(dialog.lstComp.Item(0), "methane: not present");
    dialog.lstComp.UserChoose(1);
    dialog.txtContent.UserReplaceAll("5.75");
    Pick(dialog.cboContent, "Moles");
    dialog.txtComment.UserReplaceAll("kept cold");
    dialog.cmdOK.UserClick();
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_EQ(Lines(), "CS 1 Gas Hydrate\nCC 74828 1 Enclathrated_species 0.148 X\n"
                       "CC 7732185 & Water 0.852 X\nCE\n"
                       "^A & & & & XXX & 1/15/2026 kept cold\nSB 1\nSS 7732185 5.75 n &\n"
                       "GH 273.7 2760 & stirred for 3 days\nSE\n");
    EXPECT_EQ(globals.CurrentS, hydrate->recS.Item(std::size_t{1}));
    auto& edited = Edit(*hydrate->recS.Item(std::size_t{1}));
    EXPECT_EQ(edited.txtContent.Text(), "0.148") << "as the system proposes";
    edited.chkComp.UserClick();
    Pick(edited.cboSample, "2");
    edited.cmdOK.UserClick();
    EXPECT_EQ(Lines().substr(Lines().find("SB ")), "SB 1\nSS 7732185 5.75 n &\nSS 74828 0.148 X 2\n"
                                                   "GH 273.7 2760 & stirred for 3 days\nSE\n");
}

} // namespace
} // namespace vexora::test
