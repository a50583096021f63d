#include "tables/frmData2Fixture.h"

#include <cmath>
#include <fstream>
#include <utility>

#include "chem/clsProperty.h"
#include "globals/PlotTable.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "support/ScratchFolder.h"

namespace vexora::test {
namespace {

using frmData2Test = frmData2Fixture;

TEST_F(frmData2Test, ColumnsFollowTheStatementsOfTheSet) {
    TwoVariables();
    set->UX[1].iDS = true;
    set->UX[1].DSValue = "0.1%";
    set->UX[0].iRep = true;
    set->UX[0].iUnc = true;
    set->UX[0].iCU = true;
    set->UX[0].iCD = true;
    globals.IncludeDigits = true;
    OpenTable();
    EXPECT_EQ(Cells(), "Var1|Digits|Dev.Spec.%|Var2|Digits|Property|Digits|Repeatab.|Repetitions|"
                       "Uncert.|Comb.Unc.|Curve Dev.|KVO Uncert.;||||||||||||;");
    EXPECT_TRUE(form_->Caption().find(") as function of Temperature, Pressure") !=
                std::string::npos)
        << form_->Caption();
}

TEST_F(frmData2Test, AcceptedRowsKeepEveryTypedDigit) {
    OpenTable();
    Paste("275\t999.887406\r\n450\t890.341250\r\n");
    form_->tblData.UserCell(3, 0, "625.0");
    form_->tblData.UserCell(3, 1, "567,090385");
    Accept();
    EXPECT_EQ(Rows(), "275 999.887406 ;450 890.341250 ;625.0 567.090385 ;");
    EXPECT_EQ(set->recData.Item(3)->Digits[0], 9);
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_FALSE(globals.Saved);
    EXPECT_FALSE(form_->IsOpen());
}

TEST_F(frmData2Test, FaultsAreToldInOrderAndTheCellIsShown) {
    set->UX[0].iUnc = true;
    OpenTable();
    Paste("275 abc x\n\n450\n");
    desktop.Expect("Invalid number\nCorrect it or clear the line");
    form_->cmdSave.UserClick();
    EXPECT_EQ(form_->tblData.Selection(), (ui::Grid::Block{1, 1, 1, 1}));
    form_->tblData.UserCell(1, 1, "999.8");
    desktop.Expect("Invalid number\nCorrect it or clear the cell");
    form_->cmdSave.UserClick();
    form_->tblData.UserCell(1, 2, "");
    desktop.Expect("Missing value\nEnter the value or clear the line");
    form_->cmdSave.UserClick();
    EXPECT_EQ(form_->tblData.Selection(), (ui::Grid::Block{3, 1, 3, 1}));
    EXPECT_TRUE(set->recData.IsEmpty());
}

TEST_F(frmData2Test, MarksTellWhileTypingWhatAcceptWouldAsk) {
    OpenTable();
    Paste("275 999.8\n2750 999.8\n300 -5\n310");
    EXPECT_EQ(Findings(), "Row 2, Var1: Value 2750 Temperature, K is suspicious;"
                          "Row 3, Property: Value -5 Density, kg/m3 is not valid;"
                          "Row 4, Property: Missing value. Enter the value or clear the line;");
    ASSERT_NE(form_->tblData.MarkOf(2, 0), nullptr);
    EXPECT_FALSE(form_->tblData.MarkOf(2, 0)->isFault);
    EXPECT_TRUE(form_->tblData.MarkOf(3, 1)->isFault);
    const auto step = [&](const std::string& key) {
        form_->UserKey(ui::ParseKey(key));
        return form_->tblData.Selection().top;
    };
    EXPECT_EQ(step("F8"), 2);
    EXPECT_EQ(step("F8"), 3);
    EXPECT_EQ(step("Shift+F8"), 2);
    EXPECT_EQ(step("Shift+F8"), 4);
    form_->tblData.UserCell(2, 0, "275.0");
    EXPECT_EQ(form_->tblData.MarkOf(2, 0), nullptr);
}

TEST_F(frmData2Test, YesToAllHoldsForOneQuantityToTheEndOfTheRun) {
    OpenTable();
    Paste("2750 9990\n2751 9990\n2750 9991");
    const std::string temperature = "Value 2750 Temperature, K is suspicious\nIs that all right?";
    const auto density = [](const std::string& value) {
        return "Value " + value + " Density, kg/m3 is suspicious\nIs that all right?";
    };
    desktop.Expect(density("9990"), ui::Answer::Yes);
    desktop.Expect(temperature, ui::Answer::YesToAll);
    desktop.Expect(density("9991"), ui::Answer::No);
    desktop.Expect("Erroneous data combination\nPlease correct it | Error");
    Accept();
    EXPECT_TRUE(form_->IsOpen());
    EXPECT_EQ(form_->tblData.Cell(3, 2), "Error");
    desktop.Expect(density("9990"), ui::Answer::YesToAll);
    desktop.Expect(temperature, ui::Answer::YesToAll);
    form_->cmdSave.UserClick();
    EXPECT_EQ(Rows(), "2750 9990 ;2751 9990 ;2750 9991 ;");
}

TEST_F(frmData2Test, CancelOfTheStatementsStoresNothing) {
    AddRow("275", "999.8");
    OpenTable();
    form_->tblData.UserCell(1, 1, "1");
    Accept(false);
    EXPECT_TRUE(form_->IsOpen());
    set->UX[0].iUnc = true;
    Discard();
    form_->cmdFinish.UserClick();
    EXPECT_FALSE(set->UX[0].iUnc);
    EXPECT_EQ(Rows(), "275 999.8 0.1;");
}

TEST_F(frmData2Test, EditedRowsKeepWhatTheTableDoesNotShow) {
    AddRow("275", "999.80");
    AddRow("300", "996.5");
    AddRow("310", "990.0");
    set->recData.Item(2)->Statements(0).Unc = "0.5";
    OpenTable();
    EXPECT_EQ(Cells(), "Var1|Property|Uncert.|KVO Uncert.;275|999.80||0.1;300|996.5|0.5|0.1;"
                       "310|990.0||0.1;|||;");
    form_->tblData.Select({1, 0, 1, 3});
    form_->tblData.UserKey(*std::make_unique<ui::Key>(ui::ParseKey("Delete")));
    form_->tblData.UserCell(3, 0, "311");
    form_->tblData.UserCell(2, 1, "996.50");
    Accept();
    EXPECT_EQ(Rows(), "300 996.50 0.1;311 990.0 0.1;");
    EXPECT_EQ(set->recData.Item(1)->StatementsOf(0).Unc, "0.5");
    EXPECT_EQ(set->recData.Item(2)->TIELINE, "7");
}

TEST_F(frmData2Test, PerCentColumnsStoreTheirSignOnce) {
    set->UX[0].iUnc = true;
    set->UX[0].UValue = "1%";
    OpenTable();
    Paste("275 999.8 0.5\n280 999.7 2%\n285 999.6");
    EXPECT_EQ(form_->tblData.Cell(0, 2), "Uncert.%");
    Accept();
    EXPECT_EQ(set->recData.Item(1)->StatementsOf(0).Unc, "0.5%");
    EXPECT_EQ(set->recData.Item(2)->StatementsOf(0).Unc, "2%");
    EXPECT_EQ(set->recData.Item(3)->StatementsOf(0).Unc, "");
    form_ = &Open<frmData2>("frmData2");
    EXPECT_EQ(form_->tblData.Cell(1, 2), "0.5");
}

TEST_F(frmData2Test, MixedRowsAreEditedInSystemUnits) {
    set->VAR1_UNIT = "C";
    AddRow("25.0", "997.0", true);
    AddRow("310.0", "993.0", false);
    OpenTable();
    EXPECT_EQ(form_->tblData.Cell(1, 0), "298.15");
    EXPECT_FALSE(form_->lblNotice.Caption().empty());
    EXPECT_EQ(set->recData.Item(1)->VARIABLE(1), "25.0");
    Accept();
    EXPECT_EQ(Rows(), "298.15 997.0 0.1;310.0 993.0 0.1;");
    EXPECT_EQ(set->recData.Item(1)->DigitCount(1), 4);
    EXPECT_FALSE(set->isOriginalUnit || set->recData.Item(1)->inOriginalUnits);
}

TEST_F(frmData2Test, UnitsThatCannotBeConvertedAreRefused) {
    set->PRPCODE = "HVP";
    set->PROPERTY_UNIT = "B";
    OpenTable();
    Paste("275 999.8");
    EXPECT_EQ(Findings(), ""); // nothing is known of the value
    desktop.Expect("Molar mass of the compound is not known");
    form_->cmdSave.UserClick();
    EXPECT_TRUE(form_->IsOpen());
}

TEST_F(frmData2Test, UnitsOfAnotherQuantityAreRefused) {
    set->PROPERTY_UNIT = "T"; // torr, of a density
    OpenTable();
    Paste("275 999.8");
    desktop.Expect("Invalid conversion factor");
    form_->cmdSave.UserClick();
    EXPECT_TRUE(form_->IsOpen());
}

/// A table of as many rows as a plot shows.
std::string FullTable() {
    std::string text;
    for (int row = 0; row < 16384; ++row)
        text += "275 999.8\n";
    return text;
}

const std::string oneTooMany = "The table holds 16385 rows; a plot shows the first 16384";

TEST_F(frmData2Test, RowsBeyondAPlotAreKeptAndTold) {
    OpenTable();
    Paste(FullTable());
    EXPECT_EQ(form_->lblNotice.Caption(), "");
    form_->tblData.UserCell(16385, 0, "310"); // typed
    EXPECT_EQ(form_->lblNotice.Caption(), oneTooMany);
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->lblNotice.Caption(), "");
    form_->tblData.UserSelect({16384, 0, 16384, 0}); // pasted at the end
    Paste("275 999.8\n310 993.3");
    EXPECT_EQ(form_->tblData.Cell(16385, 1), "993.3");
    EXPECT_EQ(form_->lblNotice.Caption(), oneTooMany);
    Accept();
    EXPECT_EQ(set->recData.Count(), 16385u);
    form_ = &Open<frmData2>("frmData2"); // opened again
    EXPECT_EQ(form_->lblNotice.Caption(), oneTooMany);
    EXPECT_EQ(form_->tblData.Cell(16385, 1), "993.3");
}

TEST_F(frmData2Test, TooManyRowsOfAFileAreKeptAndTold) {
    const ScratchFolder scratch;
    desktop.OnChoose(scratch.Path("many.txt"));
    std::ofstream(scratch.Path("many.txt")) << FullTable() << "310 993.3\n";
    OpenTable();
    form_->mnuFileOpen.UserClick();
    EXPECT_EQ(form_->tblData.Cell(16385, 1), "993.3");
    EXPECT_EQ(form_->lblNotice.Caption(), oneTooMany);
}

TEST_F(frmData2Test, TooManyRowsOfATableInTwoDimensionsAreKeptAndTold) {
    TwoVariables();
    OpenTable();
    std::string text = "\t1\t2\t3\t4\t5\n";
    for (int row = 0; row < 3277; ++row)
        text += "275\t9\t9\t9\t9\t9\n";
    Paste(text);
    EXPECT_EQ(form_->tblData.Rows(), 3280);
    form_->mnuAction2D.UserClick();
    EXPECT_EQ(form_->tblData.Cell(16385, 1), "5");
    EXPECT_EQ(form_->lblNotice.Caption(), oneTooMany);
}

TEST_F(frmData2Test, FewerDigitsThanTypedNeitherHideNorChangeTheText) {
    globals.IncludeDigits = true;
    AddRow("275", "997.05");
    set->recData.Item(1)->isDigit = true;
    set->recData.Item(1)->Digits = {3, 3, 0, 0};
    OpenTable();
    EXPECT_EQ(form_->tblData.Cell(1, 2), "997.05");
    form_->tblData.UserCell(1, 0, "276");
    Accept();
    EXPECT_EQ(Rows(), "276 997.05 0.1;");
    EXPECT_EQ(set->recData.Item(1)->Digits[0], 3);
}

TEST_F(frmData2Test, EntriesOfAStatementThatGoesAreAskedAbout) {
    set->UX[0].iUnc = true;
    OpenTable();
    Paste("275 999.8 0.5\n280 999.7");
    const auto withoutStatement = [this](ui::Form& form) {
        globals.CurrentUX->front().iUnc = false;
        globals.DialogAccepted = true;
        form.Close();
    };
    const std::string question = "The entries in the column Uncert. go with its statement\nGo on?";
    desktop.OnModal(withoutStatement);
    desktop.Expect(question, ui::Answer::No);
    form_->tblData.UserSelect({2, 1, 2, 1});
    form_->cmdAssign.UserClick();
    EXPECT_EQ(form_->tblData.Cell(1, 2), "0.5");
    EXPECT_TRUE(set->UX[0].iUnc);
    desktop.OnModal(withoutStatement);
    desktop.Expect(question, ui::Answer::Yes);
    form_->cmdAssign.UserClick();
    EXPECT_EQ(Cells(), "Var1|Property|KVO Uncert.;275|999.8|;280|999.7|;||;");
    EXPECT_EQ(form_->tblData.Selection(), (ui::Grid::Block{2, 1, 2, 1}));
    form_->mnuUndo.UserClick();
    Accept(); // asks again, for the statements are those of the beginning
    EXPECT_EQ(set->recData.Item(1)->StatementsOf(0).Unc, "0.5");
    OpenTable();
    desktop.OnModal(withoutStatement);
    desktop.Expect(question, ui::Answer::Yes);
    form_->cmdSave.UserClick();
    EXPECT_EQ(set->recData.Item(1)->StatementsOf(0).Unc, ""); // nor does it hide in the row
}

TEST_F(frmData2Test, FailedEvaluationIsForgottenWhenItsRowChanges) {
    OpenTable();
    Paste("275 -5\n280 999.7");
    desktop.Expect("Value -5 Density, kg/m3 is not valid");
    desktop.Expect("Erroneous data combination\nPlease correct it | Error");
    Accept();
    EXPECT_EQ(form_->tblData.Cell(1, 2), "Error");
    form_->tblData.UserCell(1, 1, "999.8");
    EXPECT_EQ(Cells(), "Var1|Property|KVO Uncert.;275|999.8|;280|999.7|;||;");
    EXPECT_EQ(Findings(), "");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(1, 2), "Error");
}

