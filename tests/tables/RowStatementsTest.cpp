#include "tables/frmData2Fixture.h"

namespace vexora::test {
namespace {

class RowStatementsTest : public frmData2Fixture {
protected:
    /// On the dialog of statements the property gets this figure, and is accepted.
    void StateProperty(const std::string& figure) {
        desktop.OnModal([this, figure](ui::Form& form) {
            clsX& density = globals.CurrentUX->front();
            density.iUnc = true;
            density.UValue = figure;
            globals.DialogAccepted = true;
            form.Close();
        });
        form_->cmdAssign.UserClick();
    }
    std::string Uncertainties() const {
        std::string text;
        for (const clsData& row : set->recData)
            text += row.StatementsOf(0).Unc + ";";
        return text;
    }
    static inline const std::string Switched =
        "The set now states its figure for Uncert. in another way, as per cent or as absolute."
        "\nAre the entries of the rows to be read that way too? Their digits stay";
};

TEST_F(RowStatementsTest, WhatAnyRowStatesHasItsColumn) {
    AddRow("275", "999.80");
    AddRow("300", "996.5");
    set->recData.Item(2)->Statements(0).Unc = "0.5";
    set->recData.Item(2)->Statements(1).Repetitions = "3";
    set->recData.Item(1)->Statements(1);
    set->recData.Item(1)->Extras->CD = "0.1%";
    OpenTable();
    EXPECT_EQ(Cells(), "Var1|Repeatab.|Repetitions|Property|Uncert.|Curve Dev.|KVO Uncert.;"
                       "275|||999.80||0.1%|0.1;300||3|996.5|0.5||0.1;||||||;");
    form_->cmdFinish.UserClick(); // opening alone changes nothing
    EXPECT_FALSE(set->UX[0].iUnc || set->UX[1].iRep);
    OpenTable();
    form_->tblData.UserCell(2, 2, "");
    Accept();
    // Marked is what has a figure in the end.
    EXPECT_TRUE(set->UX[0].iUnc && set->UX[0].iCD);
    EXPECT_FALSE(set->UX[1].iRep || set->UX[0].iDS || set->UX[1].iUnc);
    EXPECT_EQ(Uncertainties(), ";0.5;");
    EXPECT_EQ(set->recData.Item(1)->Extras->CD, "0.1%");
}

TEST_F(RowStatementsTest, AnAbsoluteEntryBesidePerCentStaysAbsolute) {
    AddRow("275", "999.80");
    AddRow("300", "996.5");
    set->UX[0].iUnc = true;
    set->UX[0].UValue = "1%";
    set->recData.Item(1)->Statements(0).Unc = "0.25";
    set->recData.Item(2)->Statements(0).Unc = "2%";
    OpenTable();
    EXPECT_EQ(Cells(),
              "Var1|Property|Uncert.|KVO Uncert.;275|999.80|0.25|0.1;300|996.5|2%|0.1;|||;");
    Accept();
    EXPECT_EQ(Uncertainties(), "0.25;2%;");
}

TEST_F(RowStatementsTest, WhatTheSetStatesIsSeenAndIsNoText) {
    TwoVariables();
    set->isOriginalUnit = true;
    set->VAR1_UNIT = "K";
    set->VAR2_UNIT = "MPa";
    set->UX[0].iUnc = true;
    set->UX[0].UValue = "1%";
    set->UX[2].N = 2;
    set->UX[2].iUnc = true;
    set->UX[2].UValue = "0.25";
    OpenTable();
    Paste("275 1 \t999.80");
    const auto text = [](const ui::Grid::ColumnTexts& texts) {
        std::string all;
        for (const auto& [column, one] : texts)
            all += std::to_string(column) + " " + one + ";";
        return all;
    };
    EXPECT_EQ(text(form_->tblData.Stated()), "2 0.25;4 1;");
    EXPECT_EQ(text(form_->tblData.HeadNotes()),
              "0 Temperature, K;1 Pressure, MPa;2 MPa;3 Density, kg/m3;");
    EXPECT_EQ(form_->tblData.Cell(1, 2) + form_->tblData.Cell(1, 4), "");
    Discard();
    form_->Close();
}

TEST_F(RowStatementsTest, ThePlotBesideFollowsTheTable) {
    const auto points = [this] {
        return std::ranges::count(form_->picBeside.Strokes(), ui::Picture::Shape::Marker,
                                  &ui::Picture::Stroke::shape);
    };
    OpenTable();
    Paste("275 999.8\n280 999.7\n285 999.6");
    EXPECT_FALSE(form_->picBeside.Visible());
    form_->mnuPlotBeside.UserClick();
    EXPECT_EQ(points(), 3);
    form_->tblData.UserCell(4, 0, "290"); // no whole row yet
    EXPECT_EQ(points(), 3);
    form_->tblData.UserCell(4, 1, "999.5");
    EXPECT_EQ(points(), 4);
    form_->mnuUndo.UserClick();
    EXPECT_EQ(points(), 3);
    form_->picBeside.OnPress(BesideSize.width - 30, BesideSize.height - 100);
    EXPECT_EQ(form_->tblData.Display(), "999.6");
    Discard();
    form_->Close();
    OpenTable(); // as the last one was left
    EXPECT_TRUE(form_->picBeside.Visible() && form_->mnuPlotBeside.Checked());
}

TEST_F(RowStatementsTest, EntriesBecomePerCentOnlyWhenThatIsMeant) {
    set->UX[0].iUnc = true;
    set->UX[0].UValue = "0.1";
    OpenTable();
    Paste("275 999.8 0.25\n280 999.7 2%\n285 999.6");
    desktop.Expect(Switched, ui::Answer::No);
    StateProperty("1%");
    EXPECT_EQ(form_->tblData.Cell(0, 2), "Uncert.");
    form_->mnuUndo.UserClick();
    desktop.Expect(Switched, ui::Answer::Yes);
    StateProperty("1%");
    EXPECT_EQ(form_->tblData.Cell(0, 2), "Uncert.%");
    EXPECT_EQ(form_->tblData.Cell(1, 2), "0.25");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(0, 2), "Uncert.");
    form_->mnuRedo.UserClick();
    form_->cmdSave.UserClick();
    EXPECT_EQ(Uncertainties(), "0.25%;2%;;");
}

TEST_F(RowStatementsTest, EntriesInPerCentBecomeAbsoluteOnlyWhenThatIsMeant) {
    set->UX[0].iUnc = true;
    set->UX[0].UValue = "1%";
    OpenTable();
    Paste("275 999.8 0.25\n280 999.7 2%\n285 999.6");
    StateProperty(""); // without a figure of the set nothing is read otherwise
    EXPECT_EQ(Cells(), "Var1|Property|Uncert.|KVO Uncert.;275|999.8|0.25%|;280|999.7|2%|;"
                       "285|999.6||;|||;");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(1, 2), "0.25");
    desktop.Expect(Switched, ui::Answer::Yes);
    StateProperty("0.1");
    EXPECT_EQ(form_->tblData.Cell(0, 2) + form_->tblData.Cell(1, 2), "Uncert.0.25");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(0, 2), "Uncert.%");
    desktop.Expect(Switched, ui::Answer::No);
    StateProperty("0.1");
    StateProperty("0.2"); // no switch
    form_->cmdSave.UserClick();
    EXPECT_EQ(Uncertainties(), "0.25%;2%;;");
}

