#include "mixtures/frmMixtVar.h"

#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

/// Stands for the table, which is accepted as it stands.
class frmTable : public ui::Form {
public:
    frmTable() : Form("frmData2", "Table") {}
    void Accept() {
        Globals().DialogAccepted = true;
        Close();
    }
    void Unload() override { CloseForm(); }
};

class frmMixtVarTest : public DataDialogFixture {
protected:
    frmMixtVarTest() {
        forms.Register<frmTable>("frmData2");
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->AttachTo();
        for (const char* number : {"64175", "67641", "7732185"}) {
            const auto compound = std::make_shared<clsL>();
            compound->RN = number;
            compound->AttachTo(*globals.CurrentR);
            const auto sample = std::make_shared<clsS>();
            sample->SMPNM = "1";
            sample->SMPDESC = "ns";
            sample->AttachTo(*compound);
        }
        binary = AddMixture("^B 64175 7732185 &");
        ternary = AddMixture("^T 64175 67641 7732185 &");
    }
    ~frmMixtVarTest() override { forms.CloseAll(); }

    std::shared_ptr<clsM> AddMixture(const std::string& line) {
        const auto mixture = std::make_shared<clsM>();
        EXPECT_TRUE(mixture->Load(line));
        mixture->AttachTo(*globals.CurrentR);
        return mixture;
    }
    /// A set with one row and something stated about each of its quantities.
    std::shared_ptr<clsMV> Add(clsM& mixture, const std::string& line, const std::string& row,
                               const std::string& tags = "") {
        const auto set = std::make_shared<clsMV>();
        set->MixType = mixture.MixType;
        EXPECT_TRUE(set->Load(line)) << line;
        set->Header.EXPPURPOSE = "B";
        set->Header.DATACOMMENT = "Table 1 ::Method:UNKNOWN:" + tags;
        set->AttachTo(mixture);
        if (!row.empty()) set->LoadRow(row);
        return set;
    }
    static void State(clsMV& set, const std::string& line) {
        clsX item;
        item.Load(line);
        set.AddX(item);
    }
    frmMixtVar& Edit(const std::shared_ptr<clsMV>& set) {
        globals.EditMixtVar = true;
        globals.CurrentMV = set;
        globals.DataContext = set->DataContext();
        globals.CurrentMethod = std::make_shared<clsMethod>();
        auto& form = forms.Get<frmMixtVar>("frmMixtVar");
        form.Show();
        return form;
    }
    void Accept(frmMixtVar& form) {
        desktop.OnModal([](ui::Form& shown) { dynamic_cast<frmTable&>(shown).Accept(); });
        form.cmdOK.UserClick();
        EXPECT_EQ(forms.Find("frmMixtVar"), nullptr);
        globals.EditMixtVar = false;
        forms.DropClosed();
    }
    static std::string Lines(const clsMV& set) {
        LineWriter out;
        set.Print(out);
        return out.Text();
    }

    std::shared_ptr<clsM> binary, ternary;
};

TEST_F(frmMixtVarTest, ASecondLookThatChangesNothingKeepsEveryByte) {
    const struct {
        const char* line;
        const char* row;
    } sets[] = {
        {"^1 1 1 VDN S DIR 1 Y L T 293.15 P 101.325 W1 S & & & & & &", "^d 0.1 0.98 &"},
        {"^1 1 1 T C DIR 4 YCE L P 101.325 G -1 X1 S & & & & & &", "^d 0.17 95.5 &"},
        {"^2 1 1 P S DIR 1 SG L G -2 T S X1 S & & & & & &", "^g 300.0 4 0.1 1 7.5 2 0.3"},
        {"^1 1 1 T S DIR 1 Y L1 P 101.325 L2 & X1 S & & & & & &", "^d 0.1 300 &"},
        {"^1 1 1 T S DIR 1 Y L L2 & P 101.325 X1 S & & & & & &", "^d 0.1 300 &"},
        {"^1 1 1 AC1 S DIR 1 Y L G & T 298.15 X1 S & P & & & &", "^d 0.1 1.2 &"},
        {"^1 1 1 HA S DPT 1 Y L T 298.15 P 101.325 M S 2 & & & & C", "^d 0.1 1.2 &"},
        {"^1 1 1 G S DFR 1 Y L T 298.15 P 101.325 X1 S & & & 298.15 101.325 L", "^d 0.1 2 &"},
        {"^1 1 1 PC S DIR 1 Y L CLG & T 298.15 X1 S & & & & & &", "^d 0.1 2 &"},
        {"^2 1 1 RIX S DIR 1 N L P 101.325 T S X1 S 1 & x_y & & &", ""},
    };
    for (const auto& one : sets) {
        const auto set = Add(*binary, one.line, one.row, "WL = 5893:T = 280:m:dT:0.01:dX1:1%:");
        const std::string figures = " L - & & & - & & & + 95 0.05 - & & - & & &";
        for (int n = 0; n <= set->nVar; ++n)
            State(*set, "^X " + std::to_string(n) + " " + set->VARIABLE(n) + figures);
        for (const HeldConstant& constant : set->Constants())
            State(*set, "^X " + std::to_string(constant.item) + " " + constant.code + figures);
        const std::string before = Lines(*set);
        const std::string key = set->Key();
        frmMixtVar& form = Edit(set);
        if (*one.row == '\0') {
            form.cmdOK.UserClick();
            globals.EditMixtVar = false;
            forms.DropClosed();
        } else {
            Accept(form);
        }
        EXPECT_EQ(Lines(*set), before) << one.line;
        EXPECT_EQ(set->Key(), key);
    }
}