TEST_F(frmData2Test, FigureThatIsNoNumberIsRefusedAndNotDropped) {
    OpenTable();
    for (const char* quantity : {"Density?", "Temperature?"})
        desktop.Expect("The last column of the block comes to stand under KVO Uncert., the figure "
                       "of the evaluation\nIs it the uncertainty of " +
                           std::string(quantity),
                       ui::Answer::No);
    Paste("275 999.8 0.5x");
    EXPECT_EQ(Findings(), "Row 1, KVO Uncert.: Invalid number. Correct it or clear the cell;");
    desktop.Expect("Invalid number\nCorrect it or clear the cell");
    form_->cmdSave.UserClick();
    form_->tblData.UserCell(1, 2, "0.50");
    form_->tblData.UserCell(2, 2, "0.7"); // of no value
    desktop.Expect("Missing value\nEnter the value or clear the line");
    form_->cmdSave.UserClick();
    form_->tblData.UserCell(2, 2, "");
    Accept();
    EXPECT_EQ(Rows(), "275 999.8 0.50;");
}

TEST_F(frmData2Test, TableGoesToSystemUnitsAndBack) {
    TwoVariables();
    set->VAR1_UNIT = "C";
    set->VAR2_UNIT = "bar";
    AddRow("25.0", "997.0");
    set->recData.Item(1)->Values[2] = "25";
    set->recData.Item(1)->Statements(1).Unc = "0.05";
    set->recData.Item(1)->Statements(2).Unc = "1";
    set->UX[2].iDS = true;
    set->UX[2].DSValue = "2";
    OpenTable();
    form_->tblData.UserCell(1, 5, "997.10");
    form_->mnuSystemUnits.UserClick();
    EXPECT_EQ(Cells(), "Var1|Digits|Uncert.|Var2|Digits|Dev.Spec.|Uncert.|Property|Digits|"
                       "KVO Uncert.;298.15|4|0.05|2500|2||100|997.10|5|0.1;|||||||||;");
    EXPECT_EQ(form_->lblColumns.Caption(), "Var1: Temperature, K    Var2: Pressure, kPa    "
                                           "Property: Density, kg/m3");
    EXPECT_FALSE(form_->mnuSystemUnits.Enabled());
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(1, 2), "25"); // one step back, the columns of digits too
    EXPECT_FALSE(globals.IncludeDigits);
    EXPECT_EQ(set->UX[2].DSValue, "2");
    EXPECT_TRUE(form_->mnuSystemUnits.Enabled());
    form_->mnuRedo.UserClick();
    EXPECT_EQ(set->UX[2].DSValue, "200");
    Accept();
    EXPECT_EQ(Rows(), "298.15 2500 997.10 0.1;");
    const clsData& row = *set->recData.Item(1);
    EXPECT_FALSE(set->isOriginalUnit || row.inOriginalUnits);
    EXPECT_EQ(row.Digits[2], 2);
    EXPECT_EQ(row.StatementsOf(1).Unc + " " + row.StatementsOf(2).Unc, "0.05 100");
}

