// Tables to be processed, written as text, and what comes of them as record lines and ThermoML.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "export/MixtureExportFixture.h"
#include "records/LineWriter.h"
#include "records/clsM.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "tables/PhaseEquilibria.h"

namespace vexora::test {

/// Lines of cells parted by tabs or single blanks: quantities, units (a number is a factor),
/// phases, then the rows. "-" is an empty cell.
inline ProcessTable TableOf(int mixType, const std::string& text) {
    ProcessTable table;
    table.MixType = mixType;
    int line = 0;
    for (const std::string& one : Split(text, '\n')) {
        std::vector<std::string> cells = Split(Replace(one, "\t", " "), ' ');
        for (std::string& cell : cells)
            if (cell == "-") cell.clear();
        if (line == 0) table.columns.resize(cells.size());
        for (std::size_t i = 0; i < cells.size() && line < 3; ++i) {
            ProcessColumn& column = table.columns[i];
            (line == 0 ? column.quantity : line == 1 ? column.unit : column.phase) = cells[i];
            if (line != 1 || !IsNumeric(cells[i])) continue;
            column.factor = cells[i];
            column.unit = ProcessColumn::ByFactor;
        }
        if (line++ >= 3 && !one.empty()) table.rows.push_back({cells, -1, {}});
    }
    return table;
}

/// What the analysis tells, a line for each set: "X1(G) against X1(L), T; L P=101.325; 3 rows".
inline std::string Told(const ProcessTable& table, const PhaseAnalysis& analysis) {
    if (!analysis.Ok) return analysis.message + " | " + analysis.hint;
    std::string text;
    for (const PlannedSet& set : analysis.sets) {
        text += set.PRPCODE + "(" + set.PHASE1 + ") ";
        for (const int column : set.variables) {
            const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
            text += head.quantity + (head.phase.empty() ? "" : "(" + head.phase + ")") + " ";
        }
        text += ":";
        for (const ConstraintSlot& slot : set.slots)
            text += " " + OrPlaceholder(slot.code) + (slot.value.empty() ? "" : "=" + slot.value);
        text += " *" + std::to_string(set.rows.size()) + "\n";
    }
    return text;
}

/// Some columns of a table as text, in the rows of a record; tied ones are numbered from 1.
inline std::string Rows(const std::string& table, const std::vector<std::size_t>& columns,
                        bool areTied = false) {
    std::string text;
    int row = 0;
    for (const std::string& line : Split(table, '\n')) {
        if (row++ < 3) continue;
        const std::vector<std::string> cells = Split(line, ' ');
        text += "^d";
        for (const std::size_t column : columns)
            text += " " + cells[column];
        text += areTied ? " & " + std::to_string(row - 3) + "\n" : " &\n";
    }
    return text;
}

class ProcessTableFixture : public MixtureExportFixture {
protected:
    ProcessTableFixture() { globals.CompilerCode = globals.ContributorCode = "XXX"; }

    /// The mixture of this line, with compounds of one sample each.
    ProcessSystem Mixture(const std::string& line) {
        Read(line + "\n");
        ProcessSystem system;
        system.mixture = globals.recR.Item(std::size_t{1})->recM.Item(std::size_t{1});
        system.samples = {"1", "1", "1"};
        return system;
    }
    static std::string Findings(const std::vector<Finding>& findings) {
        std::string text;
        for (const Finding& one : findings)
            text += std::to_string(one.row) + "," + std::to_string(one.column) + " " +
                    (one.isFault ? "" : "? ") + Replace(one.text, "\n", " / ") + "\n";
        return text;
    }
    /// The sets of a table without faults, as they stand in the document.
    static void Process(const ProcessTable& table, const ProcessSystem& system,
                        const AskedConstants& constants = {}) {
        const PhaseAnalysis analysis = AnalyseVLE(table, constants);
        ASSERT_TRUE(analysis.Ok) << analysis.message << analysis.hint;
        EXPECT_EQ(Findings(CheckPhaseTable(table, analysis, system)), "");
        for (const auto& made : MakeSets(table, analysis, system))
            made->AttachTo(*system.mixture);
    }
    /// The lines of the mixture as saved, which a load and a save leaves as they are. A header is
    /// shown once, for all are the same.
    std::string Saved() {
        const std::string text = SavedBehind("");
        const std::size_t at = std::min(text.find("\n^B "), text.find("\n^T "));
        return at == text.npos ? "" : text.substr(at + 1);
    }
    /// What stands behind the first such text of the document.
    std::string SavedBehind(const std::string& mark) {
        const std::string text = DocumentAsRecords();
        globals.recR.Clear();
        form.tvwTree.Clear();
        EXPECT_TRUE(ReadDocument(text, ReadPurpose::Look).whole);
        EXPECT_EQ(DocumentAsRecords(), text);
        return text.substr(text.find(mark) + mark.size());
    }
    static inline const std::string Header = "^A & O B & XXX XXX 1/15/2026 ::Method:UNKNOWN:\n";
};

} // namespace vexora::test
