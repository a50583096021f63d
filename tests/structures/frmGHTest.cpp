#include "structures/frmGH.h"

#include "records/LineWriter.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"
#include "records/clsR.h"
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

class frmGHTest : public DataDialogFixture {
protected:
    frmGHTest() {
        forms.Register<frmTable>("frmBioData");
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->AttachTo();
        AddCompound("74828", "methane", "CH4");
        AddCompound("7732185", "water", "H2O");
        auto complex = std::make_shared<clsComplex>();
        complex->SetNo(1);
        complex->CType = "Gas Hydrate";
        complex->Components = {{"74828", "", "Gas", {}}, {"7732185", "", "Water", {}}};
        complex->AttachTo(*globals.CurrentR);
        sample = std::make_shared<clsComplexSample>();
        sample->SetNo(2);
        sample->AttachTo(*complex);
        sample->SetMe();
        globals.BioType = "G";
    }
    ~frmGHTest() override { forms.CloseAll(); }

    static void AddCompound(const std::string& rn, const std::string& name,
                            const std::string& formula) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = name;
        compound->Formula = formula;
        compound->AttachTo(*Globals().CurrentR);
    }
    frmGH& Begin() {
        forms.DropClosed();
        return Open<frmGH>("frmGH");
    }
    void Accept(frmGH& form) {
        desktop.OnModal([](ui::Form& shown) { dynamic_cast<frmTable&>(shown).Accept(); });
        form.cmdAccept.UserClick();
        EXPECT_FALSE(forms.Find("frmGH") && forms.Find("frmGH")->IsOpen());
        globals.EditBioProp = false;
        forms.DropClosed();
    }
    void Refused(frmGH& form, const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(ui::IsOnTurnedPage(form.Arrangement, control)) << text;
    }
    std::string Lines() const {
        LineWriter out;
        for (const auto& set : sample->recBP)
            set->PrintBP(out);
        return out.Text();
    }

    std::shared_ptr<clsComplexSample> sample;
};

TEST_F(frmGHTest, ChecksComeInTheOrderOfThePages) {
    auto& form = Begin();
    std::string phases;
    for (const std::string& name : form.cboPhase4.Items())
        phases += name + ",";
    EXPECT_EQ(phases, "Crystal,Crystal sI,Crystal sII,Crystal sH,Liquid,Liquid 1,Liquid 2,Gas,"
                      "None,");
    EXPECT_EQ(form.cmbVarComp(0).Count(), 3);
    Pick(form.cboPhase1, "Crystal sI");
    Pick(form.cboPhase3, "Crystal sI");
    Refused(form, "Duplicate phase", form.cboPhase3);
    Pick(form.cboPhase3, "Gas");
    Refused(form, "No property defined", form.cboProp(0));
    Pick(form.cboProp(0), "Pressure");
    Refused(form, "Select the phase", form.cboPropPhase(0));
    Pick(form.cboPropPhase(0), "Gas");
    Pick(form.cboPropUnit(0), "MPa");
    Pick(form.cboProp(1), "Pressure");
    Pick(form.cboPropPhase(1), "Gas");
    Refused(form, "Duplicate property", form.cboProp(1));
    Pick(form.cboProp(1), "None");
    Pick(form.cboVar(0), "Var. Mole fraction");
    Refused(form, "Select the component", form.cmbVarComp(0));
    Pick(form.cmbVarComp(0), "methane");
    Refused(form, "Select the phase", form.cboVarPhase(0));
    Pick(form.cboVarPhase(0), "Gas");
    form.chkVarUnc(0).UserClick();
    form.txtVarUnc(0).UserReplaceAll("x");
    Refused(form, "Enter a numerical value", form.txtVarUnc(0));
    form.txtVarUnc(0).UserReplaceAll("");
    Pick(form.cboVar(1), "Var. Mole fraction");
    Pick(form.cmbVarComp(1), "methane");
    Pick(form.cboVarPhase(1), "Gas");
    Refused(form, "Duplicate varible", form.cboVar(1));
    Pick(form.cboVarPhase(1), "Crystal sI");
    Pick(form.cboConst(0), "Mole fraction");
    Refused(form, "Select the component", form.cmbConstrComp(0));
    Pick(form.cmbConstrComp(0), "water");
    Refused(form, "Select the phase", form.cboConstPhase(0));
    Pick(form.cboConstPhase(0), "Gas");
    Refused(form, "Enter a numerical value", form.txtConst(0));
    form.txtConst(0).UserReplaceAll("0,001");
    Pick(form.cboConst(1), "Mole fraction");
    Pick(form.cmbConstrComp(1), "water");
    Pick(form.cboConstPhase(1), "Gas");
    form.txtConst(1).UserReplaceAll("1");
    Refused(form, "Duplicate constraint", form.cboConst(1));
    Pick(form.cboConst(1), "None");
    Refused(form, "Please specify the method of measurement", form.txtMethod);
    form.txtMethod.UserReplaceAll("Visual observation");
    // A phase that is there no more has to be chosen anew.
    Pick(form.cboPhase1, "Liquid");
    Refused(form, "Select the phase", form.cboVarPhase(1));
    Pick(form.cboVarPhase(1), "Liquid");
    EXPECT_EQ(Lines(), "");
    Accept(form);
    EXPECT_EQ(Lines(), "^A & & B & & & 1/15/2026 &\n"
                       "BN 1\n"
                       "BP -1 0 2 & Gas_Hydrate_(methane_+_water) -1 & 0 0 & &\n"
                       "BP 74828 0 & & methane 74828 CH4 0 0 & &\n"
                       "BP 7732185 0 & & water 7732185 H2O 0 0 & &\n"
                       "BH G 2 & & L & G &\n"
                       "BC 74828 Gas & & &\n"
                       "BC 7732185 Water & & &\n"
                       "BV P MPa G & & P &\n"
                       "BV X 1 G 74828 * V &\n"
                       "BV X 1 L 74828 & V &\n"
                       "BV X 1 G 7732185 & C 0.001\n"
                       "BE\n"
                       "BM Visual observation\n");
    EXPECT_EQ(globals.CurrentR->recBP.Count(), 0U);
}

TEST_F(frmGHTest, ALookChangesNothing) {
    auto set = std::make_shared<clsBP>();
    set->SetNo = 1;
    set->PrpType = "G";
    set->RN = "-1";
    set->SMPNM = "2";
    set->PHASE1 = "CS1";
    set->PHASE3 = "odd";
    set->Components = {{"7732185", "3", "Water", "L", "tap"}};
    set->Method = "as printed";
    set->Add({BioRole::Property, "P", "MPa", "G", "", "", ""});
    set->Add({BioRole::Variable, "T", "K", "CS2", "", "0.1", ""});
    set->Add({BioRole::Variable, "X", "1", "odd", "7732185", "*", ""});
    set->AttachTo(*sample);
    set->LoadRow("BD 2.76 273.7 0.5 0.1");
    const std::string lines = Lines();
    globals.EditBioProp = true;
    set->SetMe();
    auto& form = forms.Get<frmGH>("frmGH");
    form.Show();
    Accept(form);
    EXPECT_EQ(Lines(), lines);
}

} // namespace
} // namespace vexora::test