TEST_F(frmData2Test, StatementsAndUnitsAreTakenBackOneBehindTheOther) {
    set->VAR1_UNIT = "C";
    OpenTable();
    Paste("25.00 997.05\n30.00 995.65");
    form_->mnuSystemUnits.UserClick();
    const auto state = [this](const char* value) {
        desktop.OnModal([this, value](ui::Form& form) {
            clsX& density = globals.CurrentUX->front();
            density.iUnc = *value != '\0';
            density.UValue = value;
            globals.DialogAccepted = true;
            form.Close();
        });
        form_->cmdAssign.UserClick();
    };
    state("0.5");
    form_->tblData.UserCell(1, 2, "0.3");
    desktop.Expect("The entries in the column Uncert. go with its statement\nGo on?",
                   ui::Answer::Yes);
    state("");
    EXPECT_EQ(form_->TableText(), "298.15\t997.05\t\n303.15\t995.65\t\n");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->TableText(), "298.15\t997.05\t0.3\t\n303.15\t995.65\t\t\n");
    EXPECT_EQ(set->UX[0].UValue, "0.5");
    for (int i = 0; i < 3; ++i)
        form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->TableText(), "25.00\t997.05\t\n30.00\t995.65\t\n");
    EXPECT_FALSE(set->UX[0].iUnc);
    EXPECT_NE(form_->lblColumns.Caption().find("Temperature, C"), std::string::npos);
    for (int i = 0; i < 3; ++i)
        form_->mnuRedo.UserClick();
    EXPECT_EQ(form_->TableText(), "298.15\t997.05\t0.3\t\n303.15\t995.65\t\t\n");
    form_->cmdSave.UserClick();
    EXPECT_EQ(set->recData.Item(1)->StatementsOf(0).Unc, "0.3");
}

