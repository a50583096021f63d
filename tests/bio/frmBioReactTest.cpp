#include "bio/frmBioReact.h"

#include "compounds/frmSubst.h"
#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Text.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

/// Stands for the table, to which a row is added.
class frmTable : public ui::Form {
public:
    frmTable() : Form("frmBioData", "Table") {}
    void Accept() {
        clsBD row;
        for (std::size_t n = 0; n < Globals().BioSetInHand->Columns(); ++n)
            row.Cells.push_back({ShortText(std::to_string(n + 1)), {}});
        Globals().BioSetInHand->recD.push_back(row);
        Globals().DialogAccepted = true;
        Close();
    }
    void Unload() override { CloseForm(); }
};

class frmBioReactTest : public DataDialogFixture {
protected:
    frmBioReactTest() {
        forms.Register<frmTable>("frmBioData");
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->AttachTo();
        globals.CompilerCode = "AAA";
        globals.ContributorCode = "BBB";
        globals.DataContext = "Bio";
        AddCompound("56655", "ATP", "C10H16N5O13P3");
        AddCompound("58640", "ADP", "C10H15N5O10P2");
        AddCompound("7664382", "phosphate", "H3O4P");
        AddCompound("7732185", "water", "H2O");
        AddCompound("7786303", "magnesium chloride", "Cl2Mg");
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = "1";
        sample->AttachTo(*globals.CurrentR->FindL("56655"));
    }
    ~frmBioReactTest() override { forms.CloseAll(); }

    static std::shared_ptr<clsL> AddCompound(const std::string& rn, const std::string& name,
                                             const std::string& formula) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = name;
        compound->Formula = formula;
        compound->AttachTo(*Globals().CurrentR);
        return compound;
    }
    frmBioReact& Begin() {
        forms.DropClosed();
        return Open<frmBioReact>("frmBioReact");
    }
    frmBioReact& Edit(const std::shared_ptr<clsBR>& set) {
        forms.DropClosed();
        globals.EditBioReact = true;
        globals.OpenForms.clear();
        set->SetMe();
        auto& form = forms.Get<frmBioReact>("frmBioReact");
        form.Show();
        return form;
    }
    static void Put(frmBioReact& form, int n, const std::string& compound,
                    const std::string& coefficient) {
        Pick(form.cmbPart(n), compound);
        form.txtCoeff(n).UserReplaceAll(coefficient);
    }
    /// ATP + water = ADP + phosphate, its enthalpy against the temperature.
    frmBioReact& BeginHydrolysis() {
        auto& form = Begin();
        form.optBio.UserClick();
        Put(form, 0, "ATP", "-1");
        Put(form, 1, "water", "-1");
        Put(form, 2, "ADP", "1");
        Put(form, 3, "phosphate", "1");
        Pick(form.cboProp(0), "Enthalpy");
        Pick(form.cboVar(0), "Var. Temperature");
        form.txtMethod.UserReplaceAll("calorimetry");
        return form;
    }
    void Accept(frmBioReact& form) {
        desktop.OnModal([](ui::Form& shown) { dynamic_cast<frmTable&>(shown).Accept(); });
        form.cmdAccept.UserClick();
        EXPECT_FALSE(forms.Find("frmBioReact") && forms.Find("frmBioReact")->IsOpen());
        globals.EditBioReact = false;
        forms.DropClosed();
    }
    void Refused(frmBioReact& form, const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(ui::IsOnTurnedPage(form.Arrangement, control)) << text;
    }
    static std::string Rows(const frmBioReact& form) {
        std::string text;
        for (int n = 0; n < form.cmbPart.Count(); ++n)
            if (form.cmbPart(n).Index() > 0)
                text += form.cmbPart(n).Chosen() + " " + form.txtCoeff(n).Text() + " " +
                        form.cboPhase(n).Chosen() + " " + form.cboPartSample(n).Chosen() + "|";
        return text;
    }
    std::string Lines() const {
        LineWriter out;
        for (const auto& set : globals.CurrentR->recBR)
            set->PrintBR(out);
        return out.Text();
    }
};

