// Marks, the list of findings and the way from one to the next.
#include "grid/EditorFixture.h"

namespace vexora::test {
namespace {

using FindingListTest = EditorFixture;

TEST_F(FindingListTest, FindingsAndHintsOfARowAreMarkedAndListed) {
    Paste("1 ? 5\n1 b y\nx c 7");
    EXPECT_EQ(Findings(), "Row 1, n: Is that so?;Row 2, y: No number;Row 2, x: Same x;"
                          "Row 3, x: No number;");
    EXPECT_FALSE(form.tblData.MarkOf(1, 1)->isFault);
    EXPECT_TRUE(form.tblData.MarkOf(2, 2)->isFault);
    EXPECT_EQ(form.tblData.MarkOf(2, 0)->tip, "Same x");
    EXPECT_TRUE(form.table.Findings().HasHint(2));
    form.tblData.UserCell(1, 0, "2"); // ends the hint of another row
    EXPECT_EQ(form.tblData.MarkOf(2, 0), nullptr);
    EXPECT_EQ(Findings(), "Row 2, y: No number;Row 3, x: No number;");
    form.tblData.UserCell(2, 2, "6");
    form.tblData.UserCell(3, 0, "3");
    EXPECT_TRUE(form.tblData.CellMarks().empty());
    EXPECT_FALSE(form.lstFindings.Visible());
    form.mnuUndo.UserClick();
    EXPECT_EQ(Findings(), "Row 3, x: No number;");
}

TEST_F(FindingListTest, StepsGoFromCellToCellAndAroundAtTheEnds) {
    Paste("1 ? 5\n1 b y\nx c 7");
    std::string way;
    for (const char* key : {"F8", "F8", "F8", "F8", "F8", "Shift+F8", "Shift+F8"}) {
        Press({key});
        way += Selected() + " ";
    }
    EXPECT_EQ(way, "1,1 2,0 2,2 3,0 1,1 3,0 2,2 ");
    EXPECT_EQ(form.lstFindings.Chosen(), "Row 2, y: No number");
    form.lstFindings.UserChoose(3);
    EXPECT_EQ(Selected(), "3,0");
    EXPECT_TRUE(form.tblData.HasFocus());
}

TEST_F(FindingListTest, FindingsMoveWithTheirRowsAndGoWithThem) {
    Paste("1 a 5\n1 b y\n3 c 7");
    Select(1, 0, 1, 0);
    Press({"Ctrl++"});
    EXPECT_EQ(Findings(), "Row 3, y: No number;Row 3, x: Same x;");
    EXPECT_EQ(form.tblData.MarkOf(2, 2), nullptr);
    Press({"Ctrl+-", "Ctrl+-"});
    EXPECT_EQ(Findings(), "Row 1, y: No number;");
    form.table.Blocks().Clear();
    EXPECT_TRUE(form.tblData.CellMarks().empty());
}

TEST_F(FindingListTest, OneTypedCellAsksForItsRowAlone) {
    std::string text;
    for (int row = 0; row < 300; ++row)
        text += std::to_string(row) + "\t?\ty\n";
    Paste(text);
    EXPECT_EQ(form.lstFindings.Count(), 201);
    EXPECT_EQ(form.lstFindings.Item(200), "... and 400 more");
    EXPECT_EQ(form.tblData.CellMarks().size(), 600u);
    form.asked = form.looked = 0;
    form.tblData.UserCell(250, 2, "1");
    EXPECT_EQ(form.asked, 1);
    EXPECT_EQ(form.tblData.CellMarks().size(), 599u);
    EXPECT_EQ(form.lstFindings.Item(200), "... and 399 more");
    EXPECT_EQ(form.looked, 1);
    form.tblData.UserCell(250, 1, "b"); // no value
    EXPECT_EQ(form.asked, 2);
    EXPECT_EQ(form.looked, 1);
    form.mnuUndo.UserClick();
    form.mnuUndo.UserClick();
    EXPECT_EQ(form.asked, 4);
    EXPECT_EQ(form.looked, 2);
    EXPECT_EQ(form.lstFindings.Item(200), "... and 400 more");
}

} // namespace
} // namespace vexora::test
