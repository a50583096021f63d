#include "bio/frmBioData.h"

#include <functional>
#include <memory>
#include <string>

#include "entry/BioRows.h"
#include "entry/frmUnc.h"
#include "globals/PlotTable.h"
#include "plot/frmBioPlot.h"
#include "records/LineWriter.h"
#include "records/clsBP.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

constexpr const char* Invalid = "Invalid number\nPlease correct or delete it";

/// The unfolding of a protein: temperature in degrees Celsius with uncertainties of its rows, and
/// enthalpy, against pH.
class frmBioDataTest : public DataDialogFixture {
protected:
    frmBioDataTest() {
        set->PrpType = "D";
        set->SetNo = 1;
        set->TakeQuantities({{BioRole::Property, "T12", "C", "S1", "", "*", ""},
                             {BioRole::Property, "H", "kJ/mol", "", "", "", ""},
                             {BioRole::Variable, "pH", "1", "", "", "", ""},
                             {BioRole::Constraint, "P", "kPa", "", "", "", "101.325"}});
    }
    ~frmBioDataTest() override { forms.CloseAll(); }

    struct Opener : ui::Form {
        Opener() : Form("frmOpener", "") {}
        ui::TextBox txtField{*this, "txtField"};
    } opener;

    /// Opens the table on the set and lets a person work in it; whether it was accepted.
    bool Work(const std::function<void(frmBioData&)>& person) {
        desktop.OnModal([&](ui::Form& form) {
            form_ = &dynamic_cast<frmBioData&>(form);
            person(*form_);
        });
        const bool accepted = EnterBioRows(opener.txtField, set);
        forms.DropClosed();
        EXPECT_EQ(globals.BioSetInHand, nullptr);
        EXPECT_TRUE(globals.OpenForms.empty());
        return accepted;
    }
    void Statements(const std::function<void(frmUnc&)>& person) {
        desktop.OnModal([person](ui::Form& form) { person(dynamic_cast<frmUnc&>(form)); });
    }
    void Accept() {
        Statements([](frmUnc& form) { form.cmdOK.UserClick(); });
        form_->cmdSave.UserClick();
    }
    void Refused(const std::string& text, int row, int column) {
        desktop.Expect(text);
        form_->cmdSave.UserClick();
        EXPECT_EQ(form_->tblData.Selection(), (ui::Grid::Block{row, column, row, column})) << text;
        EXPECT_TRUE(form_->tblData.HasFocus());
    }
    std::string Row(int row) const {
        std::string text;
        for (int column = 0; column < form_->tblData.Columns(); ++column)
            text += (column > 0 ? "|" : "") + form_->tblData.Cell(row, column);
        return text;
    }
    std::string Findings() const {
        std::string text;
        for (const std::string& line : form_->lstFindings.Items())
            text += line + ";";
        return text;
    }
    /// The rows and statements of the set, without the lines of its definition.
    std::string Lines() const {
        LineWriter out;
        set->PrintBP(out);
        const std::size_t rows = out.Text().find("BD ");
        return rows == std::string::npos ? "" : out.Text().substr(rows);
    }

    std::shared_ptr<clsBP> set = std::make_shared<clsBP>();
    frmBioData* form_ = nullptr;
};

TEST_F(frmBioDataTest, RowsGoIntoTheSetAsTheyWereTyped) {
    EXPECT_TRUE(Work([this](frmBioData& form) {
        EXPECT_EQ(form.Caption(), "Temperature of 1/2 conversion (Solution 1); Enthalpy of "
                                  "transition as function of pH");
        EXPECT_EQ(form.lblColumns.Caption(), "Constant: Pressure = 101.325 kPa");
        EXPECT_EQ(Row(0), "Prop. Temperature of 1/2\nconversion (Solution 1) (C)|Unc.|"
                          "Prop. Enthalpy of transition\n(kJ/mol)|Var. pH");
        form.tblData.UserPaste("76.10\t0.5\t577.0\t4.50\n\n70,20\t\t\t3.20\n\t\t420\t2.0");
        form.tblData.UserCell(4, 1, "");
        Accept();
    }));
    // 0 stands only where a value lacks what the set promises.
    EXPECT_EQ(Lines(), "BD 76.10 0.5 577.0 4.50\nBD 70.20 0 & 3.20\nBD & & 420 2.0\n");
    EXPECT_FALSE(globals.Saved);
}

