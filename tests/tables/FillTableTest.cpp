// Stored sets in a table, and the same records again out of it.
#include "tables/FillTable.h"
#include "records/ProcessedSets.h"
#include "records/TiedSets.h"
#include "tables/ProcessTableFixture.h"

namespace vexora::test {
namespace {

/// Heads and rows of a table, a line each; "-" for an empty cell, "=" behind the unit of a constant
/// and ":" behind that of a variable.
std::string Shown(const ProcessTable& table) {
    std::string quantities, units, phases;
    for (const ProcessColumn& head : table.columns) {
        const auto role = head.role == ProcessColumn::Role::Constant   ? "="
                          : head.role == ProcessColumn::Role::Variable ? ":"
                                                                       : "";
        quantities += head.quantity + " ";
        units += (head.unit == ProcessColumn::ByFactor ? head.factor : head.unit) + role + " ";
        phases += (head.phase.empty() ? "-" : head.phase) + " ";
    }
    std::string text = quantities + "\n" + units + "\n" + phases + "\n";
    for (const ProcessRow& row : table.rows) {
        for (const std::string& cell : row.cells)
            text += (cell.empty() ? "-" : cell) + " ";
        text += (row.tie.empty() ? "" : "#" + row.tie) + "\n";
    }
    for (const std::string& code : table.notStated)
        text += "not stated: " + code + "\n";
    return text;
}

const std::string Head = "^A & O B & XXX XXX 1/15/2026 ::Method:UNKNOWN:\n";
const std::string Boiling = "^B 64175 7732185 P\n" + Head +
                            "^1 1 1 T C DIR 3 Y L P 101.325 G & X1 D & & & & & &\n"
                            "^d 0.0190 95.5 &\n^d 0.0721 89.0 &\n^d 0.0966 86.7 &\n" +
                            Head +
                            "^1 1 1 X1 D DIR 1 Y G P 101.325 L -1 X1 D & & & & & &\n"
                            "^d 0.0190 0.1700 &\n^d 0.0721 0.3891 &\n^d 0.0966 0.4375 &\n";
const std::string Layers = "^B 64175 7732185 S\n" + Head +
                           "^M 0.01\n^1 1 1 W1 S DIR 1 Y L1 L2 & & & T C & & & & & &\n"
                           "^d 20 7.81 &\n^d 25 7.35 &\n" +
                           Head +
                           "^M 0.01\n^1 1 1 W1 S DIR 2 Y L2 L1 & & & T C & & & & & &\n"
                           "^d 20 79.93 &\n^d 25 79.73 &\n";
const std::string Triangle =
    "^T 64197 67663 7732185 S\n" + Head +
    "^M 0.01\n^1 1 1 1 W2 S DIR 1 Y L1 T 291.15 L2 & & & W1 S & & & & & &\n"
    "^d 0.00 99.01 & 1\n^d 0.0677 91.85 & 2\n^d 0.1772 80.00 & 3\n" +
    Head +
    "^M 0.01\n^1 1 1 1 W1 S DIR 1 Y L2 T 291.15 L1 -1 & & W1 S & & & & & &\n"
    "^d 0.00 0.00 & 1\n^d 0.0677 25.10 & 2\n^d 0.1772 44.12 & 3\n" +
    Head +
    "^M 0.01\n^1 1 1 1 W3 S DIR 1 Y L2 T 291.15 L1 -1 & & W1 S & & & & & &\n"
    "^d 0.00 99.16 & 1\n^d 0.0677 73.69 & 2\n^d 0.1772 48.58 & 3\n";
const std::string Vapour = "^T 64197 67663 7732185 P\n" + Head +
                           "^2 1 1 1 X2 D DIR 1 Y L P 101.3 G & T S X1 D & & & & & &\n"
                           "^d 350.15 0.100 0.200 & 7\n^d 352.45 0.150 0.250 & 8\n" +
                           Head +
                           "^2 1 1 1 X1 D DIR 1 Y G P 101.3 L -2 T S X1 D & & & & & &\n"
                           "^d 350.15 0.100 0.300 & 7\n^d 352.45 0.150 0.350 & 8\n" +
                           Head +
                           "^2 1 1 1 X2 D DIR 2 Y G P 101.3 L -2 T S X1 D & & & & & &\n"
                           "^d 350.15 0.100 0.400 & 7\n^d 352.45 0.150 0.450 & 8\n";

class FillTableTest : public ProcessTableFixture {
protected:
    /// The sets of the document that one table shows, beginning with this one, from 1.
    FilledTable Filled(std::size_t n) {
        mixture_ = globals.recR.Item(std::size_t{1})->recM.Item(std::size_t{1});
        return FillTable(TiedSets(*mixture_->recMV.Item(n)));
    }
    /// The table becomes sets in the place of those that it shows.
    std::shared_ptr<ProcessedSets> Process(const ProcessTable& table) {
        ProcessSystem system;
        system.mixture = mixture_;
        for (int n = 1; n <= table.MixType; ++n)
            system.samples[static_cast<std::size_t>(n - 1)] = table.origin->sets.front()->SMPNM(n);
        const PhaseAnalysis analysis = AnalyseVLE(table);
        EXPECT_TRUE(analysis.Ok) << analysis.message << " " << analysis.hint << "\n"
                                 << Shown(table);
        EXPECT_EQ(Findings(CheckPhaseTable(table, analysis, system)), "");
        return ProcessedSets::Attach(*mixture_, MakeSets(table, analysis, system),
                                     table.origin->sets, [](clsMV&) { return true; });
    }
    /// The lines of a text that another one has not, each behind that in its place.
    static std::string Changes(const std::string& before, const std::string& after) {
        const std::vector<std::string> old = Split(before, '\n'), now = Split(after, '\n');
        if (old.size() != now.size()) return before + "became\n" + after;
        std::string text;
        for (std::size_t i = 0; i < old.size(); ++i)
            if (old[i] != now[i]) text += old[i] + " -> " + now[i] + "\n";
        return text;
    }

