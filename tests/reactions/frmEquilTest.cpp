#include "reactions/frmEquil.h"

#include "entry/frmProperty.h"
#include "entry/frmUnc.h"
#include "reactions/ReactionFixture.h"

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

class frmEquilTest : public ReactionFixture {
protected:
    frmEquilTest() {
        forms.Register<frmTable>("frmData2");
        AddSample(AddCompound("10544726", "dinitrogen tetraoxide", "N2O4"));
        AddSample(AddCompound("10102440", "nitrogen dioxide", "NO2"));
        reaction = AddReaction("^Q OTH 10544726 10102440 999999994 999999994 N N & & & & & &",
                               "^q -1 2 & & & & & & 1 & & & & & & &");
        reaction->SetMe();
    }

    /// Through frmProperty to the open form.
    frmEquil& Choose(const std::string& property, bool two = false) {
        forms.DropClosed();
        auto& form = Open<frmProperty>("frmProperty");
        Pick(form.lstPropGroup, "Reaction equilibria");
        Pick(form.lstProp, property);
        form.lstConv.UserChoose(0);
        form.lstMethod.UserChoose(0);
        Pick(form.lstExpPurpose, "Principal objective of the work");
        (two ? form.cmdTwo : form.cmdOne).UserClick();
        forms.DropClosed();
        return forms.Get<frmEquil>("frmEquil");
    }
    /// A set with one row, and something stated about each of its quantities.
    std::shared_ptr<clsE> AddSet(const std::string& line, const std::string& row = "",
                                 const std::string& tags = "") {
        auto set = std::make_shared<clsE>();
        EXPECT_TRUE(set->Load(line)) << line;
        set->Header.Load("^A N O P 8 AAA BBB 1/2/2003 text ::Method:EMF:" + tags);
        set->AttachTo(*reaction);
        if (!row.empty()) set->LoadRow(row);
        return set;
    }
    static void State(clsE& set, const std::string& item) {
        clsX stated;
        stated.Load("^X " + item + " G - & & & - & & & + 95 0.05 - & & - & & &");
        set.AddX(stated);
    }
    frmEquil& EditSet(const std::shared_ptr<clsE>& set) {
        forms.DropClosed();
        globals.EditEquilibrium = true;
        globals.OpenForms.clear();
        set->SetMe();
        globals.CurrentMethod = std::make_shared<clsMethod>();
        auto& form = forms.Get<frmEquil>("frmEquil");
        form.Show();
        return form;
    }
    void Accept(frmEquil& form) {
        desktop.OnModal([](ui::Form& shown) { dynamic_cast<frmTable&>(shown).Accept(); });
        form.cmdAccept.UserClick();
        EXPECT_EQ(forms.Find("frmEquil"), nullptr);
        globals.EditEquilibrium = false;
        forms.DropClosed();
    }
    void Refused(frmEquil& form, const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(form.IsVisible()) << text;
    }
    static std::string Print(const clsE& set) {
        LineWriter out;
        set.Print(out);
        return out.Text();
    }

    std::shared_ptr<clsQ> reaction;
};

