#include "tables/frmSelect.h"

#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsS.h"
#include "support/DialogFixture.h"
#include "tables/ProcessWords.h"

namespace vexora::test {
namespace {

class frmSelectTest : public DialogFixture {
protected:
    frmSelectTest() {
        forms.Register<frmSelect>("frmSelect");
        water = AddCompound("7732185", "water", "H2O");
        ethanol = AddCompound("64175", "ethanol", "C2H6O");
        acetone = AddCompound("67641", "acetone", "C3H6O");
        AddSample(*water);
        AddSample(*ethanol);
        mixture = AddMixture({"64175", "7732185"});
        globals.CurrentM = mixture;
        globals.CurrentL = water;
        globals.CurrentS = water->recS.Item(1);
    }
    static void AddSample(clsL& compound) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = std::to_string(compound.recS.Count() + 1);
        sample->SMPDESC = "ns";
        sample->AttachTo(compound);
    }
    std::shared_ptr<clsM> AddMixture(const std::vector<std::string>& numbers) {
        auto made = std::make_shared<clsM>();
        made->MixType = static_cast<int>(numbers.size());
        for (int n = 1; n <= made->MixType; ++n)
            made->RN(n, numbers[static_cast<std::size_t>(n - 1)]);
        made->AttachTo(*globals.CurrentR);
        return made;
    }
    frmSelect& At(const std::string& key) {
        globals.CurrentKey = key;
        return Open<frmSelect>("frmSelect");
    }
    static std::string Entries(const ui::ItemList& list) {
        std::string text;
        for (const std::string& item : list.Items())
            text += item + "|";
        return text;
    }
    static std::string Samples(const frmSelect& dialog) {
        std::string text;
        for (const auto& list : dialog.cboSample)
            text += (list->IsShown() ? list->Chosen() : "-") + "|";
        return text;
    }
    std::string Result() const {
        std::string text = globals.TableKind + " " + globals.SystemClass + " " +
                           globals.DataContext + (globals.StaticMode ? " static" : "");
        for (const std::string& sample : globals.ChosenSamples)
            text += " " + sample;
        return text + (globals.DialogAccepted ? " accepted" : "");
    }