TEST_F(frmBioReactTest, ChecksComeInTheOrderOfThePagesAndTurnThemUp) {
    auto& form = Begin();
    Refused(form,
            "Please, select a reaction notation formalism: chemical or biochemical\n"
            "See Help for explanation of the difference",
            form.optBio);
    form.optChem.UserClick();
    Refused(form, "Select 1st reaction participant", form.cmbPart(0));
    Put(form, 1, "ATP", "");
    Pick(form.cboPhase(1), "None");
    Refused(form, "Select phase for participant ATP", form.cboPhase(1));
    Pick(form.cboPhase(1), "Solution");
    Refused(form, "Enter coefficient for 2nd participant", form.txtCoeff(1));
    for (const char* odd : {"x", "0"}) {
        form.txtCoeff(1).UserReplaceAll(odd);
        Refused(form, "Participant ATP has an invalid coefficient", form.txtCoeff(1));
    }
    form.txtCoeff(1).UserReplaceAll("-1");
    Put(form, 2, "ADP", "1");
    Refused(form, "Reaction is not balanced", form.cmdEquate);
    form.optBio.UserClick();
    Pick(form.cmbComp(0), "magnesium chloride");
    Pick(form.cboCompPhase(0), "None");
    Refused(form, "Select phase for component magnesium chloride", form.cboCompPhase(0));
    Pick(form.cboCompPhase(0), "Solution");
    Refused(form, "Select function of component magnesium chloride", form.cboFunction(0));
    Pick(form.cboFunction(0), "Cofactor");
    Refused(form, "No property defined", form.cboProp(0));
    Pick(form.cboProp(0), "Enthalpy");
    form.chkPropUnc(0).UserClick();
    form.txtPropUnc(0).UserReplaceAll("some");
    Refused(form, "Enter a numerical value", form.txtPropUnc(0));
    form.txtPropUnc(0).UserReplaceAll("5 %");
    Pick(form.cboProp(1), "Enthalpy");
    Refused(form, "Duplicate propible", form.cboProp(1));
    Pick(form.cboProp(1), "None");
    Pick(form.cboVar(0), "Var. MolaLity");
    Refused(form, "Select the component", form.cmbVarComp(0));
    Pick(form.cmbVarComp(0), "ATP");
    Pick(form.cboVar(1), "Var. MolaLity");
    Pick(form.cmbVarComp(1), "ATP");
    Refused(form, "Duplicate varible", form.cboVar(1));
    Pick(form.cmbVarComp(1), "ADP");
    Pick(form.cboConst(0), "pH");
    Refused(form, "Enter a numerical value", form.txtConst(0));
    form.txtConst(0).UserReplaceAll("7,0");
    Pick(form.cboConst(1), "pH");
    form.txtConst(1).UserReplaceAll("7");
    Refused(form, "Duplicate constraint", form.cboConst(1));
    Pick(form.cboConst(1), "MolaLity");
    Refused(form, "Select the component", form.cmbConstrComp(1));
    Pick(form.cmbConstrComp(1), "ADP");
    form.txtConst(1).UserReplaceAll("0.1");
    const char* unknown = "Co-factor content is not defined\nAre you sure it is unknown? | "
                          "magnesium chloride";
    desktop.Expect(unknown, ui::Answer::No);
    form.cmdAccept.UserClick();
    EXPECT_TRUE(form.cboConst(2).HasFocus());
    desktop.Expect(unknown, ui::Answer::Yes);
    Refused(form, "Please specify the method of measurement", form.txtMethod);
    form.txtMethod.UserReplaceAll("calorimetry");
    desktop.Expect(unknown, ui::Answer::Yes);
    Refused(form, "Duplicate varible", form.cboConst(1));
    // Its content as a constraint answers the question.
    Pick(form.cmbConstrComp(1), "magnesium chloride");
    EXPECT_EQ(Lines(), "");
    Accept(form);
    EXPECT_EQ(globals.CurrentR->recBR.Count(), 1U);
}

