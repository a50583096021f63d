// Typing and moving in the cells of a table.
#include "grid/EditorFixture.h"

namespace vexora::test {
namespace {

using TableEditorTest = EditorFixture;

TEST_F(TableEditorTest, TypingStartsTheEditorAndArrowsLeaveIt) {
    Press({"x", "2", "7", "5", "Right", "9", "Escape", "9", ".", "Enter"});
    EXPECT_EQ(Cells(), "275|9.||;|||;");
    EXPECT_FALSE(form.txtCell.Visible());
    EXPECT_TRUE(form.tblData.HasFocus());
    EXPECT_EQ(Selected(), "2,1");
    Press({"4"});
    form.cmdOther.SetFocus();
    EXPECT_EQ(form.tblData.Cell(2, 1), "4");
    Press({"Ctrl+Z"});
    EXPECT_EQ(form.tblData.Cell(2, 1), "");
}

TEST_F(TableEditorTest, TabGoesAlongTheRowsAndOutAtTheEnd) {
    Press({"2", "7", "5", "Tab", "9", "9", "Tab", "1", "Tab", "3", "Shift+Tab", "8", "Tab"});
    EXPECT_EQ(Cells(), "275|99|8|;3|||;|||;"); // over the figure, forth and back
    EXPECT_EQ(Selected(), "2,0");
    Press({"Tab", "Tab", "Tab", "Tab", "Tab"});
    EXPECT_EQ(Selected(), "3,2");
    EXPECT_TRUE(form.tblData.HasFocus());
    Press({"Tab"});
    EXPECT_FALSE(form.tblData.HasFocus());
}

TEST_F(TableEditorTest, OpenCellTakesUndoAndPasteAsTheTableDoes) {
    Paste("275 1 999.8\n280 2 999.7");
    Press({"F2"});
    desktop.ClipboardText(".15\r\n");
    Press({"Ctrl+V"});
    EXPECT_EQ(form.txtCell.Text(), "275.15");
    Press({"Ctrl+Z"});
    EXPECT_FALSE(form.txtCell.Visible());
    EXPECT_EQ(form.tblData.Cell(1, 0), "275");
    desktop.ClipboardText("290\t3\t999.1\r\n295\t4\t999.0\r\n");
    Press({"F2", "Ctrl+V"});
    EXPECT_EQ(Cells(), "290|3|999.1|;295|4|999.0|;|||;");
    Press({"F2", "PageDown"});
    EXPECT_EQ(Selected(), "3,0");
}

TEST_F(TableEditorTest, MenusComeBehindWhatIsBeingTyped) {
    Paste("275 1\n280 2\n285 3");
    Select(2, 1, 2, 1);
    Press({"8"});
    form.mnuCopy.UserClick();
    EXPECT_EQ(desktop.ClipboardText(), "8");
    Press({"9", "Ctrl+Z"});
    EXPECT_FALSE(form.txtCell.Visible());
    EXPECT_EQ(form.table.Blocks().Text(), "275\t\t1\t\n280\t8\t2\t\n285\t\t3\t\n");
}

TEST_F(TableEditorTest, WhatFollowsAnEntryKnowsTheColumnsEnteredWithIt) {
    Paste("1 a 5\n2 b 6");
    form.tblData.UserCell(1, 0, "10");
    EXPECT_EQ(Cells(), "10|was 1|5|;2|b|6|;|||;");
    Select(1, 0, 1, 0);
    Paste("11 c 5"); // with a note of its own
    Select(2, 0, 2, 0);
    Press({"Num*", "Ctrl+Z", "Num-"}); // keeps the digits, so that nothing is entered anew
    EXPECT_EQ(Cells(), "11|c|5|;-2|b|6|;|||;");
    Press({"Delete"});
    EXPECT_EQ(Cells(), "11|c|5|;|was -2|6|;|||;");
    Press({"Ctrl+Z"});
    EXPECT_EQ(Cells(), "11|c|5|;-2|b|6|;|||;");
}

} // namespace
} // namespace vexora::test