    std::shared_ptr<clsL> water, ethanol, acetone;
    std::shared_ptr<clsM> mixture;
};

TEST_F(frmSelectTest, AMixtureWithOneSampleEachNeedsNoClickBesideOK) {
    auto& dialog = At("RM");
    EXPECT_EQ(dialog.cboType.Chosen(), PhaseEquilibriaKind);
    EXPECT_EQ(Entries(dialog.cboMixt), "ethanol + water|New|");
    EXPECT_EQ(Samples(dialog), "-|-|-|");
    dialog.chkStatic.UserClick();
    dialog.cmdOK.UserClick();
    EXPECT_EQ(Result(), std::string(PhaseEquilibriaKind) + " Bin Bin static 1 1 accepted");
    EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(frmSelectTest, SamplesAreAskedWhereThereIsAChoiceOrNone) {
    AddSample(*water);
    const auto ternary = AddMixture({"64175", "67641", "7732185"});
    auto& dialog = At("RM");
    EXPECT_EQ(Samples(dialog), "1|1|-|");
    Pick(dialog.cboSample(1), "2");
    Pick(dialog.cboMixt, "ethanol + acetone + water");
    EXPECT_EQ(Samples(dialog), "1||1|");
    desktop.Expect("Please select sample");
    dialog.cmdOK.UserClick();
    EXPECT_TRUE(dialog.cboSample(1).HasFocus());
    EXPECT_FALSE(globals.DialogAccepted);
    EXPECT_EQ(globals.CurrentM, mixture); // until OK
    AddSample(*acetone);
    Pick(dialog.cboMixt, "ethanol + acetone + water");
    dialog.cmdOK.UserClick();
    EXPECT_EQ(Result(), std::string(PhaseEquilibriaKind) + " Tern Tern 1 1 1 accepted");
    EXPECT_EQ(globals.CurrentM, ternary);
    EXPECT_EQ(globals.CurrentMixType, 3);
}

TEST_F(frmSelectTest, ACompoundIsTakenWithItsSample) {
    AddSample(*water);
    globals.CurrentS = water->recS.Item(2);
    auto& dialog = At("RLS");
    EXPECT_EQ(Entries(dialog.cboMixt), "water|ethanol|acetone|New|");
    EXPECT_EQ(Samples(dialog), "2|-|-|");
    EXPECT_FALSE(dialog.chkStatic.IsShown());
    dialog.cmdOK.UserClick();
    EXPECT_EQ(Result(), std::string(ThermalFunctionsKind) + " Pure Pure 2 accepted");
    EXPECT_EQ(globals.CurrentS, water->recS.Item(2));
}

TEST_F(frmSelectTest, ANewMixtureIsChosenAndACancelledOneLeavesWhatWasThere) {
    auto& dialog = At("RM");
    desktop.ExpectModal("frmMixt", [](ui::Form& opened) { opened.CancelButton->UserClick(); });
    Pick(dialog.cboMixt, "New");
    EXPECT_EQ(dialog.cboMixt.Chosen(), "ethanol + water");
    desktop.ExpectModal("frmMixt", [](ui::Form& opened) {
        Pick(dynamic_cast<ui::ComboBox&>(*opened.Find("cmbComp1")), "water");
        Pick(dynamic_cast<ui::ComboBox&>(*opened.Find("cmbComp2")), "acetone");
        opened.DefaultButton->UserClick();
    });
    Pick(dialog.cboMixt, "New");
    EXPECT_EQ(dialog.cboMixt.Chosen(), "acetone + water");
    EXPECT_EQ(Samples(dialog), "|1|-|");
    EXPECT_TRUE(dialog.cboMixt.HasFocus());
    EXPECT_EQ(globals.OpenForms, std::vector<std::string>{"frmMain"});
    dialog.cmdCancel.UserClick();
    EXPECT_FALSE(globals.DialogAccepted);
}

TEST_F(frmSelectTest, OtherKindsOfDataAskForNothingElse) {
    const std::pair<const char*, const char*> cases[] = {
        {"RXS", "Bulk property|Phase equilibrium|Crystal structure|Decomposition thermodynamics|"},
        {"", "Bio Property from DSC (in solution)|Bio Substance Solubility|Bio Reaction|"}};
    globals.DataContext = "Pure";
    for (const auto& [key, entries] : cases) {
        auto& dialog = At(key);
        EXPECT_EQ(Entries(dialog.cboType), entries);
        EXPECT_EQ(dialog.Caption() + dialog.lblType.Caption(), "Data to enterKind of data:");
        EXPECT_EQ(Samples(dialog), "-|-|-|");
        EXPECT_FALSE(dialog.cboMixt.IsShown() || dialog.chkStatic.IsShown());
        desktop.Expect("Please select the kind of data");
        dialog.cmdOK.UserClick();
        EXPECT_TRUE(dialog.cboType.HasFocus());
        dialog.cboType.UserChoose(2);
        dialog.cmdOK.UserClick();
        EXPECT_TRUE(globals.DialogAccepted && !dialog.IsOpen());
    }
    EXPECT_EQ(globals.TableKind + " " + globals.DataContext, "Bio Reaction Pure");
    EXPECT_EQ(globals.CurrentL, water);
}

std::string Texts(const std::vector<HeadEntry>& entries) {
    std::string text;
    for (const HeadEntry& entry : entries)
        text += entry.code + "=" + entry.text + "|";
    return text;
}

TEST_F(frmSelectTest, HeadsNameTheComponentsAndTellNamesakesApart) {
    EXPECT_EQ(Texts(Headings(mixture.get())),
              "=Nothing|T=Temperature|P=Pressure|X1=Mole fraction of ethanol|"
              "X2=Mole fraction of water|W1=Weight fraction of ethanol|"
              "W2=Weight fraction of water|J1=Molarity of ethanol|J2=Molarity of water|"
              "V1=Volume fraction of ethanol|V2=Volume fraction of water|CU=Comb.Uncertainty|");
    EXPECT_EQ(Texts(Headings(nullptr)),
              "=Nothing|T=Temperature|CP=Heat capacity at constant pressure Cp|"
              "CV=Heat capacity at constant volume Cv|"
              "CS=Heat capacity at vapor saturation pressure Csat|H=Enthalpy|"
              "H/T=Enthalpy function {H(T)-H(0)}/T|S=Entropy|G=Gibbs energy|"
              "G/T=Gibbs energy function {G(T)-H(0)}/T|UA=Helmholtz energy|CU=Comb.Uncertainty|");
    ethanol->Name = "water";
    EXPECT_EQ(Texts(HeadPhases(mixture.get())),
              "L=Liquid|G=Gas|L1=Liquid mixture 1|L2=Liquid mixture 2|"
              "Cp1=Crystal of pure component 1|Cp2=Crystal of pure component 2|");
    EXPECT_EQ(Texts(HeadUnits("W1")), "D=Dimensionless|0.01=per cent|0.000001=ppm|"
                                      "0.001=mmol/mol|*=ALL OTHER UNITS|");
    EXPECT_EQ(Texts(HeadUnits("T")), "S=K|C=C|F=F|R=R|*=ALL OTHER UNITS|");
    EXPECT_EQ(HeadSystemUnit("CP") + HeadSystemUnit("X1"), "J/K/mol");
    EXPECT_TRUE(HeadUnits("CU").empty());
}

} // namespace
} // namespace vexora::test