TEST_F(frmData2Test, UnitsOfAFaultyTableStay) {
    set->VAR1_UNIT = "C";
    OpenTable();
    Paste("25 999.8\n30x 999.7");
    desktop.Expect("Invalid number\nCorrect it or clear the line");
    form_->mnuSystemUnits.UserClick();
    EXPECT_EQ(form_->tblData.Cell(1, 0), "25");
    Discard();
    form_->cmdFinish.UserClick();
    set->VAR1_UNIT = "S";
    OpenTable();
    EXPECT_FALSE(form_->mnuSystemUnits.Enabled());
}

TEST_F(frmData2Test, APlotShowsTheFirstOfTooManyPointsAndLeadsToARow) {
    forms.Register("frmGraph", [] { return std::make_unique<ui::Form>("frmGraph", "Plot"); });
    OpenTable();
    Paste(FullTable() + "310 993.3\n");
    desktop.Expect("The table holds 16385 points; the plot shows the first 16384");
    desktop.OnModal([&](ui::Form& form) {
        EXPECT_EQ(globals.Plot->PointTable.size(), PlotTable::MostPoints);
        EXPECT_EQ(globals.Plot->PointFar.size(), PlotTable::MostPoints);
        globals.Plot->ChosenRow = globals.Plot->PointRow[99];
        form.Close();
    });
    form_->cmdView.UserClick();
    EXPECT_EQ(form_->tblData.Selection(), (ui::Grid::Block{100, 1, 100, 1}));
    EXPECT_TRUE(form_->tblData.HasFocus());
}