    std::shared_ptr<clsM> mixture_;
};

struct Case {
    const char* name;
    std::string lines;
    std::size_t set;     // that is opened
    std::string shown;   // the table
    std::size_t column;  // of the cell that is edited
    const char* typed;   // into it
    std::string changed; // the lines that become other ones
};

TEST_F(FillTableTest, WhatIsNotEditedStaysAndAnEditedCellChangesItsRow) {
    const Case cases[] = {
        {"boiling temperatures", Boiling, 1,
         "T P X1 X1 \nC S= D: D \n- - L G \n"
         "95.5 101.325 0.0190 - \n89.0 101.325 0.0721 - \n86.7 101.325 0.0966 - \n",
         0, "89.00", "^d 0.0721 89.0 & -> ^d 0.0721 89.00 &\n"},
        {"the gas beside it", Boiling, 2,
         "T P X1 X1 \nS S= D: D \n- - L G \n- 101.325 0.0190 0.1700 \n"
         "- 101.325 0.0721 0.3891 \n- 101.325 0.0966 0.4375 \n",
         3, "0.39", "^d 0.0721 0.3891 & -> ^d 0.0721 0.39 &\n"},
        {"a layer in per cent", Layers, 2,
         "T W1 W1 \nC: 0.01 0.01 \n- L2 L1 \n20 79.93 - \n25 79.73 - \nnot stated: P\n", 0, "26",
         "^d 25 79.73 & -> ^d 26 79.73 &\n"},
        {"tie lines", Triangle, 3,
         "T W1 W2 W1 W3 \nS= S: 0.01 0.01 0.01 \n- L1 L1 L2 L2 \n291.15 0.00 99.01 0.00 99.16 #1\n"
         "291.15 0.0677 91.85 25.10 73.69 #2\n291.15 0.1772 80.00 44.12 48.58 #3\nnot stated: P\n",
         4, "73.7", "^d 0.0677 73.69 & 2 -> ^d 0.0677 73.7 & 2\n"},
        {"tie lines of a gas", Vapour, 1,
         "T P X1 X2 X1 X2 \nS: S= D: D D D \n- - L L G G \n"
         "350.15 101.3 0.100 0.200 0.300 0.400 #7\n352.45 101.3 0.150 0.250 0.350 0.450 #8\n",
         0, "352.5",
         "^d 352.45 0.150 0.250 & 8 -> ^d 352.5 0.150 0.250 & 8\n"
         "^d 352.45 0.150 0.350 & 8 -> ^d 352.5 0.150 0.350 & 8\n"
         "^d 352.45 0.150 0.450 & 8 -> ^d 352.5 0.150 0.450 & 8\n"},
        {"counts of digits and what rows and the set state",
         "^B 64175 7732185 P\n^A n J C & ABC DEF 3/4/2020 my words::Method:EBULLIO:dX1=0.002;:\n"
         "^1 2 1 P T DIR 4 SG L G & T 353.15 X1 S & & & & & &\n"
         "^X 1 X1 L + & 95 0.002 - -1 & & - & & - & & - & & &\n"
         "^X 0 P L - & & & - -1 & & - & & + & & - & & &\n"
         "^g 0.10 2 595.50 3 0.2\n^Y 0.001 & & & & & & 2 0.7 &\n^g 0.2 1 600 2 &\n^Y & & & & & & & "
         "& 1.5% &\n",
         1,
         "T P CU X1 X1 \nS= T  S: S \n- - - L G \n353.15 595.50 0.7 0.10 - \n353.15 600 1.5% 0.2 "
         "- "
         "\n",
         1, "601", "^g 0.2 1 600 2 & -> ^g 0.2 1 601 3 &\n"},
        {"rows in system units between those of the paper",
         "^B 64175 7732185 P\n" + Head +
             "^1 1 1 T C DIR 1 Y L P 101.325 G & X1 D & & & & & &\n"
             "^d 0.10 80.5 &\n^G 0.20 2 353.123 4 &\n^D 0.3 352.7 &\n",
         1,
         "T P X1 X1 \nC S= D: D \n- - L G \n80.5 101.325 0.10 - \n79.973 101.325 0.20 - \n"
         "79.55 101.325 0.3 - \n",
         2, "0.25", "^G 0.20 2 353.123 4 & -> ^G 0.25 2 353.123 4 &\n"},
        {"tied sets of which one stands in system units",
         "^T 64197 67663 7732185 S\n" + Head +
             "^2 1 1 1 W2 S DIR 1 Y L1 P 101.3 L2 & T C W1 S & & & & & &\n"
             "^D 291.15 0.0677 0.9185 & 1\n^D 293.15 0.1772 0.8000 & 2\n" +
             Head +
             "^M 0.01\n^2 1 1 1 W1 S DIR 1 Y L2 P 101.3 L1 -2 T C W1 S & & & & & &\n"
             "^d 18 0.0677 25.10 & 1\n^d 20.00 0.1772 44.12 & 2\n",
         1,
         "T P W1 W2 W1 \nC: S= S: S 0.01 \n- - L1 L1 L2 \n18.00 101.3 0.0677 0.9185 25.10 #1\n"
         "20.00 101.3 0.1772 0.8000 44.12 #2\n",
         0, "20.5",
         "^D 293.15 0.1772 0.8000 & 2 -> ^G 293.65 4 0.1772 4 0.8000 4 & 2\n"
         "^d 20.00 0.1772 44.12 & 2 -> ^d 20.5 0.1772 44.12 & 2\n"},
        {"layers below air",
         "^T 64197 67663 7732185 S\n" + Head +
             "^M 0.01\n^1 1 1 1 W2 S DIR 1 Y L1 T 291.15 L2 & air & W1 S & & & & & &\n"
             "^d 0.00 99.01 & 1\n^d 0.0677 91.85 & 2\n" +
             Head +
             "^M 0.01\n^1 1 1 1 W1 S DIR 1 Y L2 T 291.15 L1 -1 air & W1 S & & & & & &\n"
             "^d 0.00 0.00 & 1\n^d 0.0677 25.10 & 2\n",
         2,
         "T W1 W2 W1 \nS= S: 0.01 0.01 \n- L1 L1 L2 \n291.15 0.00 99.01 0.00 #1\n"
         "291.15 0.0677 91.85 25.10 #2\nnot stated: P\n",
         3, "25.1", "^d 0.0677 25.10 & 2 -> ^d 0.0677 25.1 & 2\n"},
        {"a factor that is no listed unit, and a crystal beside two liquids",
         "^B 64175 7732185 S\n" + Head +
             "^M 0.7\n^1 1 1 W1 S DIR 1 Y L1 Cp2 & L2 & T C & & & & & &\n^d 20 0.5 &\n^d 25 0.6 "
             "&\n",
         1, "T W1 W2 W1 \nC: 0.7 0.7 0.7 \n- L1 Cp2 L2 \n20 0.5 - - \n25 0.6 - - \n", 1, "0.61",
         "^d 25 0.6 & -> ^d 25 0.61 &\n"}};
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        Read(one.lines);
        const std::string before = DocumentAsRecords();
        FilledTable filled = Filled(one.set);
        EXPECT_EQ(filled.refusal, "");
        EXPECT_EQ(Shown(filled.table), one.shown);
        if (!filled.table.origin) continue;
        Process(filled.table);
        EXPECT_EQ(Changes(before, DocumentAsRecords()), "");

        filled = Filled(one.set);
        filled.table.rows[1].cells[one.column] = one.typed;
        Process(filled.table);
        EXPECT_EQ(Changes(before, DocumentAsRecords()), one.changed);
    }
}

TEST_F(FillTableTest, RowsWithoutATieStandWhereTheirSetHasThem) {
    const std::string first = "^T 64197 67663 7732185 S\n" + Head +
                              "^1 1 1 1 W2 S DIR 1 Y L1 L2 & T 291.15 & & W1 S & & & & & &\n",
                      second =
                          Head + "^1 1 1 1 W1 S DIR 1 Y L2 L1 -1 T 291.15 & & W1 S & & & & & &\n";
    Read(first + "^d 0.1 0.9 & 1\n^d 0.2 0.8 & &\n^d 0.3 0.7 & 2\n" + second +
         "^d 0.1 0.4 & 1\n^d 0.25 0.5 & &\n^d 0.3 0.6 & 2\n^d 0.35 0.6 & &\n");
    const FilledTable filled = Filled(1);
    std::string rows;
    for (const ProcessRow& row : filled.table.rows)
        rows += row.cells[1] + " " + row.cells[2] + " " + row.cells[3] + " #" + row.tie + "\n";
    EXPECT_EQ(rows, "0.1 0.9 0.4 #1\n0.25  0.5 #\n0.2 0.8  #\n0.3 0.7 0.6 #2\n0.35  0.6 #\n");
}

TEST_F(FillTableTest, WhatHasNoPlaceInTheTableIsRefused) {
    const std::string tern = "^T 64197 67663 7732185 S\n" + Head;
    const std::string tie = "TIELINE error\nPlease try anothed tied data set";
    const std::string one = "^1 1 1 1 W2 S DIR 1 Y L1 L2 & T 291.15 & & W1 S & & & & & &\n";
    const std::string other =
        Head + "^1 1 1 1 W1 S DIR 1 Y L2 L1 -1 T 291.15 & & W1 S & & & & & &\n";
    const std::pair<std::string, std::string> cases[] = {
        {tern + one + "^d 0.1 0.9 & 1\n", tie},
        {tern + one + "^d 0.1 0.9 & a\n" + other + "^d 0.1 0.4 & a\n", tie},
        {tern + one + "^d 0.1 0.9 & 1\n" + other + "^d 0.15 0.4 & 1\n",
         "The sets of tie line 1 do not agree in "},
        {tern + one + "^d 0.1 0.9 & 1\n" + Replace(other, "291.15", "298.15") + "^d 0.1 0.4 & 1\n",
         "The tied sets are not of the same samples, phases, constants and number of variables:"},
        {tern + one + "^d 0.1 0.9 & 1\n" + Head + Replace(one, "DIR 1", "DIR 2") +
             "^d 0.1 0.9 & 1\n",
         "Two of the tied sets hold the same property against the same variables."},
        {"^B 64175 7732185 D\n" + Head + "^2 1 1 DN S DIR 1 Y L P 101.3 T S X1 D & & & & & &\n",
         "Only compositions, temperatures and pressures of phases in equilibrium stand in this "
         "table."},
        {"^B 64175 7732185 P\n" + Head + "^1 1 1 T C DFR 1 Y L P 101.325 G & X1 D & & & & & &\n",
         "Results relative to another state have no place here."},
        {"^B 64175 7732185 P\n" + Head + "^1 1 1 P S DIR 1 Y L X1 0.5 G & T S & & & & & &\n",
         "The table has no column for the constraint "},
        {"^B 64175 7732185 P\n" + Head +
             "^1 1 1 P S DIR 1 Y G L & T 353.15 X1 S & & & & & &\n^d 0.1 500 &\n",
         "A table of phase equilibria gives other sets than these"},
        {"^B 64175 7732185 P\n" + Head +
             "^1 1 1 P S DIR 1 Y L G & T 353.15 X1 S & & & & & &\n^d 0.1 500 &\n^d 0.2 & &\n",
         "A table of phase equilibria gives other sets than these"}};
    for (const auto& [lines, refusal] : cases) {
        Read(lines);
        const std::string told = Filled(1).refusal;
        EXPECT_TRUE(told.starts_with(refusal)) << told << "\n" << lines;
        EXPECT_EQ(told.size() > refusal.size(), refusal != tie) << told;
    }
}

} // namespace
} // namespace vexora::test
