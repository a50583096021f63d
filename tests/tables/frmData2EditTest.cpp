// Work in the cells of a table: typing, pasting, rows, files, undo.
#include "tables/frmData2Fixture.h"

#include "entry/frmPasteView.h"

namespace vexora::test {
namespace {

using frmData2EditTest = frmData2Fixture;

TEST_F(frmData2EditTest, TableInTwoDimensionsBecomesOneRowForEachCell) {
    TwoVariables();
    OpenTable();
    Paste("\t101.3\t200\t300\t400\n300\t996.5\t996.6\t\t996.8\n310\t993.3\t993.4\t993.5\t993.6\n");
    EXPECT_EQ(form_->tblData.Columns(), 5);
    form_->mnuAction2D.UserClick();
    const std::string turned = Cells();
    EXPECT_EQ(form_->lblNotice.Caption(), "");
    EXPECT_EQ(turned, "Var1|Var2|Property|KVO Uncert.;300|101.3|996.5|;300|200|996.6|;"
                      "300|400|996.8|;310|101.3|993.3|;310|200|993.4|;310|300|993.5|;"
                      "310|400|993.6|;|||;");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(1, 4), "400");
    form_->mnuRedo.UserClick();
    EXPECT_EQ(Cells(), turned);
    // A statement leaves the way back to the printed table open.
    desktop.OnModal([this](ui::Form& form) {
        globals.CurrentUX->front().iUnc = true;
        globals.DialogAccepted = true;
        form.Close();
    });
    form_->cmdAssign.UserClick();
    EXPECT_EQ(form_->tblData.Cell(0, 3), "Uncert.");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(Cells(), turned);
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(1, 4), "400");
    form_->mnuRedo.UserClick();
    form_->mnuRedo.UserClick();
    EXPECT_EQ(form_->tblData.Cell(0, 3), "Uncert.");
}

TEST_F(frmData2EditTest, WidthComesBackWithEveryStepOfTheHistory) {
    TwoVariables();
    OpenTable();
    Paste("\t101.3\t200\t300\t400\n300\t996.5\t996.6\t\t996.8\n310\t993.3\t993.4\t993.5\t993.6");
    const std::string printed = Cells();
    form_->mnuAction2D.UserClick();
    const std::string turned = Cells();
    form_->cmdClear.UserClick();
    Paste("\t1\t2\t3\t4\t5\t6\n300\t9\t9\t9\t9\t9\t9");
    const std::string wider = Cells();
    EXPECT_EQ(form_->tblData.Columns(), 7);
    for (int i = 0; i < 3; ++i)
        form_->mnuUndo.UserClick();
    EXPECT_EQ(Cells(), printed);
    form_->mnuRedo.UserClick();
    EXPECT_EQ(Cells(), turned);
    form_->mnuRedo.UserClick();
    form_->mnuRedo.UserClick();
    EXPECT_EQ(Cells(), wider);
    for (int i = 0; i < 4; ++i)
        form_->mnuUndo.UserClick();
    EXPECT_EQ(Cells(), "Var1|Var2|Property|KVO Uncert.;|||;");
}

TEST_F(frmData2EditTest, BareValuesGoPastDigitsAndStatements) {
    globals.IncludeDigits = true;
    set->UX[1].iUnc = true;
    OpenTable();
    Paste("300\t996.50\n310\t993.3\n");
    EXPECT_EQ(Cells(), "Var1|Digits|Uncert.|Property|Digits|KVO Uncert.;300|||996.50||;"
                       "310|||993.3||;|||||;");
    EXPECT_EQ(form_->lblNotice.Caption(),
              "The values went past the columns between them; Ctrl+Z takes them back");
    form_->mnuUndo.UserClick();
    Paste("300\t3\t0.1\t996.50\n"); // as the table has them
    EXPECT_EQ(form_->tblData.Cell(1, 2) + " " + form_->tblData.Cell(1, 3), "0.1 996.50");
    form_->tblData.Select({1, 2, 1, 2});
    Paste("0.2\t996.6\n"); // not from the first column on
    EXPECT_EQ(form_->tblData.Cell(1, 2) + " " + form_->tblData.Cell(1, 3), "0.2 996.6");
}

