#include "grid/GridKey.h"

#include "grid/TableFixture.h"

namespace vexora::test {
namespace {

class GridKeyTest : public TableFixture {
protected:
    /// What a key makes of one cell.
    std::string Changed(const std::string& text, const std::string& key) {
        undo.Do([&](TableEdit& edit) { edit.Cell(1, 0, text); });
        form.grid.Select({1, 0, 1, 0});
        Press(key);
        return form.grid.Cell(1, 0);
    }
};

TEST_F(GridKeyTest, NumberPadKeepsTheDigitsOfTheCell) {
    struct Case {
        const char *text, *minus, *times, *divide;
    };
    const std::vector<Case> cases = {{"1.50", "-1.50", "15.0", "0.150"},
                                     {"12", "-12", "120", "1.2"},
                                     {"0.0050", "-0.0050", "0.050", "0.00050"},
                                     {"-7.0", "7.0", "-70", "-0.70"},
                                     {"+2.5", "-2.5", "25", "0.25"},
                                     {"n/a", "n/a", "n/a", "n/a"},
                                     {"", "", "", ""},
                                     {"5%", "5%", "5%", "5%"}};
    for (const Case& one : cases) {
        EXPECT_EQ(Changed(one.text, "Num-"), one.minus) << one.text;
        EXPECT_EQ(Changed(one.text, "Num*"), one.times) << one.text;
        EXPECT_EQ(Changed(one.text, "Num/"), one.divide) << one.text;
    }
}

TEST_F(GridKeyTest, KeysActOnTheSelectedBlockAlone) {
    Fill("1 2 3\n4 5 6\n7 8 9");
    form.grid.Select({1, 1, 3, 1});
    Press("Ctrl+D");
    EXPECT_EQ(Cells(), "1|2|3\n4|2|6\n7|2|9\n||\n");
    form.grid.Select({1, 0, 2, 1});
    Press("Ctrl+X");
    EXPECT_EQ(desktop.ClipboardText(), "1\t2\n4\t2");
    EXPECT_EQ(Cells(), "||3\n||6\n7|2|9\n||\n");
    Press("Ctrl+A");
    EXPECT_EQ(form.grid.Selection(), (ui::Grid::Block{1, 0, 4, 2}));
    Press("Delete");
    EXPECT_EQ(Cells(), "||\n");
    undo.Undo();
    EXPECT_EQ(Cells(), "||3\n||6\n7|2|9\n||\n");
}

TEST_F(GridKeyTest, MinusOfTheMainKeysIsNotTaken) {
    ui::Key key = ui::ParseKey("-");
    GridKey(undo, key);
    EXPECT_FALSE(key.swallowed);
}

} // namespace
} // namespace vexora::test