TEST_F(frmBioDataTest, EachFaultIsRefusedAtItsCell) {
    EXPECT_TRUE(Work([this](frmBioData& form) {
        form.tblData.UserPaste("\t\t\t4\n76.1\tfew\t\t4\n\t0.5\t500\t4\n76.1\t\t500\t");
        EXPECT_EQ(form.lstFindings.Count(), 5);
        Refused(Invalid, 1, 0);
        form.tblData.UserCell(1, 2, "500"); // one of the properties is enough
        Refused(Invalid, 2, 1);
        form.tblData.UserCell(2, 1, "1 %");
        Refused(Invalid, 3, 0); // an uncertainty of nothing
        form.tblData.UserCell(3, 0, "x");
        Refused(Invalid, 3, 0);
        form.tblData.UserCell(3, 0, "77.2");
        Refused(Invalid, 4, 3);
        form.tblData.UserCell(4, 3, "5");
        form.tblData.UserCell(4, 0, "-300");
        EXPECT_EQ(Findings(), "Row 4, Prop. Temperature of 1/2 conversion (Solution 1) (C): Value "
                              "-26.85 Temperature of 1/2 conversion (Solution 1), C is not valid;");
        Statements([](frmUnc& statements) { statements.cmdOK.UserClick(); });
        desktop.Expect("Value -26.85 Temperature of 1/2 conversion (Solution 1), C is not valid");
        Refused("Erroneous data combination\nPlease correct it | Error", 4, 0);
        form.tblData.UserCell(4, 0, "78.3");
        form.cmdSave.UserClick(); // statements have been looked at
    }));
    EXPECT_EQ(Lines(), "BD & & 500 4\nBD 76.1 1% & 4\nBD 77.2 0.5 500 4\nBD 78.3 0 500 5\n");
}

TEST_F(frmBioDataTest, ASecondLookAndACancelChangeNothing) {
    for (const char* line : {"BD 76.10 & 577.0 4.50", "BD & & 420 2.0", "BD 70.2 1% & 3"})
        set->LoadRow(line);
    set->recD[1].Flag2 = true;
    set->recU[0].Load("^X 0 T12 S1 + 1 95 0.1% - & & & + 95 0.20 - & & - & & &");
    set->recU[3].Load("^X 3 P & - & & & - & & & + 95 0.5 - & & - & & &");
    const std::string before = Lines();
    EXPECT_TRUE(Work([this](frmBioData&) { Accept(); }));
    EXPECT_EQ(Lines(), before);
    EXPECT_TRUE(set->recD[1].Flag2);
    EXPECT_FALSE(Work([this](frmBioData& form) {
        Statements([](frmUnc& statements) {
            EXPECT_EQ(statements.txtUValue(0).Text(), "0.20"); // as the quantity is typed
            statements.txtUValue(0).UserReplaceAll("0.3");
            statements.cmdOK.UserClick();
        });
        form.cmdAssign.UserClick();
        form.cmdClear.UserClick();
        desktop.Expect("The table has been changed\nDiscard the changes?", ui::Answer::No);
        form.cmdFinish.UserClick();
        form.mnuUndo.UserClick();
        form.mnuUndo.UserClick(); // the statements too
        form.cmdFinish.UserClick();
    }));
    EXPECT_EQ(Lines(), before);
    EXPECT_TRUE(Work([this](frmBioData& form) {
        form.tblData.UserCell(1, 3, "4.6"); // its temperature is as it was
        form.tblData.UserCell(2, 0, "60");
        Accept();
    }));
    EXPECT_EQ(Lines().substr(0, 54), "BD 76.10 & 577.0 4.6\nBD 60 0 420 2.0\nBD 70.2 1% & 3\n^X");
}

