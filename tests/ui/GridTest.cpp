#include "ui/Grid.h"

#include <gtest/gtest.h>

#include "support/StrictDesktop.h"
#include "ui/Form.h"
#include "ui/Forms.h"

namespace vexora::test {
namespace {

class GridTest : public testing::Test {
protected:
    GridTest() {
        form.Show();
        form.grid.SetFocus();
    }
    /// The selection after these keys.
    std::string After(const std::vector<std::string>& keys) {
        for (const std::string& key : keys)
            form.UserKey(ui::ParseKey(key));
        const ui::Grid::Block& block = form.grid.Selection();
        return std::to_string(block.top) + "," + std::to_string(block.left) + " " +
               std::to_string(block.bottom) + "," + std::to_string(block.right);
    }

    StrictDesktop desktop;
    ui::Forms forms{desktop};
    struct TableForm : ui::Form {
        TableForm() : Form("frmTable", "Table") {}
        ui::Grid grid{*this, "tblData", 50, 5, 1, 1};
    } form;
};

TEST_F(GridTest, KeysMoveTheSelectionWithinTheCellsBehindTheFixedOnes) {
    form.grid.Select({1, 1, 1, 1});
    EXPECT_EQ(After({"Up", "Left"}), "1,1 1,1");
    EXPECT_EQ(After({"Down", "Right"}), "2,2 2,2");
    EXPECT_EQ(After({"End"}), "2,4 2,4");
    EXPECT_EQ(After({"PageDown", "Home"}), "22,1 22,1");
    EXPECT_EQ(After({"Ctrl+Down", "Ctrl+Right", "Down"}), "49,4 49,4");
    EXPECT_EQ(After({"Ctrl+Home"}), "1,1 1,1");
    EXPECT_EQ(After({"Ctrl+End", "PageUp"}), "29,4 29,4");
    EXPECT_EQ(After({"Ctrl+Up", "Alt+Down"}), "1,4 1,4");
}

TEST_F(GridTest, ShiftExtendsFromTheCellWhereItBegan) {
    form.grid.Select({5, 3, 5, 3});
    EXPECT_EQ(After({"Shift+Down", "Shift+Down", "Shift+Right"}), "5,3 7,4");
    EXPECT_EQ(form.grid.Cursor(), (std::pair{7, 4}));
    EXPECT_EQ(After({"Shift+Up", "Shift+Up", "Shift+Up", "Shift+Left", "Shift+Left"}), "4,2 5,3");
    EXPECT_EQ(After({"Ctrl+Shift+End"}), "5,3 49,4");
    EXPECT_EQ(After({"Down"}), "6,3 6,3");
}

TEST_F(GridTest, TableWithoutCellsLeavesTheKeysToTheForm) {
    form.grid.Resize(1, 5);
    ui::Key key = ui::ParseKey("Down");
    EXPECT_FALSE(form.grid.UserKey(key));
}

TEST_F(GridTest, MarksOfSomeRowsTakeThePlaceOfTheirOwnAlone) {
    int redrawn = 0;
    form.grid.Redraw.Connect([&] { ++redrawn; });
    form.grid.MarkRows(1, 9, {{{2, 1}, {true, "a"}}, {{3, 1}, {true, "b"}}, {{4, 2}, {true, "c"}}});
    form.grid.MarkRows(3, 3, {{{3, 2}, {false, "d"}}});
    EXPECT_EQ(redrawn, 2);
    form.grid.MarkRows(3, 3, {{{3, 2}, {false, "d"}}});
    form.grid.MarkRows(5, 49, {});
    EXPECT_EQ(redrawn, 2);
    EXPECT_EQ(
        form.grid.CellMarks(),
        (ui::Grid::Marks{{{2, 1}, {true, "a"}}, {{3, 2}, {false, "d"}}, {{4, 2}, {true, "c"}}}));
}

} // namespace
} // namespace vexora::test
