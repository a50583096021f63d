#include "bio/frmBioProp.h"

#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

/// Stands for the table, which is accepted as it stands.
class frmTable : public ui::Form {
public:
    frmTable() : Form("frmBioData", "Table") {}
    void Accept() {
        Globals().DialogAccepted = true;
        Close();
    }
    void Unload() override { CloseForm(); }
};

class frmBioPropTest : public DataDialogFixture {
protected:
    frmBioPropTest() {
        forms.Register<frmTable>("frmBioData");
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->AttachTo();
        globals.CurrentR->SOURCEDOC = "O";
        globals.CompilerCode = "AAA";
        globals.ContributorCode = "BBB";
        globals.DataContext = "Bio";
        AddCompound("9001632", "lysozyme");
        AddCompound("7732185", "water");
        AddCompound("56406", "glycine");
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = "1";
        sample->AttachTo(*globals.CurrentR->FindL("9001632"));
    }
    ~frmBioPropTest() override { forms.CloseAll(); }

    static void AddCompound(const std::string& rn, const std::string& name) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = name;
        compound->AttachTo(*Globals().CurrentR);
    }
    frmBioProp& Begin(const std::string& type) {
        forms.DropClosed();
        globals.BioType = type;
        return Open<frmBioProp>("frmBioProp");
    }
    /// Lysozyme in water with glycine, unfolding.
    frmBioProp& BeginUnfolding() {
        auto& form = Begin("D");
        Pick(form.cmbSubst, "lysozyme");
        form.cboState1.UserEdited("Native");
        form.cboState2.UserEdited("unfolded by heat");
        Component(form, 0, "water", "Solvent");
        Component(form, 1, "glycine", "Buffer component");
        Pick(form.cboProp(0), "Temperature of 1/2 conversion");
        Pick(form.cboVar(0), "Var. MolaLity");
        Pick(form.cmbVarComp(0), "glycine");
        form.txtMethod.UserReplaceAll("DSC");
        return form;
    }
    static void Component(frmBioProp& form, int n, const std::string& name,
                          const std::string& function) {
        Pick(form.cmbComp(n), name);
        Pick(form.cboFunction(n), function);
    }
    frmBioProp& Edit(const std::shared_ptr<clsBP>& set) {
        forms.DropClosed();
        globals.EditBioProp = true;
        globals.OpenForms.clear();
        set->SetMe();
        auto& form = forms.Get<frmBioProp>("frmBioProp");
        form.Show();
        return form;
    }
    void Accept(frmBioProp& form) {
        desktop.OnModal([](ui::Form& shown) { dynamic_cast<frmTable&>(shown).Accept(); });
        form.cmdAccept.UserClick();
        EXPECT_FALSE(forms.Find("frmBioProp") && forms.Find("frmBioProp")->IsOpen());
        globals.EditBioProp = false;
        forms.DropClosed();
    }
    void Refused(frmBioProp& form, const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(ui::IsOnTurnedPage(form.Arrangement, control)) << text;
    }
    std::string Lines() const {
        LineWriter out;
        for (const auto& set : globals.CurrentR->recBP)
            set->PrintBP(out);
        return out.Text();
    }
    /// The set as read, with two rows and statements of both quantities.
    std::shared_ptr<clsBP> Unfolding() {
        Accept(BeginUnfolding());
        const auto set = globals.CurrentR->recBP.Item(1);
        EXPECT_NE(set->LoadRow("BD 330.1 0.05"), OpenRecord::Taken::NoRows);
        EXPECT_NE(set->LoadRow("BD 331.2 0.10"), OpenRecord::Taken::NoRows);
        set->recU[1].iUnc = true;
        set->recU[1].UValue = "0.01";
        return set;
    }
    static std::string Rows(const clsBP& set) {
        std::string text;
        for (const clsBD& row : set.recD) {
            for (const BioCell& cell : row.Cells)
                text += std::string(cell.value) + " ";
            text += "|";
        }
        return text + set.recU[1].UValue;
    }
};

