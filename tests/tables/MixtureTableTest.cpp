// The table of a mixture set: names that a reader understands, ties, fractions that add up, molar
// masses of rows.

#include "entry/frmUnc.h"
#include "records/LineWriter.h"
#include "records/PropertyChain.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsR.h"
#include "support/DataDialogFixture.h"
#include "tables/frmData2.h"

namespace vexora::test {
namespace {

class MixtureTableTest : public DataDialogFixture {
protected:
    MixtureTableTest() {
        source->AttachTo();
        for (const auto& [rn, name, formula] :
             {std::array{"64175", "ethanol", "C2H6O"}, std::array{"64197", "acetic acid", "C2H4O2"},
              std::array{"67663", "chloroform", "CHCl3"}, std::array{"7732185", "water", "H2O"}}) {
            auto compound = std::make_shared<clsL>();
            compound->RN = rn;
            compound->Name = name;
            compound->Formula = formula;
            compound->AttachTo(*source);
        }
    }
    ~MixtureTableTest() override { forms.CloseAll(); }

    /// The set of its line, current and attached to a mixture of these compounds.
    clsMV& Set(const std::string& components, const std::string& line) {
        mixture = std::make_shared<clsM>();
        EXPECT_TRUE(mixture->Load(components));
        mixture->AttachTo(*source);
        set = std::make_shared<clsMV>();
        set->MixType = mixture->MixType;
        EXPECT_TRUE(set->Load(line));
        set->AttachTo(*mixture);
        globals.CurrentMV = set;
        globals.DataContext = set->DataContext();
        return *set;
    }
    /// Mass per cent of acetic acid in one layer against those of two components in the other.
    clsMV& Layers() {
        clsMV& tied = Set("^T 64197 67663 7732185", "^2 1 1 1 W1 S DIR 1 Y L1 L2 -3 T 291.15 "
                                                    "W1 S W2 S & & & & & &");
        tied.PROPERTY_UNIT = tied.Variables[0].unit = tied.Variables[1].unit = "0.01";
        return tied;
    }
    frmData2& OpenTable() {
        form = &Open<frmData2>("frmData2");
        return *form;
    }
    std::string Cells() const {
        std::string text;
        for (int row = 0; row < form->tblData.Rows(); ++row) {
            for (int column = 0; column < form->tblData.Columns(); ++column)
                text += (column > 0 ? "|" : "") + form->tblData.Cell(row, column);
            text += ";";
        }
        return text;
    }
    std::string Findings() const {
        std::string text;
        for (const std::string& line : form->lstFindings.Items())
            text += line + ";";
        return text;
    }
    std::string Rows() const {
        LineWriter out;
        for (const clsData& row : set->recData)
            row.PrintData(out);
        return out.Text();
    }
    void Accept() {
        desktop.OnModal([this](ui::Form& statements) {
            globals.DialogAccepted = true;
            statements.Close();
        });
        form->cmdSave.UserClick();
    }

