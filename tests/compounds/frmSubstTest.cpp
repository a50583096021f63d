#include "compounds/frmSubst.h"

#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "support/DialogFixture.h"

namespace vexora {

namespace {

using ui::Answer;

class frmSubstTest : public test::DialogFixture {
protected:
    frmSubst& Open() { return test::DialogFixture::Open<frmSubst>("frmSubst"); }

    static void EnterNumber(frmSubst& dialog, const std::string& front, const std::string& middle) {
        Enter(dialog.txtRN2, front);
        Enter(dialog.txtRN1, middle);
    }
    static std::string Boxes(const frmSubst& dialog) {
        return dialog.txtRN2.Text() + "-" + dialog.txtRN1.Text() + "-" + dialog.txtCASD.Text() +
               " " + dialog.txtName.Text() + " " + dialog.txtFormula.Text();
    }
    /// Every compound of the source, a line each.
    std::string Compounds() const {
        std::string text;
        for (const auto& compound : globals.CurrentR->recL) {
            text += compound->RN + " " + compound->Name + " " + compound->Formula + " " +
                    FormatFixed(compound->MMass, 3) + (compound->isNew ? " new" : "") +
                    (compound->isBio ? " bio" : "") + "\n";
        }
        return text;
    }
    /// Two compounds under one name, as isomers sometimes stand in tables.
    void AddIsomers() {
        globals.CompoundDb().Insert("ALLNAME",
                                    {{"RN", 590181}, {"NAME", "2-butylene"}, {"FORMULA", "C4H8"}});
        globals.CompoundDb().Insert("ALLNAME",
                                    {{"RN", 624646}, {"NAME", "2-butylene"}, {"FORMULA", "C4H8"}});
    }
    static constexpr const char* corrected =
        "Substance information will be corrected | Incomplete match to the database";
    static constexpr const char* notFound = "Substance not found in the database";
    static constexpr const char* addNew =
        "Do you want to add a new substance not registered in the database?";
};

} // namespace

TEST_F(frmSubstTest, ATypedNumberOfTheDatabaseMakesACompoundThatIsNotNew) {
    frmSubst& dialog = Open();
    Type(dialog.txtRN2, "7732-18-");
    EXPECT_EQ(dialog.txtCASD.Text(), "5");
    EXPECT_TRUE(dialog.txtCASD.HasFocus());
    Enter(dialog.txtName, "water");
    Enter(dialog.txtFormula, "OH2");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "7732185 water H2O 18.015\n");
    EXPECT_EQ(Tree(), "2002 wag & 0\n  water\n");
    EXPECT_FALSE(globals.Saved);
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_EQ(globals.DataContext, "Pure");
}

TEST_F(frmSubstTest, DoneClosesUnlessSomethingChanged) {
    frmSubst& dialog = Open();
    EnterNumber(dialog, "7732", "18");
    Enter(dialog.txtName, "water");
    Enter(dialog.txtFormula, "H2O");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(dialog.cmdAccept.Caption(), "Done");
    EXPECT_EQ(Boxes(dialog), "--  ");
    Enter(dialog.txtName, "x");
    EXPECT_EQ(dialog.cmdAccept.Caption(), "Accept");
    Enter(dialog.txtName, "");
    desktop.Expect("Enter the substance name");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.IsOpen());

    frmSubst& again = dialog;
    EnterNumber(again, "64", "17");
    Enter(again.txtName, "ethanol");
    Enter(again.txtFormula, "C2H5OH");
    again.cmdAccept.UserClick();
    again.cmdAccept.UserClick();
    EXPECT_FALSE(again.IsOpen());
    EXPECT_EQ(Compounds(), "7732185 water H2O 18.015\n64175 ethanol C2H6O 46.069\n");
    EXPECT_TRUE(globals.OpenForms.empty());
}

TEST_F(frmSubstTest, TheBoxesOfTheNumberTakeDigitsAndLeadOn) {
    frmSubst& dialog = Open();
    Type(dialog.txtRN2, "a12x3");
    EXPECT_EQ(dialog.txtRN2.Text(), "123");
    dialog.UserKey(ui::ParseKey("Backspace"));
    EXPECT_EQ(dialog.txtRN2.Text(), "12");
    dialog.UserKey(ui::CharacterKey(U' '));
    EXPECT_TRUE(dialog.txtRN1.HasFocus());
    Enter(dialog.txtRN2, "");
    Type(dialog.txtRN2, "1234567");
    EXPECT_EQ(dialog.txtRN2.Text(), "1234567");
    EXPECT_TRUE(dialog.txtRN1.HasFocus());
    Type(dialog.txtRN2, "8");
    EXPECT_EQ(dialog.txtRN2.Text(), "1234567");
}