TEST_F(frmBioPropTest, ChecksOfATransitionComeInTheOrderOfThePages) {
    auto& form = Begin("D");
    EXPECT_EQ(form.TabStrip1.Item(0), "Initial state");
    EXPECT_EQ(form.cboState1.Text(), "Select or enter text here");
    EXPECT_EQ(form.txtConst(0).Text(), "101.325");
    Refused(form, "Select the substance for which the property is stored", form.cmbSubst);
    Pick(form.cmbSubst, "lysozyme");
    EXPECT_EQ(form.cboSubstSample.Chosen(), "1");
    Refused(form, "Please specity the initial state", form.cboState1);
    // What is typed takes the place of the prompt.
    form.UserKey(ui::CharacterKey(U'N'));
    EXPECT_EQ(form.cboState1.Text(), "N");
    form.cboState1.UserEdited("Native");
    form.cboState2.UserEdited(" ");
    Refused(form, "Please specity the final state", form.cboState2);
    form.cboState2.UserEdited("Native");
    Pick(form.cmbComp(1), "glycine");
    Refused(form, "Select function of component glycine", form.cboFunction(1));
    Pick(form.cboFunction(1), "Inert");
    Refused(form, "No property defined", form.cboProp(0));
    Pick(form.cboProp(1), "Enthalpy of transition");
    form.chkPropUnc(1).UserClick();
    for (const char* odd : {"some", "-1", "%"}) {
        form.txtPropUnc(1).UserReplaceAll(odd);
        Refused(form, "Enter a numerical value", form.txtPropUnc(1));
    }
    form.txtPropUnc(1).UserReplaceAll("5 %");
    Pick(form.cboProp(0), "Enthalpy of transition");
    Refused(form, "Duplicate property", form.cboProp(1));
    Pick(form.cboProp(0), "None");
    Pick(form.cboVar(0), "Var. MolaLity");
    Refused(form, "Select the component", form.cmbVarComp(0));
    Pick(form.cmbVarComp(0), "glycine");
    Pick(form.cboVar(1), "Var. MolaLity");
    Pick(form.cmbVarComp(1), "glycine");
    Refused(form, "Duplicate varible", form.cboVar(1));
    Pick(form.cboVar(1), "Prop. Peak temperature");
    Pick(form.cboConst(1), "pH");
    Refused(form, "Enter a numerical value", form.txtConst(1));
    form.txtConst(1).UserReplaceAll("7,0");
    form.chkConstrUnc(1).UserClick();
    Refused(form, "Enter a numerical value", form.txtConstrUnc(1));
    form.txtConstrUnc(1).UserReplaceAll("0,1");
    Pick(form.cboConst(2), "pH");
    form.txtConst(2).UserReplaceAll("7");
    Refused(form, "Duplicate constraint", form.cboConst(2));
    Pick(form.cboConst(2), "MolaLity");
    form.txtConst(2).UserReplaceAll("1");
    Refused(form, "Select the component", form.cmbConstrComp(2));
    Pick(form.cmbConstrComp(2), "glycine");
    Refused(form, "Duplicate varible", form.cboConst(2));
    Pick(form.cboConst(2), "None");
    Refused(form, "Please specify the method of measurement", form.txtMethod);
    form.txtMethod.UserReplaceAll("DSC");
    Refused(form, "Please specity the final state other than initial state", form.cboState2);
    form.cboState2.UserEdited("Denatured");
    EXPECT_EQ(Lines(), "");
    Accept(form);
    EXPECT_EQ(Lines(), "^A & O B & AAA BBB 1/15/2026 &\n"
                       "BN 1\n"
                       "BP 9001632 0 1 & lysozyme 9001632 & 0 0 & &\n"
                       "BP 56406 0 & & glycine 56406 & 0 0 & &\n"
                       "BH D 1 Native Denatured S S & &\n"
                       "BC 56406 Inert S & &\n"
                       "BV H kJ/mol & & 5% P &\n"
                       "BV Tp K & & & P &\n"
                       "BV M mol/kg & 56406 & V &\n"
                       "BV P kPa & & & C 101.325\n"
                       "BV pH 1 & & 0.1 C 7.0\n"
                       "BE\n"
                       "BM DSC\n");
}

TEST_F(frmBioPropTest, ASolubilityAsksForItsSolvent) {
    auto& form = Begin("S");
    EXPECT_EQ(form.TabStrip1.Item(0) + "," + form.TabStrip1.Item(1), "Phase 1,Phase 2");
    EXPECT_FALSE(form.cboState1.IsShown() || form.lblState2.IsShown());
    EXPECT_EQ(form.cboPhase1.Chosen() + "," + form.cboPhase2.Chosen(), "Solution,Crystal");
    Pick(form.cmbSubst, "glycine");
    Component(form, 0, "water", "Inert");
    EXPECT_LT(form.cboProp(0).Find("Peak temperature"), 0);
    Pick(form.cboProp(0), "Mole fraction");
    Pick(form.cboVar(0), "Var. Solvent: mole fraction");
    Pick(form.cmbVarComp(0), "glycine");
    Refused(form, "Please review the Composition tab\nglycine is not a solvent component",
            form.cmbComp(0));
    Pick(form.cmbVarComp(0), "water");
    Refused(form, "Please review the Composition tab\nwater is not a solvent component",
            form.cboFunction(0));
    Pick(form.cboFunction(0), "Solvent");
    Refused(form, "Please specify the method of measurement", form.txtMethod);
    form.txtMethod.UserReplaceAll("gravimetric");
    Accept(form);
    EXPECT_EQ(globals.CurrentR->recBP.Item(1)->ShowKey(), "1: Solubility of glycine in water");
}

TEST_F(frmBioPropTest, ALookChangesNothingAndARepetitionTakesTheDefinition) {
    const auto set = Unfolding();
    const std::string lines = Lines();
    Accept(Edit(set));
    EXPECT_EQ(Lines(), lines);
    auto& form = Edit(set);
    EXPECT_EQ(form.Caption(), "Edit: Bio System Properties");
    form.cboState1.UserEdited("Monomer");
    Pick(form.cboVar(0), "None");
    form.cmdCancel.UserClick();
    EXPECT_EQ(Lines(), lines);
    globals.EditBioProp = false;
    globals.BioSetToRepeat = set;
    Accept(Begin(""));
    const auto second = globals.CurrentR->recBP.Item(2);
    EXPECT_EQ(second->SetNo, 2);
    EXPECT_TRUE(second->recD.empty());
    EXPECT_EQ(second->Quantities(), set->Quantities());
    EXPECT_EQ(second->State2, "unfolded by heat");
}