TEST_F(frmMixtVarTest, SetsOfTernariesComeBackAsTheyWere) {
    const struct {
        const char* line;
        const char* row;
    } sets[] = {
        {"^3 1 1 1 X1 S DIR 1 Y L1 L2 -6 X2 S X1 S X3 S & & & & & &", "^d 0.1 0.2 0.3 0.4 &"},
        {"^2 1 1 1 VA S DIR 1 Y L T 298.15 P 101.325 M1 S X2S S E & & & & &", "^d 1 0.2 58 &"},
        {"^1 1 1 1 W1 S DIR 1 Y L1 T 291.15 L2 & W2 0.2 W2 S & & & & & &", "^d 0.1 0.2 &"},
        {"^1 1 1 1 HEX S DIR 1 Y L T 298.15 P 101.3 X3 0.1 X1 S C & & & & &", "^d 0.1 0.2 &"},
    };
    for (const auto& one : sets) {
        const auto set = Add(*ternary, one.line, one.row);
        const std::string before = Lines(*set);
        Accept(Edit(set));
        EXPECT_EQ(Lines(*set), before) << one.line;
    }
}

TEST_F(frmMixtVarTest, StatementsGoWhereTheirConstraintGoes) {
    const auto set = Add(*binary, "^1 1 1 VDN S DIR 1 Y L T 293.15 P 101.325 W1 S & & & & & &",
                         "^d 0.1 0.98 &", "dT:0.01:dP:1:");
    State(*set, "^X 2 T L - & & & - & & & + 95 0.02 - & & - & & &");
    State(*set, "^X 3 P L - & & & - & & & + 95 0.5 - & & - & & &");
    frmMixtVar& form = Edit(set);
    // Pressure takes the first place, and a content that of the temperature.
    Pick(form.cboConstraint(0), "Pressure");
    Pick(form.cboConstrUnit(0), "torr");
    form.txtConstr(0).UserReplaceAll("760");
    Pick(form.cboConstraint(1), "Mole fraction of component 2");
    Pick(form.cboConstrUnit(1), "Dimensionless");
    form.txtConstr(1).UserReplaceAll("0.5");
    Pick(form.cboVar(0), "Temperature");
    Pick(form.cboVarUnit(0), "K");
    Accept(form);
    EXPECT_EQ(set->UX[2].PRPCODE, "P");
    EXPECT_EQ(set->UX[2].N, 2);
    EXPECT_EQ(set->UX[2].UValue, "3.8"); // 0.5 kPa
    EXPECT_FALSE(set->UX[3].IsKept());
    const std::string lines = Lines(*set);
    EXPECT_NE(lines.find("^1 1 1 VDN S DIR 1 Y L P 101.3 X2 0.5 T S "), std::string::npos) << lines;
    EXPECT_EQ(lines.find("dT:"), std::string::npos) << lines;
    EXPECT_NE(lines.find("dP:1.07:"), std::string::npos) << lines;
}

TEST_F(frmMixtVarTest, WhatIsStatedOfAConstraintFollowsItsUnit) {
    const auto set = Add(*binary, "^1 1 1 VDN S DIR 1 Y L T 293.15 P 101.325 X1 S & & & & & &",
                         "^d 0.1 0.98 &", "dP:0.2:dT:0.1:");
    State(*set, "^X 3 P L - & & & - & & & + 95 0.51 - & & - & & &");
    frmMixtVar& form = Edit(set);
    Pick(form.cboConstrUnit(1), "MPa");
    form.txtConstr(1).UserReplaceAll("0.101325");
    Accept(form);
    const std::string lines = Lines(*set);
    EXPECT_NE(lines.find(":dP:0.2:"), lines.npos) << lines;
    EXPECT_NE(lines.find("^X 3 P L - & & & - & & & + 95 0.51 "), lines.npos) << lines;
}