TEST_F(frmSubstTest, AWholeNumberPastedInTheFirstBoxIsSpreadAsItStands) {
    frmSubst& dialog = Open();
    desktop.ClipboardText("7732-18-4");
    dialog.txtRN2.SetFocus();
    dialog.UserKey(ui::ParseKey("Ctrl+V"));
    Enter(dialog.txtName, "water");
    Enter(dialog.txtFormula, "H2O");
    EXPECT_EQ(Boxes(dialog), "7732-18-4 water H2O");
    desktop.Expect(corrected); // a slip in the number is not put right in silence
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "");
    Enter(dialog.txtRN2, "7732-18-5");
    EXPECT_EQ(Boxes(dialog), "7732-18-5 water H2O");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "7732185 water H2O 18.015\n");
}

TEST_F(frmSubstTest, TheMassFollowsTheTypedFormula) {
    frmSubst& dialog = Open();
    Enter(dialog.txtFormula, "C2H5OH");
    EXPECT_EQ(dialog.txtMMass.Text(), "46.069");
    Enter(dialog.txtFormula, "C2H5O(");
    EXPECT_EQ(dialog.txtMMass.Text(), "");
}

TEST_F(frmSubstTest, AnUnsoundNumberIsRefusedWithTheFaultMarked) {
    frmSubst& dialog = Open();
    Enter(dialog.txtName, "water");
    EnterNumber(dialog, "77x2", "18");
    desktop.Expect("Enter numeric RN | Invalid RN");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.txtRN2.HasFocus());
    EXPECT_EQ(dialog.txtRN2.SelectionStart(), 2U);
    EXPECT_EQ(dialog.txtRN2.SelectionLength(), 1U);
    EnterNumber(dialog, "7732", "1");
    desktop.Expect("Enter numeric RN | Invalid RN");
    dialog.cmdFind.UserClick();
    EXPECT_TRUE(dialog.txtRN1.HasFocus());
    EnterNumber(dialog, "0732", "18");
    desktop.Expect("RN cannot start with 0 | Invalid RN");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(dialog.txtRN2.SelectionLength(), 1U);
    EXPECT_EQ(Compounds(), "");
}

TEST_F(frmSubstTest, APickedRowGetsItsOwnNumberUnlessAMadeUpOneIsWanted) {
    frmSubst& dialog = Open();
    Enter(dialog.txtName, "water*");
    dialog.cmdFind.UserClick();
    EXPECT_TRUE(dialog.lstNames.HasFocus());
    Pick(dialog.lstNames, "water");
    EXPECT_EQ(Boxes(dialog), "1-00-3 water H2O");
    EXPECT_EQ(dialog.txtMMass.Text(), "18.015");
    EXPECT_EQ(dialog.lblRN.Caption(), "7732-18-5");
    EXPECT_TRUE(dialog.cmdUseRN.HasFocus());
    desktop.Expect("The database knows this compound as 7732-18-5.\nUse this registry number?",
                   Answer::No);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "1003 water H2O 18.015 new\n");

    Enter(dialog.txtName, "water");
    dialog.cmdFind.UserClick();
    Pick(dialog.lstNames, "water");
    EXPECT_EQ(Boxes(dialog), "1-01-4 water H2O");
    dialog.cmdUseRN.UserClick();
    EXPECT_EQ(Boxes(dialog), "7732-18-5 water H2O");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "1003 water H2O 18.015 new\n7732185 water H2O 18.015\n");
}

TEST_F(frmSubstTest, APickDoesNotOverwriteATypedNumber) {
    frmSubst& dialog = Open();
    EnterNumber(dialog, "7732", "18");
    dialog.cmdFind.UserClick(); // by the number alone
    ASSERT_GE(dialog.lstNames.Count(), 1);
    Pick(dialog.lstNames, "water");
    EXPECT_EQ(Boxes(dialog), "7732-18-5 water H2O");
    EXPECT_FALSE(dialog.cmdUseRN.Enabled());
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "7732185 water H2O 18.015\n");
}

TEST_F(frmSubstTest, WhatDisagreesWithTheDatabaseIsCorrectedThere) {
    frmSubst& dialog = Open();
    EnterNumber(dialog, "7732", "18");
    Enter(dialog.txtName, "Ice");
    Enter(dialog.txtFormula, "H2O");
    desktop.Expect(corrected);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Boxes(dialog), "7732-18-5 water H2O");
    EnterNumber(dialog, "7732", "19"); // a number that nobody has
    desktop.Expect(corrected);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(dialog.lstNames.Chosen(), "water");
    EXPECT_EQ(Compounds(), "");
    dialog.cmdUseRN.UserClick();
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "7732185 water H2O 18.015\n");
}