TEST_F(frmData2Test, AMisprintIsToBeLookedAtAgainAndNothingIsAsked) {
    OpenTable();
    std::string text;
    for (int i = 0; i < 20; ++i)
        text += std::to_string(280 + i) + " " + FormatFixed(1000 - 0.005 * i * i, 2) + "\n";
    Paste(text);
    EXPECT_FALSE(form_->lstFindings.Visible());
    form_->tblData.UserCell(8, 1, "997.95"); // for 999.75
    EXPECT_EQ(form_->lstFindings.Items(),
              std::vector<std::string>{"Row 8, Property: Look again: far from what its "
                                       "neighbours say"});
    EXPECT_FALSE(form_->tblData.MarkOf(8, 1)->isFault);
    form_->tblData.UserCell(3, 0, "x"); // the other findings stand in the order of the rows
    EXPECT_EQ(form_->lstFindings.Count(), 2);
    form_->mnuUndo.UserClick();
    form_->mnuUndo.UserClick();
    EXPECT_FALSE(form_->lstFindings.Visible());
    form_->mnuRedo.UserClick();
    Accept();
    EXPECT_EQ(set->recData.Count(), 20u);
}

TEST_F(frmData2Test, VaporPressuresAreLookedAtAgainstAbsoluteTemperatures) {
    set->PRPCODE = "PV";
    set->PROPERTY_UNIT = "S";
    set->VAR1_UNIT = "C";
    OpenTable();
    std::string text; // too steep for its small digits to be judged as a plain curve
    for (int t = -90; t < 230; t += 8)
        text += std::to_string(t) + " " +
                FormatValue(std::exp(16.7 - 4060 / (t + 273.15 - 37)), 6) + "\n";
    Paste(text);
    EXPECT_EQ(form_->lstFindings.Count(), 0);
    std::string cell = form_->tblData.Cell(12, 1);
    std::swap(cell[cell.size() - 2], cell[cell.size() - 3]);
    ASSERT_NE(cell, form_->tblData.Cell(12, 1));
    form_->tblData.UserCell(12, 1, cell);
    ASSERT_EQ(form_->lstFindings.Count(), 1);
    EXPECT_EQ(form_->lstFindings.Item(0).substr(0, 6), "Row 12");
}

