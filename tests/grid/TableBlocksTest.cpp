// Blocks, rows, files and the way back.
#include "grid/EditorFixture.h"

#include <filesystem>
#include <fstream>

#include "support/ScratchFolder.h"

namespace vexora::test {
namespace {

using TableBlocksTest = EditorFixture;

TEST_F(TableBlocksTest, BareValuesGoPastTheColumnsBetweenThem) {
    Paste("300\t996.50\n310\t993.3\n");
    EXPECT_EQ(Cells(), "300||996.50|;310||993.3|;|||;");
    EXPECT_EQ(form.lblNotice.Caption(),
              "The values went past the columns between them; Ctrl+Z takes them back");
    Press({"Ctrl+Z"});
    EXPECT_EQ(form.lblNotice.Caption(), "");
    Paste("300\t3\t996.50\n"); // as the table has them
    Select(2, 1, 2, 1);
    Paste("3\t993.3\n"); // not from the first column on
    EXPECT_EQ(Cells(), "300|3|996.50|;|3|993.3|;|||;");
}

TEST_F(TableBlocksTest, BlockThatIsTooWideIsRefusedWhole) {
    form.tblData.UserCell(1, 0, "275");
    desktop.Expect("The block has 6 columns, the table has room for 4\nNothing was pasted");
    Paste("1 2 3 4 5 6\n1 2 3 4 5 6");
    EXPECT_EQ(Cells(), "275|||;|||;");
    form.table.Blocks().Clear();
    desktop.Expect("The block has 5 columns, the table has room for 4\nNothing was pasted");
    Paste("1 2 3 4 5\n1 2 3 4 5"); // nor does the form let it grow for this one
}

TEST_F(TableBlocksTest, EmptyTableGrowsForABlockAndIsAsWideAsBeforeAfterAnUndo) {
    Paste("1 2 3 4 5 6\n7 8 9 10 11 12");
    const std::string wide = Cells();
    EXPECT_EQ(wide, "1|2|3|4|5|6;7|8|9|10|11|12;|||||;");
    form.table.History().Do([](TableEdit& edit) { edit.Columns(4); });
    const std::string narrow = Cells();
    EXPECT_EQ(narrow, "1|2|3|4;7|8|9|10;|||;");
    form.table.Blocks().Clear();
    Paste("1 2 3 4 5 6 7 8\n1 2 3 4 5 6 7 8");
    const std::string wider = Cells();
    Press({"Ctrl+Z", "Ctrl+Z"});
    EXPECT_EQ(Cells(), narrow);
    Press({"Ctrl+Z"});
    EXPECT_EQ(Cells(), wide);
    Press({"Ctrl+Y", "Ctrl+Y", "Ctrl+Y"});
    EXPECT_EQ(Cells(), wider);
    Press({"Ctrl+Z", "Ctrl+Z", "Ctrl+Z", "Ctrl+Z"});
    EXPECT_EQ(Cells(), "|||;");
}

TEST_F(TableBlocksTest, NoticesKeepToTheirRowsUntilTheNextPasteOrStepBack) {
    Paste("275 1,234 1");
    EXPECT_EQ(form.lblNotice.Caption(), "row 1: \"1,234\" became 1.234");
    Paste("T/K rho n\n275 1,234.5 1");
    Press({"Ctrl+-"}); // the heads
    EXPECT_EQ(form.lblNotice.Caption(), "row 1: \"1,234.5\" became 1.234.5, which is no number");
    Press({"Ctrl++"});
    EXPECT_EQ(form.lblNotice.Caption().substr(0, 7), "row 2: ");
    Select(3, 0, 3, 0);
    Paste("1 1 1\n2 2 2\n3 3 3\n4 4 4");
    EXPECT_EQ(form.lblNotice.Caption(), "More than four rows");
    Paste(""); // a picture was copied
    Press({"Ctrl+Z"});
    EXPECT_EQ(form.lblNotice.Caption(), "");
}

TEST_F(TableBlocksTest, BlockGoesInWhenItIsWantedAsShown) {
    desktop.ClipboardText("280 1 999.8\n285 2 999.7");
    form.wanted = false;
    Press({"Ctrl+Shift+V"});
    EXPECT_EQ(Cells(), "|||;");
    EXPECT_EQ(form.shown, 2u);
    form.wanted = true;
    Press({"Ctrl+Shift+V"});
    EXPECT_EQ(Cells(), "280|1|999.8|;285|2|999.7|;|||;");
}

TEST_F(TableBlocksTest, OneValuePastedFillsTheSelection) {
    Paste("275 1\n280 2\n285 3");
    Select(1, 2, 3, 2);
    desktop.ClipboardText("999,8\r\n");
    Press({"Shift+Insert"});
    EXPECT_EQ(Cells(), "275||999.8|;280||999.8|;285||999.8|;|||;");
    Select(4, 1, 4, 1);
    form.mnuUndo.UserClick();
    EXPECT_EQ(form.tblData.Cell(2, 2), "2");
    EXPECT_EQ(Selected(), "1,1"); // what has changed is seen
}

TEST_F(TableBlocksTest, PasteAndClearAreTakenBackByKeysToTheLastZero) {
    std::string text;
    for (int row = 0; row < 200; ++row)
        text += std::to_string(270 + row) + ".150\t997." + std::to_string(row) + "00\t0.10\t\n";
    desktop.ClipboardText(text);
    Press({"Ctrl+V"});
    const TableBlocks& blocks = form.table.Blocks();
    EXPECT_EQ(blocks.Text(), text);
    form.table.Blocks().Clear();
    EXPECT_EQ(blocks.Text(), "");
    for (const auto& [key, now] :
         {std::pair("Ctrl+Z", text), std::pair("Ctrl+Z", std::string()),
          std::pair("Ctrl+Z", std::string()), std::pair("Ctrl+Shift+Z", text),
          std::pair("Ctrl+Y", std::string()), std::pair("Ctrl+Y", std::string()),
          std::pair("Ctrl+Z", text)}) {
        Press({key});
        EXPECT_EQ(blocks.Text(), now) << key;
    }
}

TEST_F(TableBlocksTest, RowsAreInsertedAndRemovedWhereTheyAreSelected) {
    Paste("1 a 5\n2 b 6\n3 c 7");
    Select(2, 0, 3, 0);
    Press({"Ctrl++"});
    EXPECT_EQ(Cells(), "1|a|5|;|||;|||;2|b|6|;3|c|7|;|||;");
    Select(1, 1, 2, 1);
    Press({"Ctrl+-"});
    EXPECT_EQ(Cells(), "|||;2|b|6|;3|c|7|;|||;");
    EXPECT_EQ(Selected(), "1,1");
    Select(4, 0, 4, 0);
    Press({"Ctrl++"}); // behind the last filled one an empty row stands already
    EXPECT_EQ(Cells(), "|||;2|b|6|;3|c|7|;|||;");
    Press({"Ctrl+Z", "Ctrl+Z"});
    EXPECT_EQ(Cells(), "1|a|5|;2|b|6|;3|c|7|;|||;");
}

TEST_F(TableBlocksTest, TableOfAFileReplacesWhatStoodHereInOneStep) {
    const ScratchFolder scratch;
    desktop.chosen = scratch.Path("table.txt");
    std::ofstream(*desktop.chosen) << "275 5 999.8\n";
    Paste("1 2 3\n3 4 5\n5 6 7");
    Select(3, 1, 3, 1);
    form.mnuFileOpen.UserClick();
    EXPECT_EQ(Cells(), "275|5|999.8|;|||;");
    EXPECT_EQ(form.lblNotice.Caption(),
              "The table of the file replaced 3 rows; Ctrl+Z brings back what stood here");
    form.mnuUndo.UserClick();
    EXPECT_EQ(Cells(), "1|2|3|;3|4|5|;5|6|7|;|||;");
    desktop.Expect(*desktop.chosen + " exists already\nReplace it?", ui::Answer::No);
    form.mnuFileSave.UserClick();
    std::string error;
    EXPECT_EQ(desktop.disk.Read(*desktop.chosen, error), "275 5 999.8\n");
}

TEST_F(TableBlocksTest, FullDiskLeavesTheOldFileOfATable) {
    const ScratchFolder scratch;
    const std::string path = scratch.Path("table.txt");
    std::ofstream(path) << "1\t2\n";
    Paste("275 1 999.80");
    desktop.chosen = path;
    desktop.disk.FailAt("Write");
    desktop.Expect(path + " exists already\nReplace it?", ui::Answer::Yes);
    desktop.Expect("The file " + path + " cannot be written.\nNo space left on device");
    form.mnuFileSave.UserClick();
    std::string error;
    EXPECT_EQ(desktop.disk.Read(path, error), "1\t2\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(scratch.Path()), {}), 1);
    desktop.chosen = scratch.Path("none.txt");
    desktop.disk.FailAt("Read", desktop.disk.Calls("Read") + 1, "No such file");
    desktop.Expect("No such file");
    form.mnuFileOpen.UserClick();
    EXPECT_EQ(form.tblData.Cell(1, 2), "999.80");
}

} // namespace
} // namespace vexora::test