TEST_F(frmSubstTest, ANameTypedInOtherCaseIsCorrectedWithoutANumber) {
    frmSubst& dialog = Open();
    Enter(dialog.txtName, "WATER");
    desktop.Expect(corrected);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(dialog.txtName.Text(), "water");
    EXPECT_EQ(dialog.lblRN.Caption(), "7732-18-5");
    EXPECT_EQ(Compounds(), "");
}

TEST_F(frmSubstTest, AnUnknownSubstanceIsAddedOnlyOnYesAndWithAFormula) {
    frmSubst& dialog = Open();
    Enter(dialog.txtName, "unobtainium oil");
    desktop.Expect(notFound);
    desktop.Expect(addNew, Answer::No);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "");
    Enter(dialog.txtFormula, "Chbr3");
    desktop.Expect(notFound);
    desktop.Expect(addNew, Answer::Yes);
    desktop.Expect("Enter a valid empirical formula");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.txtFormula.HasFocus());
    EXPECT_EQ(dialog.txtFormula.Text(), "Chbr3");
    Enter(dialog.txtFormula, "CH3(CH2)30OH");
    desktop.Expect(notFound);
    desktop.Expect(addNew, Answer::Yes);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "1003 unobtainium oil C31H64O 452.852 new\n");
}

TEST_F(frmSubstTest, ATypedNumberOfANewSubstanceStandsWithItsCheckDigitComputed) {
    frmSubst& dialog = Open();
    EnterNumber(dialog, "9999991", "23");
    Enter(dialog.txtCASD, "0");
    Enter(dialog.txtName, "unobtainium oil");
    Enter(dialog.txtFormula, "C31H64O");
    desktop.Expect(addNew, Answer::Yes);
    dialog.cmdAccept.UserClick();
    const std::string rn = "999999123";
    EXPECT_EQ(Compounds(), rn + *CheckDigit(rn) + " unobtainium oil C31H64O 452.852 new\n");
}

TEST_F(frmSubstTest, ASecondCompoundWithTheSameNumberIsRefused) {
    AddCompound("7732185", "water", "H2O");
    frmSubst& dialog = Open();
    EnterNumber(dialog, "7732", "18");
    Enter(dialog.txtName, "water");
    Enter(dialog.txtFormula, "H2O");
    desktop.Expect("The substance with this RN has already been entered");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(globals.CurrentR->recL.Count(), 1U);
    EXPECT_EQ(Boxes(dialog), "7732-18-5 water H2O");
}

TEST_F(frmSubstTest, AMadeUpNumberThatIsTakenGivesWay) {
    AddCompound("1014", "first", "CH4");
    AddCompound("1003", "second", "C2H6");
    frmSubst& dialog = Open();
    Enter(dialog.txtName, "unobtainium oil");
    Enter(dialog.txtFormula, "C31H64O");
    desktop.Expect(notFound);
    desktop.Expect(addNew, Answer::Yes);
    dialog.cmdAccept.UserClick();
    ASSERT_EQ(globals.CurrentR->recL.Count(), 3U);
    EXPECT_EQ(globals.CurrentR->recL.Item(3)->RN, "1025");
}

TEST_F(frmSubstTest, OneOfSeveralCompoundsOfTheSameNameIsEnough) {
    AddIsomers();
    frmSubst& dialog = Open();
    EnterNumber(dialog, "624", "64");
    Enter(dialog.txtName, "2-butylene");
    Enter(dialog.txtFormula, "C4H8");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "624646 2-butylene C4H8 56.108\n");

    Enter(dialog.txtName, "2-butylene");
    dialog.cmdFind.UserClick();
    ASSERT_EQ(dialog.lstNames.Count(), 2);
    dialog.lstNames.UserChoose(0);
    EXPECT_EQ(dialog.lblRN.Caption(), "590-18-1");
}

TEST_F(frmSubstTest, TheSearchPutsTheFormulaInOrderAndSaysWhenNothingIsFound) {
    frmSubst& dialog = Open();
    dialog.cmdFind.UserClick(); // nothing to search for
    Enter(dialog.txtFormula, "C2H5OH");
    Enter(dialog.txtName, "[*");
    dialog.cmdFind.UserClick();
    EXPECT_EQ(Boxes(dialog), "--  C2H6O");
    EXPECT_GE(dialog.lstNames.Find("ethanol"), 0);
    Enter(dialog.txtName, "no such thing");
    desktop.Expect(notFound);
    dialog.cmdFind.UserClick();
    EXPECT_EQ(dialog.lstNames.Count(), 0);
}