/// Each fault alone, and with all later ones beside it: the first one is told.
TEST_F(frmEquilTest, EachFaultHasItsWordsItsFieldAndItsTurn) {
    using enum EquilField;
    const EquilDraft sound{"KT",
                           "1",
                           {{"water", true, true}, {"ice", true, false}, {}},
                           {{"L", "1"}, {"", "2"}},
                           {{"P", "", "100"}, {"", "", ""}},
                           {{"T", "K"}, {"X2", "Dimensionless"}},
                           "",
                           "I",
                           "Y"};
    EXPECT_TRUE(CheckEquil(sound).empty());
    const struct {
        EquilField field;
        int index;
        const char* text;
        std::function<void(EquilDraft&)> spoil;
    } faults[] = {
        {SetNumber, 0, "Incomplete data", [](auto& d) { d.setNumber = "one"; }},
        {Coefficients, 0, "Incomplete data",
         [](auto& d) {
             for (auto& one : d.participants)
                 one.hasCoefficient = false;
         }},
        {Sample, 0, "Incomplete data", [](auto& d) { d.participants[0].hasSample = false; }},
        {Participant, 1, "ice is not associated with any phase",
         [](auto& d) { d.phases[1].participants = "3"; }},
        {Phase, 0, "At least one phase should be specified",
         [](auto& d) { d.phases[0].code = ""; }},
        {ConstantValue, 0, "Enter the constant variable value",
         [](auto& d) { d.constants[0].value = "high"; }},
        {Variable, 1, "Select the independent variable", [](auto& d) { d.variables[1] = {}; }},
        {VariableUnit, 0, "Select units of the independent variable",
         [](auto& d) { d.variables[0].unit = ""; }},
        {Constant, 0, "Duplicate variable", [](auto& d) { d.constants[0].code = "T"; }},
        {StandardState, 0, "Select the standard state for thermodynamic equilibrium constant",
         [](auto& d) { d.standardState = ""; }},
        {Numerical, 0, "Select availability of numeric data", [](auto& d) { d.numerical = ""; }},
    };
    EquilDraft all = sound;
    for (auto fault = std::rbegin(faults); fault != std::rend(faults); ++fault) {
        EquilDraft alone = sound;
        fault->spoil(alone);
        fault->spoil(all);
        for (const EquilDraft& draft : {alone, all}) {
            const auto found = CheckEquil(draft);
            ASSERT_FALSE(found.empty()) << fault->text;
            EXPECT_EQ(found.front().text, fault->text);
            EXPECT_EQ(found.front().field, fault->field) << fault->text;
            EXPECT_EQ(found.front().index, fault->index) << fault->text;
        }
    }
    EquilDraft twice = sound;
    twice.variables[1].code = "T";
    EXPECT_EQ(CheckEquil(twice).front().field, Variable);
}

TEST_F(frmEquilTest, ARefusalPutsTheFocusOnTheFieldAndChangesNothing) {
    const std::string before = Lines();
    auto& form = Choose("Thermodynamic equilibrium constant", true);
    Pick(form.cboSample(0), "None");
    Refused(form, "Incomplete data", form.cboSample(0));
    Pick(form.cboSample(0), "1");
    Refused(form, "dinitrogen tetraoxide is not associated with any phase", form.chkPart(0));
    form.chkPart(6).UserClick();
    Refused(form, "nitrogen dioxide is not associated with any phase", form.chkPart(1));
    form.chkPart(7).UserClick();
    Refused(form, "At least one phase should be specified", form.cboPhase(0));
    Pick(form.cboPhase(1), "Solution 1");
    Pick(form.cboConst(1), "Pressure");
    EXPECT_EQ(form.lblConstUnit(1).Caption(), "kPa");
    Refused(form, "Enter the constant variable value", form.txtConst(1));
    form.txtConst(1).UserReplaceAll("101,325");
    Refused(form, "Select the independent variable", form.cboVar(0));
    Pick(form.cboVar(0), "Temperature");
    Pick(form.cboVar(1), "Temperature");
    Refused(form, "Select units of the independent variable", form.cboVarUnit(0));
    Pick(form.cboVarUnit(0), "C");
    Pick(form.cboVarUnit(1), "K");
    Refused(form, "Duplicate variable", form.cboVar(1));
    Pick(form.cboVar(1), "Initial mole fraction of nitrogen dioxide");
    Pick(form.cboVarUnit(1), "Dimensionless");
    Refused(form, "Select the standard state for thermodynamic equilibrium constant",
            form.cboStandardState);
    Pick(form.cboStandardState, "Infinite-dilution solute");
    Refused(form, "Select availability of numeric data", form.lstNumerical);
    Pick(form.lstNumerical, "Smoothed values");
    Pick(form.cboSolventPhase, "Liquid");
    form.chkEqu.UserClick();
    EXPECT_EQ(form.Caption(), "Thermodynamic equilibrium constant as function of Temperature, "
                              "Initial mole fraction of nitrogen dioxide");
    // A value is that of the quantity it was typed for.
    Pick(form.cboConst(1), "Temperature");
    EXPECT_EQ(form.txtConst(1).Text(), "");
    Pick(form.cboConst(1), "Pressure");
    form.txtConst(1).UserReplaceAll("101,325");
    EXPECT_EQ(Lines(), before);
    EXPECT_TRUE(globals.Saved);
    desktop.OnModal([](ui::Form& table) { table.Close(); });
    form.cmdAccept.UserClick();
    EXPECT_TRUE(form.IsVisible() && reaction->recE.IsEmpty());
    Accept(form);
    EXPECT_EQ(Lines(), "^Q OTH 10544726 10102440 999999994 999999994 N Y & & & & & &\n"
                       "^A & O B & & & 1/15/2026 ::Method:EMF:\n"
                       "^H -1 2 0 0 0 0 1 & & & & & KT D 1 SE & L I T C XI2 D & & & & "
                       "& & S1 12 & & & & & & P 101.325 & & & &\n^M 0\n");
}

