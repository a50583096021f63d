#include <string>
#include <vector>

#include "Target.h"
#include "grid/TablePaste.h"
#include "grid/TableUndo.h"
#include "ui/Form.h"
#include "ui/Forms.h"

namespace vexora::fuzz {

namespace {

using Cells = std::vector<std::vector<std::string>>;

Cells CellsOf(const ui::Grid& grid) {
    Cells cells;
    for (int row = 0; row < grid.Rows(); ++row) {
        cells.emplace_back();
        for (int column = 0; column < grid.Columns(); ++column)
            cells.back().push_back(grid.Cell(row, column));
    }
    return cells;
}

void TryInTable(const PastedTable& pasted) {
    ui::Form form("frmFuzz", "");
    ui::Grid grid(form, "grdData", 3, 2, 1, 0);
    grid.Cell(1, 0, "1.50");
    TableUndo table(grid);
    const Cells before = CellsOf(grid);
    const bool went = PasteTable(table, pasted, 1, 0, {.widens = true});
    const Cells after = CellsOf(grid);
    Must(went == table.CanUndo() || after == before, "what was written is a step of the history");
    if (!table.CanUndo()) return;
    table.Undo();
    Must(CellsOf(grid) == before, "an undo brings all cells back");
    table.Redo();
    Must(CellsOf(grid) == after, "a redo brings the paste back");
}

} // namespace

void Try(std::string_view text) {
    for (const CellParting parting : {CellParting::AtBlanks, CellParting::AtTabsAlone}) {
        const PastedTable pasted = CleanTable(text, 1, parting);
        for (const auto& row : pasted.rows) {
            for (const std::string& cell : row)
                Must(cell.find_first_of("\t\n\r") == cell.npos, "a cell is one line without tabs");
        }
        for (const PasteNotice& notice : pasted.notices)
            Must(notice.row >= 0 && !notice.text.empty(), "a notice says what and where");
        TryInTable(pasted);
    }
}

} // namespace vexora::fuzz
