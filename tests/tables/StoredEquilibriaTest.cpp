// Tables that were filled from stored sets: what is not touched stays as it is stored.
#include "tables/ProcessTableFixture.h"

namespace vexora::test {
namespace {

/// Sets that filled a table, with what their rows know beside the texts.
class StoredEquilibria : public ProcessTableFixture {
protected:
    /// Fills the origin of a table from sets that were made of it.
    void Fill(ProcessTable& table, const std::vector<std::shared_ptr<clsMV>>& sets) {
        const PhaseAnalysis analysis = AnalyseVLE(table);
        auto origin = std::make_shared<TableOrigin>();
        origin->sets = sets;
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            table.rows[row].place = static_cast<int>(row);
            auto& cells = origin->cells.emplace_back();
            for (const std::string& text : table.rows[row].cells)
                cells.push_back({nullptr, -1, text});
        }
        for (std::size_t i = 0; i < sets.size(); ++i) {
            const PlannedSet& planned = analysis.sets[i];
            for (std::size_t at = 0; at < planned.rows.size(); ++at) {
                const auto row = static_cast<std::size_t>(planned.rows[at]);
                const clsData* const stored = sets[i]->recData.Item(at + 1);
                table.rows[row].tie = std::string(stored->TIELINE);
                const auto fill = [&](int column, int item) {
                    const auto place = static_cast<std::size_t>(column);
                    origin->cells[row][place] = {stored, item, table.rows[row].cells[place]};
                };
                fill(planned.property, 0);
                for (std::size_t n = 0; n < planned.variables.size(); ++n)
                    fill(planned.variables[n], static_cast<int>(n) + 1);
            }
        }
        table.origin = origin;
    }
    static std::string Lines(const std::vector<std::shared_ptr<clsMV>>& sets) {
        LineWriter out;
        for (const auto& one : sets)
            one->Print(out);
        return out.Text();
    }
};

TEST_F(StoredEquilibria, ATableThatNobodyTouchedGivesTheSameLines) {
    const std::string lines =
        "^A & O A 1 ABC DEF 1/2/2003 measured ::Method:EBULLIO:dT:0.1:\n"
        "^1 1 1 T C FR 4 Y L P 101.325 G & X1 D & & & & & &\n"
        "^X 0 T L + & 95 0.1 - & & & - & & - & & - & & &\n"
        "^g 0.0190 3 95.5 2 0.2 5\n^Y & & & 0.001 & & & 0.3 0.7 0.05\n^d 0.0721 89.0 & 6\n"
        "^d 0.3 81 & 8\n"
        "^A & O A & ABC DEF 1/2/2003 ::Method:EBULLIO:\n"
        "^1 1 1 X1 D DIR 9 Y G L -1 P 101.325 X1 D & & & & & &\n"
        "^d 0.0190 0.1700 & 5\n^d 0.0721 0.3891 & 6\n";
    const ProcessSystem system = Mixture("^B 64175 7732185 P\n" + lines);
    std::vector<std::shared_ptr<clsMV>> stored;
    for (const auto& one : system.mixture->recMV)
        stored.push_back(one);
    ProcessTable table = TableOf(2, "T P X1 X1\nC S D D\n- - L G\n95.5 101.325 0.0190 0.1700\n"
                                    "89.0 101.325 0.0721 0.3891\n81 101.325 0.3 -");
    Fill(table, stored);
    const std::string before = Lines(stored);
    const auto made = [&] { return Lines(MakeSets(table, AnalyseVLE(table), system)); };
    EXPECT_EQ(made(), before);
    // Of an edited row the other cells keep what they know; what was found for it is gone.
    const std::string first = "^g 0.0190 3 95.5 2 0.2 5\n^Y & & & 0.001 & & & 0.3 0.7 0.05\n";
    table.rows[0].cells[0] = "95.6";
    EXPECT_EQ(made(),
              Replace(before, first, "^g 0.0190 3 95.6 3 & 5\n^Y & & & 0.001 & & & & & &\n"));
    table.rows[0].cells = {"95.5", "101.325", "0.020", "0.1700"};
    EXPECT_EQ(made(),
              Replace(Replace(before, first, "^g 0.020 2 95.5 2 & 5\n^Y & & & & & & & 0.3 0.7 &\n"),
                      "^d 0.0190 0.1700", "^d 0.020 0.1700"));
    // A row that has lost its partner is tied to nothing; new ties stand above all.
    table.rows[0].cells = {"95.5", "101.325", "0.0190", ""};
    EXPECT_EQ(made(), Replace(Replace(before, first, Replace(first, " 5\n", "\n")),
                              "^d 0.0190 0.1700 & 5\n", ""));
}

TEST_F(StoredEquilibria, ValuesInSystemUnitsKeepTheMemoryOfThoseOfThePaper) {
    const std::string lines = "^A & O A & ABC DEF 1/2/2003 ::Method:EBULLIO:\n"
                              "^2 1 1 P T DIR 4 Y L G & T C X1 D & & & & & &\n"
                              "^D 300.15 0.0190 95.5 &\n^D 310.15 0.1 12 &\n";
    const ProcessSystem system = Mixture("^B 64175 7732185 P\n" + lines);
    const std::vector<std::shared_ptr<clsMV>> stored = {system.mixture->recMV.Item(std::size_t{1})};
    // The variables stand in another order in the table.
    ProcessTable table =
        TableOf(2, "T P X1 -\nS S D -\n- - L G\n300.15 95.5 0.0190 -\n310.15 12 0.1 -");
    Fill(table, stored);
    const std::string before = Lines(stored);
    const auto made = [&] { return Lines(MakeSets(table, AnalyseVLE(table), system)); };
    EXPECT_EQ(made(), before);
    table.rows[1].cells[1] = "12.5";
    EXPECT_EQ(made(), Replace(before, " 12 ", " 12.5 "));
}

} // namespace
} // namespace vexora::test