    std::shared_ptr<clsR> source = std::make_shared<clsR>();
    std::shared_ptr<clsM> mixture;
    std::shared_ptr<clsMV> set;
    frmData2* form = nullptr;
};

TEST_F(MixtureTableTest, RowsWithAndWithoutCountsOfDigitsStayAsTheyAre) {
    Set("^B 64175 7732185", "^1 1 1 P T DIR 1 Y L T 353.15 G & X1 S & & & & & &");
    set->LoadRow("^d 0.1700 595.5 0.2");
    set->LoadRow("^g 0.18 2 600 3 &");
    const std::string before = Rows();
    globals.IncludeDigits = true;
    OpenTable();
    Accept();
    EXPECT_EQ(Rows(), before);
}

TEST_F(MixtureTableTest, QuantitiesAreNamedForAReader) {
    Set("^B 64175 7732185", "^1 1 1 T C DIR 1 Y L G -1 P 101.325 X1 S & & & & & &");
    set->Variables[0].phase = "G";
    OpenTable();
    EXPECT_EQ(form->Caption(), "Boiling temperature at pressure P (C) as function of Mole fraction "
                               "of ethanol, Gas");
    EXPECT_EQ(form->lblColumns.Caption(), "Var1: Mole fraction of ethanol, Gas, Dimensionless    "
                                          "Property: Boiling temperature at pressure P, C"
                                          "    Constant: Pressure = 101.325 kPa");
    EXPECT_EQ(Cells(), "Var1|Property|KVO Uncert.;||;");
    form->tblData.UserPaste("1.2\t78");
    EXPECT_EQ(Findings(), "Row 1, Var1: Value 1.2 Mole fraction of ethanol, Gas is not valid;");
}

TEST_F(MixtureTableTest, StatementsNameConstraintsAndPhases) {
    Set("^B 64175 7732185", "^1 1 1 T C DIR 1 Y L G -1 P 101.325 X1 S & & & & & &");
    set->Constraints[1].value = "760";
    set->Constraints[1].unit = "T"; // torr
    NameStatements(*set);
    std::string named;
    for (const clsX& item : set->UX)
        named += item.Name + " [" + item.Unit + "] " + item.PHASE + (item.Constr ? " const;" : ";");
    EXPECT_EQ(named, "Boiling temperature at pressure P [C] L;Mole fraction of ethanol, Gas "
                     "[Dimensionless] G; [] ;Pressure [torr] G const; [] ;");
    desktop.OnModal([this](ui::Form& shown) {
        auto& statements = dynamic_cast<frmUnc&>(shown);
        EXPECT_FALSE(statements.Frame(2).Visible());
        EXPECT_EQ(statements.Frame(3).Caption(), "Constraint: Pressure (torr)");
        statements.chkUnc(3).UserClick();
        statements.txtUValue(3).UserReplaceAll("0.5");
        statements.cmdOK.UserClick();
    });
    OpenTable();
    form->cmdAssign.UserClick();
    EXPECT_EQ(set->UX[3].PRPCODE + set->UX[3].PHASE + set->UX[3].UValue, "PG0.5");
}

TEST_F(MixtureTableTest, TiedRowsComeWithTheirNumbersOrWithout) {
    Layers().UX[1].iUnc = true;
    OpenTable();
    EXPECT_EQ(Cells(), "Tie|Var1|Uncert.|Var2|Property|KVO Uncert.;|||||;");
    form->tblData.UserPaste("1\t0.84\t99.16\t0.50\n2\t7.30\t48.58\t6.77\n");
    EXPECT_EQ(Cells(), "Tie|Var1|Uncert.|Var2|Property|KVO Uncert.;1|0.84||99.16|0.50|;"
                       "2|7.30||48.58|6.77|;|||||;");
    form->UserKey(ui::ParseKey("Ctrl+Z"));
    form->tblData.UserPaste("0.84\t0.05\t99.16\t0.50\n7.30\t0.05\t48.58\t6.77\n");
    EXPECT_EQ(Cells(), "Tie|Var1|Uncert.|Var2|Property|KVO Uncert.;|0.84|0.05|99.16|0.50|;"
                       "|7.30|0.05|48.58|6.77|;|||||;");
    form->tblData.UserCell(1, 0, "1.5");
    form->tblData.UserCell(2, 0, "x");
    EXPECT_EQ(Findings(),
              "Row 1, Tie: A tie line is numbered by whole numbers. Correct it or clear "
              "the cell;Row 2, Tie: Invalid number. Correct it or clear the cell;");
    form->tblData.UserCell(1, 0, "7");
    form->tblData.UserCell(2, 0, "7");
    EXPECT_EQ(Findings(), "Row 2, Tie: This tie line stands in row 1 too;");
    form->tblData.UserCell(2, 0, "");
    Accept();
    EXPECT_EQ(Rows(), "^d 0.84 99.16 0.50 & 7\n^Y & & & 0.05 & & & & & & & & & &\n"
                      "^d 7.30 48.58 6.77 &\n^Y & & & 0.05 & & & & & & & & & &\n");
    OpenTable();
    form->tblData.UserCell(1, 3, "99.15");
    Accept();
    EXPECT_EQ(set->recData.Item(1)->TIELINE, "7");
}

TEST_F(MixtureTableTest, BinariesHaveTiesInThreePhasesOrWhereRowsBearThem) {
    Set("^B 64175 7732185", "^1 1 1 X1 S DIR 1 Y L1 L2 -1 T 300 X1 S & & & & & &");
    EXPECT_FALSE(set->HasTies());
    set->AddRow({}).TIELINE = "4";
    EXPECT_TRUE(set->HasTies());
    EXPECT_TRUE(
        Set("^B 64175 67663", "^1 1 1 X1 S DIR 1 Y L1 L2 -1 G & X1 S & & & & & &").HasTies());
}

TEST_F(MixtureTableTest, FractionsOfAPhaseAreNoMoreThanOne) {
    Layers().Variables[1].unit = "S";
    OpenTable();
    form->tblData.UserPaste("1\t70\t0.4\t6.77\n2\t70\t0.3\t101\n");
    EXPECT_EQ(Findings(),
              "Row 1, Var2: Composition error. The fractions in the phase Liquid mixture "
              "2 add up to 1.1;Row 2, Property: Value 1.01 Weight fraction of acetic "
              "acid, Liquid mixture 1 is not valid;");
    form->tblData.UserCell(2, 3, "10");
    desktop.Expect("Composition error");
    desktop.Expect("Erroneous data combination\nPlease correct it | Error");
    Accept();
    EXPECT_EQ(form->tblData.Cell(1, 4), "Error");
    form->tblData.UserCell(1, 2, "0.3");
    form->cmdSave.UserClick();
    EXPECT_EQ(Rows(), "^d 70 0.3 6.77 & 1\n^d 70 0.3 10 & 2\n");
}

TEST_F(MixtureTableTest, AllFractionsTogetherAreAskedAboutBeyondTheirRounding) {
    Set("^T 64197 67663 7732185", "^2 1 1 1 X1 S DIR 1 Y L T 291.15 X3 0.20 X2 S P S & & & & & &");
    OpenTable();
    form->tblData.UserPaste("0.40\t101\t0.50\n0.3333\t101\t0.4668\n");
    EXPECT_EQ(Findings(),
              "Row 1, Property: Composition error. The fractions in the phase Liquid add "
              "up to 1.1;");
    Accept(); // advice, no more
    EXPECT_EQ(set->recData.Count(), 2U);
}

TEST_F(MixtureTableTest, APointTypedTwiceIsMarked) {
    Set("^T 64197 67663 7732185", "^3 1 1 1 VDN S DIR 1 Y L P 101 T C X1 S X2 S & & & & & &");
    OpenTable();
    form->tblData.UserPaste("25\t0.1\t0.2\t990\n25\t0.1\t0.2\t991\n25.0\t0.10\t0.2\t990.0\n");
    EXPECT_EQ(Findings(), "Row 3, Property: This point stands in row 1 too;");
    form->UserKey(ui::ParseKey("Ctrl+Z"));
    EXPECT_EQ(Findings(), "");
}

TEST_F(MixtureTableTest, UnitsByMassGoByTheCompositionOfEachRow) {
    Set("^B 64175 7732185", "^1 1 1 HEX Z DIR 1 Y L T 298.15 P 101 X1 S & & & & & &");
    set->UX[0].iUnc = true;
    set->UX[0].UValue = "0.10";
    OpenTable();
    form->tblData.UserPaste("0.0\t-1.00\n1.0\t-1.00\t0.20\n");
    form->mnuSystemUnits.UserClick();
    EXPECT_EQ(Cells(), "Var1|Property|Uncert.|KVO Uncert.;0.0|-0.0180|0.0018|;"
                       "1.0|-0.0461|0.0092|;|||;");
    form->UserKey(ui::ParseKey("Ctrl+Z"));
    Accept();
    EXPECT_EQ(Rows(), "^d 0.0 -1.00 &\n^d 1.0 -1.00 &\n^Y & & & & & & & 0.20 & &\n");
}

TEST_F(MixtureTableTest, RowsWithoutMolarMassAreToldOnceAndKept) {
    Set("^B 64175 7732185", "^1 1 1 HEX Z DIR 1 Y L T 298.15 P 101 V1 S & & & & & &");
    const std::string told = "Please revise the way of property formulation\n"
                             "Unable to calculate average molar mass";
    OpenTable();
    form->tblData.UserPaste("0.1\t-1.00\n0.2\t-1.50\n");
    desktop.Expect(told);
    form->mnuSystemUnits.UserClick();
    EXPECT_EQ(form->tblData.Cell(1, 1), "-1.00");
    desktop.Expect(told);
    desktop.OnModal([](ui::Form& statements) { statements.Close(); });
    form->cmdSave.UserClick();
    EXPECT_TRUE(form->IsOpen());
    Accept();
    EXPECT_EQ(Rows(), "^d 0.1 -1.00 &\n^d 0.2 -1.50 &\n");
}

} // namespace
} // namespace vexora::test