TEST_F(frmData2Test, PlotTakesTheTableAsItStands) {
    forms.Register("frmGraph", [] { return std::make_unique<ui::Form>("frmGraph", "Plot"); });
    TwoVariables();
    set->VAR1_UNIT = "C";
    set->UX[0].iDS = true;
    OpenTable();
    Paste("20\t100\t998\t0.25\n\t\t\t\n30\t100\t995\t\t0.75");
    std::string seen;
    desktop.OnModal([&](ui::Form& form) {
        const PlotTable& plot = *globals.Plot;
        seen = plot.YName + "|" + plot.VarNames[0] + "|" + plot.VarNames[1] + "\n";
        for (std::size_t i = 0; i < plot.PointTable.size(); ++i) {
            for (std::size_t n = 0; n < 3; ++n)
                seen += NumberText(plot.PointTable[i][n]) + " ";
            seen += NumberText(plot.PointUnc[i]) + "\n";
        }
        form.Close();
    });
    form_->cmdView.UserClick();
    EXPECT_EQ(seen, "Density (kg/m3)|Temperature (C)|Pressure (kPa)\n"
                    "998 20 100 0.5\n"
                    "995 30 100 0.75\n");
    EXPECT_EQ(globals.Plot, nullptr);
}

TEST_F(frmData2Test, BarsOfAPlotTakeWhatTheSetStatesForAnEmptyCell) {
    forms.Register("frmGraph", [] { return std::make_unique<ui::Form>("frmGraph", "Plot"); });
    TwoVariables();
    clsX& stated = set->UX[0];
    stated.iDS = stated.iCU = stated.iCD = true;
    stated.CValue = "0.1%";
    stated.CDRms = "0.3";
    OpenTable();
    Paste("20\t100\t1000\t0.25\n30\t100\t995\t\t0.02\n40\t100\t990\t\t0.01\t2");
    std::string seen;
    desktop.OnModal([&](ui::Form& form) {
        for (const double uncertainty : globals.Plot->PointUnc)
            seen += NumberText(uncertainty) + " ";
        form.Close();
    });
    form_->cmdView.UserClick();
    // 0.1 % of 1000 above the root of 0.5^2 + 0.3^2; 0.02 % of 995 below 0.3; the row's own 2.
    EXPECT_EQ(seen, "1 0.3 2 ");
}

} // namespace
} // namespace vexora::test