/// A table that is cancelled leaves all as it was.
TEST_F(frmBioPropTest, TheSetIsStoredWithItsTable) {
    auto& form = BeginUnfolding();
    desktop.OnModal([](ui::Form& shown) { shown.Close(); });
    form.cmdAccept.UserClick();
    EXPECT_TRUE(form.IsVisible());
    EXPECT_EQ(Lines(), "");
    Accept(form);
    EXPECT_TRUE(globals.DialogAccepted && !globals.Saved);
}

TEST_F(frmBioPropTest, FiguresStayWithWhatTheyAreOf) {
    struct Step {
        const char* question; // with its last word as asked
        ui::Answer answer;
        std::function<void(frmBioProp&)> change;
        std::string rows; // "" where the form stays open
    };
    const auto ofWater = [](frmBioProp& form) { Pick(form.cmbVarComp(0), "water"); };
    const auto swapComponents = [](frmBioProp& form) {
        Component(form, 0, "glycine", "Buffer component");
        Component(form, 1, "water", "Solvent");
        Pick(form.cmbVarComp(0), "glycine");
    };
    const std::string ask = "The set has figures of MolaLity of glycine in mol/kg\n"
                            "Do they stand for MolaLity of water in mol/kg from now on? "
                            "With No they are dropped.";
    const Step steps[] = {
        {ask.c_str(), ui::Answer::Yes, ofWater, "330.1 0.05 |331.2 0.10 |0.01"},
        {ask.c_str(), ui::Answer::No, ofWater, "330.1  |331.2  |"},
        {ask.c_str(), ui::Answer::Cancel, ofWater, ""},
        {"The set has figures of MolaLity of glycine, which go with it\nGo on?", ui::Answer::No,
         [](frmBioProp& form) { Pick(form.cboVar(0), "None"); }, ""},
        {"The set has figures of MolaLity of glycine in mol/kg\nDo they stand for MolaLity of "
         "glycine in mmol/kg from now on? With No they are dropped.",
         ui::Answer::Yes, [](frmBioProp& form) { Pick(form.cboVarUnit(0), "mmol/kg"); },
         "330.1 0.05 |331.2 0.10 |0.01"},
        {"", ui::Answer::Ok,
         [](frmBioProp& form) {
             Pick(form.cboVar(0), "Var. Temperature");
             Pick(form.cboVar(0), "None");
             Pick(form.cboVar(2), "Var. MolaLity");
             Pick(form.cmbVarComp(2), "glycine");
         },
         "330.1 0.05 |331.2 0.10 |0.01"},
        {"", ui::Answer::Ok, swapComponents, "330.1 0.05 |331.2 0.10 |0.01"},
        {"The table has values of lysozyme\nDo they stand for glycine from now on?", ui::Answer::No,
         [](frmBioProp& form) { Pick(form.cmbSubst, "glycine"); }, ""},
    };
    for (const Step& step : steps) {
        const auto set = Unfolding();
        auto& form = Edit(set);
        step.change(form);
        if (*step.question) desktop.Expect(step.question, step.answer);
        if (step.rows.empty()) {
            const std::string before = Lines();
            form.cmdAccept.UserClick();
            EXPECT_TRUE(form.IsVisible()) << step.question;
            EXPECT_EQ(Lines(), before);
            form.cmdCancel.UserClick();
        } else {
            Accept(form);
            EXPECT_EQ(Rows(*set), step.rows) << step.question;
        }
        globals.EditBioProp = false;
        set->Leave();
    }
}

/// As a file may have it: more rows than usual, codes and samples that are not known.
TEST_F(frmBioPropTest, NothingOfASetFromAFileIsLost) {
    auto set = std::make_shared<clsBP>();
    set->SetNo = 1;
    set->PrpType = "D";
    set->RN = "9001632";
    set->SMPNM = "7";
    set->State1 = "Native";
    set->State2 = "Denatured";
    set->PHASE1 = "Q1";
    set->Method = "DSC";
    for (int n = 0; n < 9; ++n)
        set->Components.push_back({"56406", "", "Solute", "L", "note " + std::to_string(n)});
    set->Add({BioRole::Property, "Q7", "furlong", "L", "", "*", ""});
    for (const char* code : {"T12", "Tp", "T0", "Cp", "H"})
        set->Add({BioRole::Property, code, "", "", "", "", ""});
    for (int n = 0; n < 10; ++n)
        set->Add({BioRole::Constraint, "M", "mol/kg", "",
                  n == 0 ? "56406" : "56406." + std::to_string(n + 1), "*", std::to_string(n)});
    set->AttachTo(*globals.CurrentR);
    const std::string lines = Lines();
    Accept(Edit(set));
    EXPECT_EQ(Lines(), lines);
}

} // namespace
} // namespace vexora::test