/// Sets as files have them, each looked at twice: accepted unchanged, and given up changed.
TEST_F(frmEquilTest, ALookChangesNothing) {
    const struct {
        const char* line;
        const char* row;
    } sets[] = {
        {"^E -1 2 0 0 0 0 01 & & & & & KP S 1 YCE & & & T C & & & & & & G 12 & & & & & & P 100.0 "
         "& & & & & &",
         "^d 25.0 0.148 &"},
        {"^E -1 2.0 0 0 0 0 9 7 & & & & KX S 03 SG Des S1 ZZ P S X1 S & & & & S1 21 & 27 QQ & & & "
         "X2 0.5 & 3 T 300 & &",
         "^D 100 3 0.148 2 &"},
        {"^H -1 2 0 0 0 0 1 & & & & & KM S 1 Y & L I T S XI1 D P S T C G 1 L 2 & & & & & & & & & & "
         "& &",
         "^d 300 0.5 100 0.2 &"},
        {"^H -2 4 0 0 0 0 1 & & & & & KJ D 1 N & & & T S WL S & & & & G 12 & & & & & & & & & & & & "
         "& &",
         ""},
        {"^E -1 2 0 0 0 0 1 & & & & & KP S 2 & & & & T S & & & & & & G 12 & & & & & & & & & & & & "
         "& &",
         "^d 300 0.148 &"},
    };
    for (const auto& one : sets) {
        const auto set = AddSet(one.line, one.row, "P = 5:m:odd:dKP:0.01:dT:0.2:");
        for (int n = 0; n <= set->nVar; ++n)
            State(*set, std::to_string(n) + " " + set->VARIABLE(n));
        State(*set, "4 T");
        for (const HeldConstant& constant : set->Constants())
            if (constant.item > 0 && constant.item < 4)
                State(*set, std::to_string(constant.item) + " " + constant.code);
        const std::string before = Print(*set);
        auto& form = EditSet(set);
        if (*one.row == '\0') {
            form.cmdAccept.UserClick();
            EXPECT_FALSE(form.IsOpen());
            forms.DropClosed();
        } else {
            Accept(form);
        }
        EXPECT_EQ(Print(*set), before);
        auto& second = EditSet(set);
        second.chkPart(3 * 6).UserClick();
        Pick(second.cboPhase(0), "Liquid");
        Pick(second.cboSample(0), "None");
        const std::string now = Print(*set);
        second.cmdFinish.UserClick();
        EXPECT_EQ(Print(*set), now);
        globals.EditEquilibrium = false;
    }
}