TEST_F(frmBioReactTest, WhatWasTypedIsStoredOnceTheTableIsAccepted) {
    auto& form = BeginHydrolysis();
    Pick(form.cmbComp(0), "magnesium chloride");
    Pick(form.cboFunction(0), "Inert");
    form.txtContent(0).UserReplaceAll("in excess");
    Pick(form.cboConst(0), "MolaLity");
    Pick(form.cmbConstrComp(0), "magnesium chloride");
    form.txtConst(0).UserReplaceAll("0.010");
    form.txtComment.UserReplaceAll("as printed");
    desktop.OnModal([](ui::Form& shown) { shown.Close(); });
    form.cmdAccept.UserClick();
    EXPECT_TRUE(form.IsVisible() && globals.Saved);
    EXPECT_EQ(Lines(), "");
    Accept(form);
    EXPECT_TRUE(globals.DialogAccepted && !globals.Saved);
    const std::string lines = Lines();
    EXPECT_EQ(lines, "^A & & B & AAA BBB 1/15/2026 as printed\n"
                     "BR 1 0\n"
                     "BP 1 56655 0 1 56655 ATP C10H16N5O13P3 0 0 -1 S 0 & &\n"
                     "BP 0 7732185 0 & 7732185 water H2O 0 0 -1 S 0 & &\n"
                     "BP 0 58640 0 & 58640 ADP C10H15N5O10P2 0 0 1 S 0 & &\n"
                     "BP 0 7664382 0 & 7664382 phosphate H3O4P 0 0 1 S 0 & &\n"
                     "BP 0 7786303 0 & 7786303 magnesium_chloride Cl2Mg 0 0 0 & 0 & &\n"
                     "BC 7786303 Inert S & in excess\n"
                     "BV H kJ/mol & & & P &\n"
                     "BV T K & & & V &\n"
                     "BV M mol/kg & 7786303 & C 0.010\n"
                     "BE\nBM calorimetry\nB0 0 0\nBD 1 2\n");
    // A look changes nothing but the row that the table adds.
    const auto set = globals.CurrentR->recBR.Item(1);
    auto& look = Edit(set);
    EXPECT_EQ(look.Caption(), "Edit: Bio Reaction Properties");
    EXPECT_EQ(look.txtReaction.Text(), "ATP + water = ADP + phosphate");
    desktop.OnModal([](ui::Form& shown) {
        Globals().DialogAccepted = true;
        shown.Close();
    });
    look.cmdAccept.UserClick();
    EXPECT_EQ(Lines(), lines);
    Edit(set).txtCoeff(0).UserReplaceAll("-2");
    forms.Get<frmBioReact>("frmBioReact").cmdCancel.UserClick();
    EXPECT_EQ(Lines(), lines);
    globals.EditBioReact = false;
    // Another one like it has its definition and rows of its own.
    globals.BioSetToRepeat = set;
    Accept(Begin());
    const auto second = globals.CurrentR->recBR.Item(2);
    EXPECT_EQ(second->SetNo * 10 + static_cast<int>(second->recD.size()), 21);
    EXPECT_TRUE(second->Equal(*set));
    EXPECT_EQ(globals.BioSetToRepeat, nullptr);
    // A compound that stands in bio data shows what is asked of these, whatever is configured.
    for (const char* rn : {"7732185", "7786303", "58640"}) {
        globals.CurrentL = globals.CurrentR->FindL(rn);
        globals.EditCompound = true;
        auto& substance = forms.Get<frmSubst>("frmSubst");
        substance.Show();
        EXPECT_TRUE(substance.txtEC.IsShown()) << rn;
        substance.Close();
        forms.DropClosed();
    }
}

struct Balancing {
    std::string compounds, coefficients, message, rows;
};

TEST_F(frmBioReactTest, BalancingGivesWholeNumbersWithReactantsInFront) {
    AddCompound("1", "hydrogen", "H2");
    AddCompound("2", "oxygen", "O2");
    AddCompound("3", "carbon monoxide", "CO");
    AddCompound("4", "carbon", "C");
    AddCompound("5", "carbon dioxide", "CO2");
    AddCompound("6", "humus", "");
    const Balancing cases[] = {
        {"ATP,ADP,carbon,water,phosphate", ",1,,,", "",
         "ATP -1 Solution 1|water -1 Solution None|ADP 1 Solution None|"
         "phosphate 1 Solution None|"},
        {"water,hydrogen,oxygen", "1,,", "",
         "hydrogen -2 Solution None|oxygen -1 Solution None|water 2 Solution None|"},
        {"ATP,ADP,phosphate", "-1,1,1", "Unable to equate\nTry to add or eliminate a participant",
         "ATP -1 Solution 1|ADP 1 Solution None|phosphate 1 Solution None|"},
        {"carbon,oxygen,carbon monoxide,carbon dioxide", ",,,", "The equation is ambiguous",
         "carbon  Solution None|oxygen  Solution None|carbon monoxide  Solution None|"
         "carbon dioxide  Solution None|"},
        {"ATP", "",
         "Unable to Balance Reaction\nVerify the reaction participants or "
         "Enter the stoichiometric coefficients manually.\n"
         "(Reactants = negative numbers; Products = positive numbers)",
         "ATP  Solution 1|"},
        {"humus,ATP", ",", "Participant formula is misisng",
         "humus  Solution None|ATP  Solution 1|"}};
    for (const Balancing& one : cases) {
        auto& form = Begin();
        const auto coefficients = Split(one.coefficients, ',');
        int n = 0;
        for (const std::string& compound : Split(one.compounds, ',')) {
            Put(form, n, compound, coefficients[static_cast<std::size_t>(n)]);
            ++n;
        }
        if (!one.message.empty()) desktop.Expect(one.message);
        form.cmdEquate.UserClick();
        EXPECT_EQ(Rows(form), one.rows);
        form.cmdCancel.UserClick();
    }
}