TEST_F(frmSubstTest, CancelLeavesTheSourceAsItWas) {
    frmSubst& dialog = Open();
    Enter(dialog.txtName, "water");
    EnterNumber(dialog, "7732", "18");
    dialog.UserKey(ui::ParseKey("Escape"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(Compounds(), "");
    EXPECT_TRUE(globals.Saved);
    EXPECT_FALSE(globals.DialogAccepted);
}

TEST_F(frmSubstTest, ACompoundOfTheDatabaseIsLockedWhenEdited) {
    globals.CurrentL = AddCompound("7732185", "water", "H2O");
    CurrentCompound()->MMass = 18.015;
    globals.EditCompound = true;
    frmSubst& dialog = Open();
    EXPECT_EQ(Boxes(dialog), "7732-18-5 water H2O");
    EXPECT_EQ(dialog.txtMMass.Text(), "18.015");
    EXPECT_EQ(dialog.cmdAccept.Caption(), "OK");
    for (const ui::TextBox* box : {&dialog.txtRN2, &dialog.txtRN1, &dialog.txtFormula})
        EXPECT_TRUE(box->Locked()) << box->Name();
    dialog.cmdAccept.UserClick();
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(Compounds(), "7732185 water H2O 18.015\n");
}

TEST_F(frmSubstTest, ACorrectedFormulaBringsItsOwnMass) {
    globals.CurrentL = AddCompound("1003", "oil", "C31H64O");
    CurrentCompound()->MMass = 452.852;
    CurrentCompound()->isNew = true;
    globals.EditCompound = true;
    frmSubst& dialog = Open();
    Enter(dialog.txtFormula, "C2H5OH");
    Enter(dialog.txtName, "spirit");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "1003 spirit C2H6O 46.069 new\n");
    EXPECT_EQ(Tree(), "2002 wag & 0\n  spirit\n");
}

TEST_F(frmSubstTest, AnEmptyFormulaIsStoredOnlyOnYes) {
    globals.CurrentL = AddCompound("1003", "oil", "C31H64O");
    CurrentCompound()->isNew = true;
    globals.EditCompound = true;
    frmSubst& dialog = Open();
    Enter(dialog.txtFormula, "");
    desktop.Expect("Formula is empty\nIs that OK?", Answer::No);
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(CurrentCompound()->Formula, "C31H64O");
    desktop.Expect("Formula is empty\nIs that OK?", Answer::Yes);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "1003 oil  0.000 new\n");
}

TEST_F(frmSubstTest, BioBoxesShowWithBioDataAndMakeABioCompound) {
    EXPECT_FALSE(Open().thtCharge.IsShown());
    forms.CloseAll();
    globals.OpenForms = {"frmMain"};
    globals.BioEnabled = true;
    frmSubst& dialog = Open();
    ASSERT_TRUE(dialog.thtCharge.IsUsable());
    Enter(dialog.txtName, "some enzyme");
    Enter(dialog.txtFormula, "C31H64O");
    Enter(dialog.thtCharge, "2+");
    desktop.Expect("Enter a valid charge");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.thtCharge.HasFocus());
    Enter(dialog.thtCharge, "-2");
    Enter(dialog.txtEC, " 1.1.1 ");
    Enter(dialog.txtPDB, "LYZ");
    EXPECT_EQ(dialog.lblEC.Caption() + "|" + dialog.lblPDB.Caption(),
              "Four parts are usual: 5.3.1.5, or 5.3.1.-|"
              "Four characters are usual, first a digit: 1LYZ");
    Enter(dialog.txtEC, " 1.1.1.1 ");
    EXPECT_EQ(dialog.lblEC.Caption(), "");
    desktop.Expect(notFound);
    desktop.Expect(addNew, Answer::Yes);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Compounds(), "1003 some enzyme C31H64O 452.852 new bio\n");
    EXPECT_EQ(globals.CurrentR->recL.Item(1)->EC, "1.1.1.1");
    EXPECT_EQ(globals.CurrentR->recL.Item(1)->PDB, "LYZ");
    EXPECT_EQ(globals.CurrentR->recL.Item(1)->Charge, -2);
}

TEST_F(frmSubstTest, OpenedByAnotherDialogItClosesAfterOneCompound) {
    globals.OpenForms = {"frmMain", "frmSample"};
    frmSubst& dialog = Open();
    EnterNumber(dialog, "7732", "18");
    Enter(dialog.txtName, "water");
    Enter(dialog.txtFormula, "H2O");
    dialog.cmdAccept.UserClick();
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(globals.OpenForms, std::vector<std::string>{"frmMain"});
}

} // namespace vexora