TEST_F(frmBioDataTest, EachPropertyHasAPageOfStatements) {
    set->LoadRow("BD 76.10 0.5 577.0 4.50");
    EXPECT_TRUE(Work([this](frmBioData& form) {
        Statements([this](frmUnc& statements) {
            EXPECT_EQ(statements.Frame(0).Caption(),
                      "Property: Temperature of 1/2 conversion (Solution 1) (C)");
            EXPECT_EQ(statements.Frame(1).Caption(), "Variable 1: pH");
            EXPECT_EQ(statements.Frame(2).Caption(), "Constraint: Pressure (kPa)");
            statements.chkRep(0).UserClick();
            desktop.Expect("SELECT REPRESENTATION OF REPEATABILITY");
            statements.cmdNext.UserClick();
            EXPECT_EQ(statements.lblPage.Caption(), "Page 1 of 2");
            statements.chkRep(0).UserClick();
            statements.chkUnc(2).UserClick();
            statements.txtUValue(2).UserReplaceAll("0.5");
            statements.cmdNext.UserClick();
            EXPECT_EQ(statements.Frame(0).Caption(), "Property: Enthalpy of transition (kJ/mol)");
            EXPECT_FALSE(statements.Frame(1).Visible());
            EXPECT_TRUE(statements.chkDS(0).HasFocus());
            statements.chkCD.UserClick();
            statements.txtRMS.UserReplaceAll("1.5");
            statements.chkUnc(0).UserClick();
            statements.txtUValue(0).UserReplaceAll("2");
            statements.chkUPerCent(0).UserClick();
            statements.cmdCalc.UserClick();
            EXPECT_EQ(statements.lblFigures.Caption(),
                      "Expanded uncertainty of 577.0: 23.1 kJ/mol");
            statements.cmdLast.UserClick();
            EXPECT_FALSE(statements.chkCD.Value());
            EXPECT_EQ(statements.txtUValue(2).Text(), "0.5");
            EXPECT_TRUE(statements.txtUValue(0).Text().empty());
            statements.cmdOK.UserClick();
        });
        form.cmdSave.UserClick();
    }));
    EXPECT_EQ(Lines(), "BD 76.10 0.5 577.0 4.50\n"
                       "^X 1 H & - & & & - & & & + & 2% - & & + 1.5 & &\n"
                       "^X 3 P & - & & & - & & & + & 0.5 - & & - & & &\n");
    EXPECT_EQ(set->recU[1].Name + set->recU[3].Unit, "");
}

TEST_F(frmBioDataTest, APlotGetsAllColumnsAndLeadsToACell) {
    for (const char* line : {"BD 76.10 0.5 577.0 4.50", "BD 70.2 1% & 3"})
        set->LoadRow(line);
    EXPECT_TRUE(Work([this](frmBioData& form) {
        desktop.OnModal([this](ui::Form& opened) {
            auto& plot = dynamic_cast<frmBioPlot&>(opened);
            EXPECT_EQ(plot.Caption(), "Temperature of 1/2 conversion (Solution 1) (C) as function "
                                      "of pH");
            const auto& columns = globals.BioPlot->columns;
            // Without a level they are standard deviations.
            EXPECT_DOUBLE_EQ(columns[0].uncertainties[0], 1.0);
            EXPECT_DOUBLE_EQ(columns[0].uncertainties[1], 2 * 0.702);
            Pick(plot.cboVarY, "P  Enthalpy of transition (kJ/mol)");
            EXPECT_FALSE(plot.cmdUnc.Visible());
            plot.picPIC.SetFocus();
            plot.UserKey(ui::ParseKey("Home"));
            EXPECT_EQ(plot.lblPoint.Caption(), "(4.5, 577)");
            plot.UserKey(ui::ParseKey("Enter"));
        });
        form.cmdView.UserClick();
        EXPECT_EQ(form.tblData.Selection(), (ui::Grid::Block{1, 2, 1, 2}));
        EXPECT_TRUE(form.tblData.HasFocus());
        Accept();
    }));
}

TEST_F(frmBioDataTest, APrintedTableIsTurnedAndRepeatedRowsAreListed) {
    set->TakeQuantities({{BioRole::Property, "H", "kJ/mol", "", "", "", ""},
                         {BioRole::Variable, "T", "K", "", "", "", ""},
                         {BioRole::Variable, "pH", "1", "", "", "", ""}});
    EXPECT_FALSE(Work([this](frmBioData& form) {
        form.tblData.UserPaste("\t4\t5\n300\t1\t2\n310\t3\t4");
        form.mnuAction2D.UserClick();
        EXPECT_EQ(Row(1) + " " + Row(4), "1|300|4 4|310|5");
        form.tblData.UserCell(2, 2, "4.0");
        form.tblData.UserCell(2, 0, "1.0");
        EXPECT_EQ(Findings(), "Row 2, Prop. Enthalpy of transition (kJ/mol): This point stands in "
                              "row 1 too;");
        desktop.Expect("The table has been changed\nDiscard the changes?", ui::Answer::Yes);
        form.cmdFinish.UserClick();
    }));
    EXPECT_TRUE(set->recD.empty());
}

} // namespace
} // namespace vexora::test