TEST_F(frmData2EditTest, NumberInTheCornerIsNotLeftOutUntold) {
    TwoVariables();
    OpenTable();
    Paste("300 0.1 996.6\n310 0.2 993.3"); // rows already
    form_->mnuAction2D.UserClick();
    EXPECT_EQ(form_->lblNotice.Caption(),
              "The number in the corner, 300, was left out; Ctrl+Z brings the printed table back");
    form_->mnuUndo.UserClick();
    EXPECT_EQ(form_->lblNotice.Caption(), "");
    EXPECT_EQ(form_->tblData.Cell(1, 0), "300");
}

TEST_F(frmData2EditTest, SelectedBlockMovesBelowTheTable) {
    OpenTable();
    Paste("275 999.8 450 890.3\n280 999.7 625 567.0");
    form_->tblData.Select({1, 2, 2, 3});
    form_->mnuSplit.UserClick();
    EXPECT_EQ(Cells(), "Var1|Property|KVO Uncert.;275|999.8|;280|999.7|;450|890.3|;"
                       "625|567.0|;||;");
    EXPECT_EQ(form_->tblData.Selection(), (ui::Grid::Block{1, 2, 1, 2}));
    Press("Ctrl+A");
    desktop.Expect("Select the block that is to stand below the table");
    form_->mnuSplit.UserClick();
}

TEST_F(frmData2EditTest, BlockIsLookedAtBeforeItGoesIn) {
    OpenTable();
    Paste("275 999.8");
    desktop.ClipboardText("280 999.8(2)");
    const auto look = [](bool accepts) {
        return [accepts](ui::Form& form) {
            auto& view = dynamic_cast<frmPasteView&>(form);
            EXPECT_EQ(view.tblBlock.Cell(0, 1), "999.8(2)");
            EXPECT_EQ(view.lstNotices.Count(), 1);
            (accepts ? view.cmdAccept : view.cmdFinish).UserClick();
        };
    };
    desktop.OnModal(look(false));
    Press("Ctrl+Shift+V");
    EXPECT_EQ(form_->TableText(), "275\t999.8\t\n");
    desktop.OnModal(look(true));
    Press("Ctrl+Shift+V");
    EXPECT_EQ(form_->TableText(), "280\t999.8(2)\t\n");
}

TEST_F(frmData2EditTest, WidestTableTakesABlockWithTabsAtTheEnds) {
    TwoVariables();
    set->UX[0].iDS = set->UX[0].iRep = set->UX[0].iUnc = set->UX[0].iCD = true;
    OpenTable();
    ASSERT_EQ(form_->tblData.Columns(), 9);
    Paste("275\t101\t999.8\t0.1\t0.2\t5\t0.3\t0.4\t0.5\t\t\n");
    EXPECT_EQ(form_->tblData.Cell(1, 8), "0.5");
    form_->tblData.UserSelect({2, 1, 2, 1});
    desktop.Expect("The block has 9 columns, the table has room for 8\nNothing was pasted");
    Paste("T/K\tp\trho\td\tr\tn\tu\tc\tk\n275\t101\t999.8\t0.1\t0.2\t5\t0.3\t0.4\t0.5\n");
    EXPECT_EQ(form_->tblData.Rows(), 3);
}

TEST_F(frmData2EditTest, OnlyATableThatHasChangedIsNotGivenUpUnasked) {
    AddRow("275", "999.8");
    OpenTable();
    form_->tblData.SetFocus();
    Press("8"); // still being typed
    Discard(ui::Answer::No);
    form_->UserClose();
    EXPECT_EQ(form_->tblData.Cell(1, 0), "8");
    Discard(ui::Answer::No);
    Press("Escape");
    Press("Ctrl+Z");
    Press("Escape");
    EXPECT_FALSE(form_->IsOpen());
    OpenTable(); // statements are a change as well
    desktop.OnModal([this](ui::Form& form) {
        globals.CurrentUX->front().iUnc = true;
        globals.DialogAccepted = true;
        form.Close();
    });
    form_->cmdAssign.UserClick();
    Discard();
    form_->cmdFinish.UserClick();
    EXPECT_FALSE(form_->IsOpen());
    EXPECT_EQ(Rows(), "275 999.8 0.1;");
}