TEST_F(RowStatementsTest, APastedColumnBehindThePropertyIsAskedAbout) {
    OpenTable();
    const std::string ask = "The last column of the block comes to stand under KVO Uncert., the "
                            "figure of the evaluation\nIs it the uncertainty of ";
    desktop.Expect(ask + "Density?", ui::Answer::Cancel);
    Paste("275 999.8 0.5\n280 999.7");
    EXPECT_EQ(Cells(), "Var1|Property|KVO Uncert.;||;");
    desktop.Expect(ask + "Density?", ui::Answer::Yes);
    Paste("275 999.8 0.5\n280 999.7");
    const std::string stated = "Var1|Property|Uncert.|KVO Uncert.;275|999.8|0.5|;280|999.7||;|||;";
    EXPECT_EQ(Cells(), stated);
    EXPECT_TRUE(
        form_->lblNotice.Caption().ends_with("The last column went into Uncert. of Property"))
        << form_->lblNotice.Caption();
    form_->mnuUndo.UserClick();
    EXPECT_EQ(Cells(), "Var1|Property|KVO Uncert.;||;");
    EXPECT_FALSE(form_->mnuUndo.Enabled() && set->UX[0].iUnc);
    form_->mnuRedo.UserClick();
    EXPECT_EQ(Cells(), stated);
    form_->mnuUndo.UserClick();
    desktop.Expect(ask + "Density?", ui::Answer::No);
    desktop.Expect(ask + "Temperature?", ui::Answer::Yes);
    Paste("275 999.8 0.5\n280");
    EXPECT_EQ(Cells(), "Var1|Uncert.|Property|KVO Uncert.;275|0.5|999.8|;280|||;|||;");
    form_->mnuUndo.UserClick();
    desktop.Expect(ask + "Density?", ui::Answer::No);
    desktop.Expect(ask + "Temperature?", ui::Answer::No);
    Paste("275 999.8 0.5");
    EXPECT_EQ(Cells(), "Var1|Property|KVO Uncert.;275|999.8|0.5;||;");
    EXPECT_TRUE(form_->lblNotice.Caption().ends_with(
        "The last column went into KVO Uncert., the figure of the evaluation"))
        << form_->lblNotice.Caption();
    form_->tblData.UserSelect({1, 2, 1, 2}); // straight into that column: as it was meant
    Paste("0.6");
    EXPECT_EQ(form_->tblData.Cell(1, 2), "0.6");
}

TEST_F(RowStatementsTest, SystemUnitsAreOneStepWithTheDigitsTheyNeed) {
    set->VAR1_UNIT = "bar";
    set->VARIABLE1 = "P";
    OpenTable();
    Paste("25 999.8"); // two digits, which the text in kPa does not tell
    const std::string before = Cells();
    form_->mnuSystemUnits.UserClick();
    ASSERT_TRUE(globals.IncludeDigits) << Cells();
    const std::string after = Cells();
    form_->mnuUndo.UserClick();
    EXPECT_EQ(Cells(), before);
    EXPECT_FALSE(globals.IncludeDigits);
    EXPECT_TRUE(form_->mnuSystemUnits.Enabled());
    form_->mnuRedo.UserClick();
    EXPECT_EQ(Cells(), after);
    EXPECT_TRUE(globals.IncludeDigits);
}

} // namespace
} // namespace vexora::test