TEST_F(frmMixtVarTest, PrecisionsGoIntoSystemUnitsWithTheRows) {
    const auto set = Add(*binary, "^1 1 1 P T DIR 1 Y L T 293.15 G & X1 S & & & & & &",
                         "^d 0.1 75.00 &", "dP:0.5:dT:0.1:");
    set->Constraints[1] = {"T", "527.67", "L", "R"}; // as a dialog left it
    frmMixtVar& form = Edit(set);
    globals.OriginalUnits = false; // as chosen beside the property
    desktop.Expect("The rows of the table are brought to system units");
    Accept(form);
    const std::string lines = Lines(*set);
    EXPECT_NE(lines.find("dP:0.067:"), lines.npos) << lines;
    EXPECT_NE(lines.find("dT:0.06:"), lines.npos) << lines;
}

TEST_F(frmMixtVarTest, TheWavelengthOfAStoredSetIsShown) {
    const auto set =
        Add(*binary, "^2 1 1 RIX S DIR 1 N L P 101.325 T S X1 S & & & & & &", "", "WL = 5893:");
    globals.KeyRest = "::WL = 4861:"; // of another dialog
    EXPECT_EQ(Edit(set).txtVar5.Text(), "5893");
}

TEST_F(frmMixtVarTest, ValuesOfAVariableThatIsLeftOutGoOnlyWhenMeant) {
    const auto set = Add(*binary, "^2 1 1 VDN S DIR 1 Y L P 101.325 T S W1 S & & & & & &",
                         "^d 293.15 0.1 0.98 &");
    frmMixtVar& form = Edit(set);
    Pick(form.cboConstraints, "2");
    EXPECT_FALSE(form.cboVar(1).Visible());
    Pick(form.cboConstraint(1), "Weight fraction of component 1");
    Pick(form.cboConstrUnit(1), "Dimensionless");
    form.txtConstr(1).UserReplaceAll("0.1");
    const std::string question = "Rows of the table hold values of Weight fraction of component 1, "
                                 "which go with it\nGo on?";
    desktop.Expect(question, ui::Answer::No);
    form.cmdOK.UserClick();
    EXPECT_TRUE(form.cboConstraints.HasFocus());
    desktop.Expect(question, ui::Answer::Yes);
    Accept(form);
    EXPECT_EQ(set->nVar, 1);
    EXPECT_EQ(set->PRPSETNO, "1");
    const std::string lines = Lines(*set);
    EXPECT_NE(lines.find("^1 1 1 VDN S DIR 1 Y L P 101.325 W1 0.1 T S"), std::string::npos)
        << lines;
    EXPECT_NE(lines.find("\n^d 293.15 0.98 &"), std::string::npos) << lines;
}

TEST_F(frmMixtVarTest, ARepeatedSetTakesTheDefinitionAndNoMore) {
    const auto set =
        Add(*binary, "^1 1 1 T C DIR 1 Y L P 101.325 G -1 X1 S & & & & & &", "^d 0.17 95.5 &");
    State(*set, "^X 3 P L - & & & - & & & + 95 0.5 - & & - & & &");
    globals.CurrentM = binary;
    globals.CurrentMV = set;
    globals.DataContext = "Bin";
    globals.SetToRepeat = set;
    auto& form = Open<frmMixtVar>("frmMixtVar");
    EXPECT_EQ(globals.SetToRepeat, nullptr);
    EXPECT_EQ(form.txtPrpSetNo.Text(), "2");
    desktop.OnModal([](ui::Form& shown) {
        EXPECT_TRUE(Globals().CurrentMV->recData.IsEmpty());
        dynamic_cast<frmTable&>(shown).Accept();
    });
    form.cmdOK.UserClick();
    ASSERT_EQ(binary->recMV.Count(), 2U);
    const clsMV& made = *binary->recMV.Item(2);
    EXPECT_EQ(made.VARIABLE(1), "X1");
    EXPECT_EQ(made.PhaseFor(1), "G");
    EXPECT_EQ(made.UX[3].UValue, "0.5");
    EXPECT_EQ(set->recData.Count(), 1U);
}

} // namespace
} // namespace vexora::test