TEST_F(frmData2EditTest, RowsAreInsertedAndRemovedWithAllThatBelongsToThem) {
    for (const char* t : {"275", "285", "295", "295"})
        AddRow(t, "999.8");
    set->recData.Item(2)->Statements(0).Unc = "0.5";
    set->recData.Item(4)->Statements(0).Unc = "0.7";
    OpenTable();
    form_->tblData.SetFocus();
    form_->tblData.UserSelect({2, 0, 3, 0});
    Press("Ctrl++");
    EXPECT_EQ(form_->TableText(),
              "275\t999.8\t\t0.1\n\t\t\t\n\t\t\t\n285\t999.8\t0.5\t0.1\n295\t999.8\t\t0.1\n"
              "295\t999.8\t0.7\t0.1\n");
    form_->tblData.UserCell(2, 0, "280");
    form_->tblData.UserCell(2, 1, "99x");
    EXPECT_EQ(Findings().substr(0, 5), "Row 2");
    form_->tblData.UserSelect({1, 0, 1, 0});
    Press("Ctrl+-");
    EXPECT_EQ(Findings().substr(0, 5), "Row 1");
    form_->tblData.UserCell(1, 1, "999.9");
    form_->tblData.UserCell(3, 0, "286");
    form_->tblData.UserSelect({4, 1, 4, 1});
    Press("Ctrl+-");
    Press("Ctrl+Z");
    Press("Ctrl+Shift+Z");
    Accept();
    EXPECT_EQ(Rows(), "280 999.9 ;286 999.8 0.1;295 999.8 0.1;");
    EXPECT_EQ(set->recData.Item(1)->StatementsOf(0).Unc, "");
    EXPECT_EQ(set->recData.Item(2)->StatementsOf(0).Unc, "0.5");
    EXPECT_EQ(set->recData.Item(3)->StatementsOf(0).Unc, "0.7");
}

TEST_F(frmData2EditTest, CountsOfDigitsFollowATextThatIsTypedAnew) {
    globals.IncludeDigits = true;
    AddRow("275.0", "999.8");
    AddRow("285", "1000");
    for (clsData& row : set->recData)
        row.isDigit = true;
    set->recData.Item(2)->Digits[0] = 2; // stated by a person
    OpenTable();
    form_->tblData.UserCell(1, 2, "999.80");
    form_->tblData.UserCell(2, 2, "1100");
    EXPECT_EQ(form_->TableText(), "275.0\t4\t999.80\t5\t0.1\n285\t3\t1100\t2\t0.1\n");
    form_->tblData.UserSelect({1, 2, 1, 2});
    Paste("99.8 4");
    form_->tblData.UserSelect({2, 0, 2, 0});
    form_->tblData.SetFocus();
    Press("Num*");
    EXPECT_EQ(form_->TableText(), "275.0\t4\t99.8\t4\t0.1\n2850\t3\t1100\t2\t0.1\n");
    form_->tblData.UserCell(2, 1, "2.5");
    EXPECT_EQ(Findings().substr(0, 39), "Row 2, Digits of Var1: Invalid number. ");
}

TEST_F(frmData2EditTest, NumbersThatMayBeReadOtherwiseAreMarkedAsTheyAreTyped) {
    OpenTable();
    Paste("275 999.8\n280 999.7");
    form_->tblData.UserCell(1, 1, "1,001");
    form_->tblData.UserCell(2, 1, "9 99.7");
    EXPECT_EQ(form_->lstFindings.Item(0), "Row 1, Property: \"1,001\" will be read as 1.001");
    EXPECT_EQ(form_->lstFindings.Item(1), "Row 2, Property: \"9 99.7\" will be read as 999.7");
}

} // namespace
} // namespace vexora::test