TEST_F(frmBioReactTest, TheEquationIsShownAsItsNotationMeansIt) {
    auto& form = BeginHydrolysis();
    EXPECT_EQ(form.lblSurplus.Caption(), "Balanced");
    Pick(form.cmbPart(1), "None");
    EXPECT_EQ(form.txtReaction.Text(), "ATP = ADP + phosphate");
    EXPECT_EQ(form.lblSurplus.Caption(), "Need not balance. More in the products: H 2, O 1");
    desktop.Expect("Reaction is NOT balanced | Error");
    form.cmdCheck.UserClick();
    form.optChem.UserClick();
    EXPECT_EQ(form.lblSurplus.Caption(), "Not balanced. More in the products: H 2, O 1");
    Pick(form.cmbPart(1), "water");
    desktop.Expect("Reaction is NOT balanced | Error");
    form.cmdCheck.UserClick();
    form.txtCoeff(1).UserReplaceAll("-1");
    // What has no coefficient counts on neither side.
    Pick(form.cmbPart(4), "magnesium chloride");
    EXPECT_EQ(form.lblSurplus.Caption(), "Coefficients are missing");
    desktop.Expect("Reaction is balanced");
    form.cmdCheck.UserClick();
    Pick(form.cmbPart(4), "None");
    globals.CurrentR->FindL("56655")->Charge = -4;
    globals.CurrentR->FindL("58640")->Charge = -3;
    form.txtCoeff(1).UserReplaceAll("-1.0");
    EXPECT_EQ(form.lblSurplus.Caption(), "Balanced but for the charge: +1 in the products");
}

TEST_F(frmBioReactTest, ACompoundMadeOnTheWayIsABioCompoundOnlyWhenNobodyKnowsIt) {
    auto& form = Begin();
    const auto make = [&](const std::string& number, const std::string& name,
                          const std::string& formula) {
        desktop.OnModal([=](ui::Form& shown) {
            auto& substance = dynamic_cast<frmSubst&>(shown);
            EXPECT_TRUE(substance.txtEC.IsShown());
            substance.txtRN2.UserReplaceAll(number);
            substance.txtName.UserEdited(name);
            substance.txtFormula.UserReplaceAll(formula);
            substance.cmdAccept.UserClick();
        });
    };
    make("57-48-7", "D-fructose", "C6H12O6");
    Pick(form.cmbPart(0), "New");
    EXPECT_EQ(form.cmbPart(0).Chosen() + " " + form.cboPhase(0).Chosen(), "D-fructose Solution");
    EXPECT_FALSE(globals.CurrentR->FindL("57487")->isBio);
    make("", "an unheard-of enzyme", "C31H64O");
    desktop.Expect("Substance not found in the database");
    desktop.Expect("Do you want to add a new substance not registered in the database?",
                   ui::Answer::Yes);
    Pick(form.cmbComp(0), "New");
    EXPECT_EQ(form.cmbComp(0).Chosen(), "an unheard-of enzyme");
    EXPECT_TRUE(globals.CurrentR->recL.Item(globals.CurrentR->recL.Count())->isBio);
    EXPECT_EQ(globals.DataContext, "Bio");
}

TEST_F(frmBioReactTest, NextChecksItsPageAndLeadsOn) {
    auto& form = BeginHydrolysis();
    form.txtCoeff(0).UserReplaceAll("");
    desktop.Expect("Enter coefficient for 1st participant");
    form.Next1.UserClick();
    EXPECT_EQ(form.TabStrip1.Index(), 0);
    form.txtCoeff(0).UserReplaceAll("-1");
    const std::pair<ui::CommandButton*, ui::Control*> steps[] = {{&form.Next1, &form.cmbComp(0)},
                                                                 {&form.Next2, &form.cboProp(0)},
                                                                 {&form.Next3, &form.cboVar(0)},
                                                                 {&form.Next4, &form.cboConst(0)},
                                                                 {&form.Next5, &form.txtMethod}};
    for (const auto& [button, field] : steps) {
        button->UserClick();
        EXPECT_TRUE(field->HasFocus()) << button->Name();
    }
}

} // namespace
} // namespace vexora::test
