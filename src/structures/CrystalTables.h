// The two tables of a crystal structure: what their columns hold, and what is to be said of a row.
#pragma once

#include <string>
#include <vector>

#include "grid/TableBlocks.h"
#include "grid/TableRules.h"
#include "records/clsCrS.h"
#include "ui/Grid.h"

namespace vexora {

/// Symbols of atoms stand in the first columns, numbers in the others; an uncertainty stands behind
/// its value. A number with its uncertainty in brackets, as papers print it, goes into both cells.
class CrystalTable : public TableRules {
public:
    std::vector<int> ValueColumns() const override { return values_; }
    bool TakesText(int column) const override { return column < symbols_; }
    std::string ColumnName(int column) const override;
    bool IsWanted(const PastedTable& block) const override;
    void Follow(TableEdit& edit, int row, int column, const std::string& before,
                const EnteredColumns& entered) const override;

    bool IsEmptyRow(int row) const;
    /// A cell as it is kept: "C" for "c" in a column of symbols, a number without blanks and with a
    /// point.
    std::string CleanCell(int row, int column) const;
    /// Cleans all cells, in one step of the history.
    void CleanCells(TableUndo& history) const;
    /// Parts bracketed uncertainties off in a block on its way into the table.
    virtual bool Prepare(BlockToPut& put) const;

protected:
    CrystalTable(ui::Grid& grid, std::vector<std::string> heads, int symbols,
                 std::vector<int> values);
    /// A row that lacks one of the needed cells, or a symbol that is none of H, C, N, O.
    void FindGaps(int row, const std::vector<int>& needed, std::vector<Finding>& found) const;
    /// Whether a value column has its uncertainty beside it.
    bool HasUncertainty(int column) const;

    const ui::Grid& grid_;
    int symbols_;             // columns of symbols
    std::vector<int> values_; // columns other than those of uncertainties
};

/// tblRaw: two atoms, their distance [A] and its uncertainty.
class DistanceTable : public CrystalTable {
public:
    explicit DistanceTable(ui::Grid& grid);
    std::vector<Finding> FindingsOf(int row) const override;
    std::vector<CrystalDistance> Rows() const;
};

/// tblFinal: an atom, its coordinates with their uncertainties, and the occupancy.
class AtomTable : public CrystalTable {
public:
    explicit AtomTable(ui::Grid& grid);
    std::vector<Finding> FindingsOf(int row) const override;
    std::vector<CrystalAtom> Rows() const;
    bool Prepare(BlockToPut& put) const override;
};

} // namespace vexora
