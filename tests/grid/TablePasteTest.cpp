#include "grid/TablePaste.h"

#include "grid/TableFixture.h"

namespace vexora::test {
namespace {

using TablePasteTest = TableFixture;

std::string Rows(const PastedTable& table) {
    std::string text;
    for (const auto& row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            text += (i > 0 ? "|" : "") + row[i];
        text += ";";
    }
    return text;
}

std::string Notices(const PastedTable& table) {
    std::string text;
    for (const PasteNotice& notice : table.notices)
        text += (text.empty() ? "" : "; ") + notice.Line();
    return text;
}

// Tables as papers print them: what goes into the grid, and what is told of it.
TEST_F(TablePasteTest, EachHazardIsNamedAndPlainTablesAreNot) {
    struct Case {
        const char *text, *rows, *notices;
    };
    const std::vector<Case> cases = {
        {"275\t0.000698451167\t999.887406\r\n450\t0.932203564\t890.341250\r\n",
         "275|0.000698451167|999.887406;450|0.932203564|890.341250;", ""},
        {"  300  0.0992418352   996.5560\n  500  10.0003858  838.025 \n",
         "300|0.0992418352|996.5560;500|10.0003858|838.025;", ""},
        {"1.0 \t 2.0\n3.0\t4.0", "1.0|2.0;3.0|4.0;", ""},
        {"0,5\t1,25\n0,6\t1,50", "0.5|1.25;0.6|1.50;", ""},
        // A comma that can only be decimal settles what the others are, a point unsettles it.
        {"300,15\t1,234\n310,15\t1,241", "300.15|1.234;310.15|1.241;", ""},
        {"300.15\t1,234\n0,5\t2", "300.15|1.234;0.5|2;", "row 1: \"1,234\" became 1.234"},
        {"1.0\t2.0\t\r\n1.1\t2.1\r\n\r\n", "1.0|2.0|;1.1|2.1;", ""},
        {"1.0\t2.0\r1.1\t2.1\r", "1.0|2.0;1.1|2.1;", ""},
        {"\ufeff1.0\t2\u200b.0\n1.1\u00ad\t2.1", "1.0|2.0;1.1|2.1;", ""},
        {"300,15;0,5;\n310,15;1,241;", "300.15|0.5|;310.15|1.241|;", ""},
        {"1.5\t-2e-3\n+.5\t3E5", "1.5|-2e-3;+.5|3E5;", ""},
        {"5%\t1.0", "5%|1.0;", ""},
        {"1.0\t\t3.0\n1.1\t2.0\t3.1", "1.0||3.0;1.1|2.0|3.1;", ""},
        {"300\t1,234\n310\t1,241", "300|1.234;310|1.241;",
         "row 1: \"1,234\" became 1.234 (and 1 more)"},
        {"300\t1,234.5", "300|1.234.5;", "row 1: \"1,234.5\" became 1.234.5, which is no number"},
        {"300\t1 234.5", "300|1|234.5;", "row 1: \"1 234.5\" was split at its blank"},
        {"300 996.5\n310 1 002.4\n320 997.1", "300|996.5;310|1|002.4;320|997.1;",
         "row 2: a number with an inner blank was split; row 2: 3 cells where most rows have 2"},
        {"300\t1\u00a0234", "300|1|234;",
         "row 1: a no-break blank between digits parted a number in two; "
         "row 1: \"1 234\" was split at its blank"},
        {"300\u2009 1.25", "300|1.25;", "row 1: no-break blanks were read as blanks"},
        {"300 0.125\u2009678\n310 0.126\u202f001", "300|0.125|678;310|0.126|001;",
         "row 1: a no-break blank between digits parted a number in two (and 1 more)"},
        {"300\t1.234,5\n310\t1,234,567", "300|1.234.5;310|1.234.567;",
         "row 1: \"1.234,5\" became 1.234.5, which is no number (and 1 more)"},
        {"300\t0.1234 (5)", "300|0.1234|(5);",
         "row 1: \"0.1234 (5)\" was split at its blank; row 1: \"(5)\" is no number"},
        {"300\u2013310\t1.5 \u00b1 0.2", "300-310|1.5|0.2;",
         "row 1: a typeset minus was read as \"-\"; row 1: \"300-310\" is no number; "
         "row 1: \"1.5 \u00b1 0.2\" was parted at its \u00b1"},
        {"300 1.5\u00b10.2\n310 1.6 \u00b1 0.2", "300|1.5|0.2;310|1.6|0.2;",
         "row 1: \"300 1.5\u00b10.2\" was parted at its \u00b1 (and 1 more)"},
        {"1.5\t\u00b1\t0.2", "1.5||0.2;", "row 1: \"\u00b1\" was read as an empty cell"},
        {"300\t\u22120.125\n310\t\u20130.130", "300|-0.125;310|-0.130;",
         "row 1: a typeset minus was read as \"-\" (and 1 more)"},
        {"300\t0.1234(5)", "300|0.1234(5);",
         "row 1: \"0.1234(5)\" holds an uncertainty in brackets"},
        {"300\t996.55a\n310\t997.1*", "300|996.55a;310|997.1*;",
         "row 1: \"996.55a\" ends in a footnote mark (and 1 more)"},
        {"300\t996.55\u2020", "300|996.55\u2020;",
         "row 1: \"996.55\u2020\" ends in a footnote mark"},
        // The heads that came along hide no other trouble.
        {"T, K\trho\n300\t1,234.5", "T.|K|rho;300|1.234.5;",
         "row 1: \"T, K\" was split at its blank; row 1: \"T.\" is no number (and 2 more); "
         "row 2: \"1,234.5\" became 1.234.5, which is no number; "
         "row 1: 3 cells where most rows have 2"},
        {"1 2 3\n4 5\n6 7 8", "1|2|3;4|5;6|7|8;", "row 2: 2 cells where most rows have 3"},
        {"T/K p/MPa\n300 0.1", "T/K|p/MPa;300|0.1;", "row 1: \"T/K\" is no number (and 1 more)"},
        {"300\t1.5\u00d710\u22123", "300|1.5\u00d710-3;",
         "row 1: a typeset minus was read as \"-\"; "
         "row 1: \"1.5\u00d710-3\" is no number"},
        {"300\tn/a\n310\t1.5", "300|n/a;310|1.5;", "row 1: \"n/a\" is no number"},
        {"300 \u2014 1\n310 - \u2026\n320 \u2026 3", "300||1;310||;320||3;",
         "row 1: \"\u2014 1\" was read as an empty cell and a number; "
         "row 2: \"-\" was read as an empty cell (and 2 more)"},
        {"300\t\u2013\n310\t...", "300|;310|;",
         "row 1: \"\u2013\" was read as an empty cell (and 1 more)"},
    };
    for (const Case& one : cases) {
        const PastedTable table = CleanTable(one.text);
        EXPECT_EQ(Rows(table), one.rows) << one.text;
        EXPECT_EQ(Notices(table), one.notices) << one.text;
    }
}

TEST_F(TablePasteTest, BlockGoesInFromTheCellOnAndTheGridGrows) {
    Fill("1 2 3");
    EXPECT_TRUE(PasteTable(undo, CleanTable("8 9\n10 11"), 1, 1));
    EXPECT_EQ(Cells(), "1|8|9\n|10|11\n||\n");
}

TEST_F(TablePasteTest, ShortLinesLeaveNothingOldAmongTheNew) {
    Fill("1 2 3\n4 5 6\n7 8 9");
    EXPECT_TRUE(PasteTable(undo, CleanTable("10 11\n\n12"), 1, 1));
    EXPECT_EQ(Cells(), "1|10|11\n4||\n7|12|\n||\n");
}

TEST_F(TablePasteTest, NoticesCountRowsFromTheOneWhereTheBlockStands) {
    EXPECT_EQ(Notices(CleanTable("300\t1.5\n310\tx", 12)), "row 13: \"x\" is no number");
}

TEST_F(TablePasteTest, TabsAtTheEndsOfLinesAreNoColumns) {
    const PastedTable block = CleanTable("1\t2\t3\t\n4\t\t\t\n");
    EXPECT_EQ(block.Columns(), 3u);
    EXPECT_TRUE(PasteTable(undo, block, 1, 0));
    EXPECT_EQ(Cells(), "1|2|3\n4||\n||\n");
}

TEST_F(TablePasteTest, BlockWithTooManyColumnsChangesNothing) {
    Fill("1 2 3");
    EXPECT_FALSE(PasteTable(undo, CleanTable("7 8 9"), 1, 1));
    EXPECT_EQ(Cells(), "1|2|3\n||\n");
}

} // namespace
} // namespace vexora::test