TEST_F(frmEquilTest, WhatIsStatedGoesWithItsQuantity) {
    const auto set = AddSet("^E -1 2 0 0 0 0 1 & & & & & KP S 1 Y & & & T S & & & & & & G 12 & & & "
                            "& & & P 100 X1 0.2 & & & &",
                            "^d 300 0.148 &", "T = 5:dT:0.2:");
    for (const char* item : {"0 KP", "1 T", "2 P", "3 X1"})
        State(*set, item);
    set->recData.Item(1)->Statements(1).Unc = "0.01";
    auto& form = EditSet(set);
    Pick(form.cboVar(0), "Pressure");
    Pick(form.cboVarUnit(0), "kPa");
    Pick(form.cboConst(0), "Mole fraction of dinitrogen tetraoxide");
    form.txtConst(0).UserReplaceAll("0.3");
    Pick(form.cboConst(1), "None");
    EXPECT_EQ(form.txtConst(1).Text(), "");
    desktop.Expect("Rows of the table state uncertainties of Temperature, which go with it\nGo on?",
                   ui::Answer::No);
    form.cmdAccept.UserClick();
    EXPECT_TRUE(form.cboVar(0).HasFocus());
    desktop.Expect("Rows of the table state uncertainties of Temperature, which go with it\nGo on?",
                   ui::Answer::Yes);
    Accept(form);
    const std::string stated = " G - & & & - & & & + 95 0.05 - & & - & & &\n";
    EXPECT_EQ(Print(*set), "^A N O P 8 AAA BBB 1/2/2003 text ::Method:EMF:T = 5:\n"
                           "^E -1 2 0 0 0 0 1 & & & & & KP S 1 Y & & & P S & & & & & & "
                           "G 12 & & & & & & X1 0.3 & & & & & &\n^X 2 X1" +
                               stated + "^X 0 KP" + stated + "^d 300 0.148 &\n^M 0\n");
}

TEST_F(frmEquilTest, StatementsAndAnotherSetLikeThis) {
    auto& form = Choose("Equilibrium constant in terms of partial pressure");
    for (const int part : {0, 1})
        form.chkPart(part).UserClick();
    Pick(form.cboPhase(0), "Ideal gas");
    Pick(form.cboVar(0), "Temperature");
    Pick(form.cboVarUnit(0), "K");
    Pick(form.cboConst(2), "Pressure");
    form.txtConst(2).UserReplaceAll("100");
    Pick(form.lstNumerical, "No numerical data");
    EXPECT_EQ(form.cmdAccept.Caption(), "Accept");
    desktop.OnModal([](ui::Form& opened) {
        auto& stated = static_cast<frmUnc&>(opened);
        EXPECT_EQ(stated.Frame(1).Caption(), "Variable 1: Temperature (K)");
        EXPECT_EQ(stated.Frame(2).Caption(), "Constraint: Pressure (kPa)");
        for (const int n : {0, 2}) {
            stated.chkUnc(n).UserClick();
            stated.txtUValue(n).UserReplaceAll("0.5");
        }
        stated.cmdOK.UserClick();
    });
    form.cmdUnc.UserClick();
    form.cmdAccept.UserClick();
    ASSERT_EQ(reaction->recE.Count(), 1U);
    const std::string first = Print(*reaction->recE.Item(1));
    globals.SetToRepeat = reaction->recE.Item(1);
    forms.DropClosed();
    auto& second = Open<frmEquil>("frmEquil");
    EXPECT_EQ(second.txtPrpSetNo.Text(), "2");
    second.cmdAccept.UserClick();
    ASSERT_EQ(reaction->recE.Count(), 2U);
    EXPECT_EQ(Print(*reaction->recE.Item(1)), first);
    std::string expected = first;
    expected.replace(expected.find(" D 1 N "), 7, " D 2 N ");
    EXPECT_EQ(Print(*reaction->recE.Item(2)), expected);
    EXPECT_NE(first.find("^X 2 P"), std::string::npos) << first;
}

/// A number that is none comes from a file only, and is mended here.
TEST_F(frmEquilTest, ASetNumberThatIsNoneCanBeMended) {
    const std::string rest = " N & & & T S & & & & & & G 12 & & & & & & & & & & & & & &";
    AddSet("^E -1 2 0 0 0 0 1 & & & & & KP S 1" + rest);
    const auto set = AddSet("^E 0 0 0 0 0 0 1 & & & & & KP S II" + rest);
    auto& form = EditSet(set);
    Refused(form, "Incomplete data", form.txtPrpSetNo);
    form.txtPrpSetNo.UserReplaceAll("1");
    Refused(form, "Another data set has this number already", form.txtPrpSetNo);
    form.txtPrpSetNo.UserReplaceAll("2");
    form.cmdAccept.UserClick();
    EXPECT_EQ(reaction->recE.Item("EKP 2"), set);
    // Without coefficients it goes by those of its reaction.
    EXPECT_EQ(set->PARTICIPANT_COEFF(1) + set->PARTICIPANT_COEFF(2), "-12");
}

} // namespace
} // namespace vexora::test
