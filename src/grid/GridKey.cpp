#include "grid/GridKey.h"

#include <algorithm>
#include <functional>
#include <string>

#include "reference/Numbers.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

/// Each selected cell behind the fixed ones takes what the function makes of it.
void ChangeSelection(TableUndo& table,
                     const std::function<std::string(int row, int column)>& changed) {
    const ui::Grid& grid = table.Table();
    const ui::Grid::Block block = grid.Selection();
    table.Do([&](TableEdit& edit) {
        for (int row = std::max(block.top, grid.FixedRows()); row <= block.bottom; ++row) {
            for (int column = std::max(block.left, grid.FixedColumns()); column <= block.right;
                 ++column) {
                edit.Cell(row, column, changed(row, column));
            }
        }
    });
}

/// A remark or an empty cell would come out as 0.
void ChangeNumbers(TableUndo& table, std::string (*changed)(const std::string&)) {
    ChangeSelection(table, [&](int row, int column) {
        const std::string& text = table.Table().Cell(row, column);
        return IsNumeric(text) ? changed(text) : text;
    });
}

/// On the text, for a number through a double might lose its last zeros.
std::string OtherSign(const std::string& text) {
    const std::size_t at = text.find_first_not_of(' ');
    const std::string number = text.substr(at);
    if (number.front() == '-') return text.substr(0, at) + number.substr(1);
    return text.substr(0, at) + "-" + number.substr(number.front() == '+' ? 1 : 0);
}

/// One decimal less keeps the count of significant digits: "1.50" becomes "15.0".
std::string TimesTen(const std::string& text) {
    return FormatFixed(Val(text) * 10, std::max(DecimalPlaces(text) - 1, 0));
}

/// One decimal more, as above.
std::string TenthOf(const std::string& text) {
    return FormatFixed(Val(text) / 10, DecimalPlaces(text) + 1);
}

/// With the top row of the selection.
void FillDown(TableUndo& table) {
    const int top = std::max(table.Table().Selection().top, table.Table().FixedRows());
    ChangeSelection(table, [&](int, int column) { return table.Table().Cell(top, column); });
}

void SelectAll(ui::Grid& grid) {
    if (grid.Rows() <= grid.FixedRows()) return;
    grid.Select({grid.FixedRows(), grid.FixedColumns(), grid.Rows() - 1, grid.Columns() - 1});
}

} // namespace

void EmptySelection(TableUndo& table) {
    ChangeSelection(table, [](int, int) { return std::string(); });
}

void SelectCell(ui::Grid& grid, int row, int column) {
    const int firstRow = grid.FixedRows();
    row = std::clamp(row, firstRow, std::max(grid.Rows() - 1, firstRow));
    const int firstColumn = grid.FixedColumns();
    column = std::clamp(column, firstColumn, std::max(grid.Columns() - 1, firstColumn));
    grid.Select({row, column, row, column});
}

void GridKey(TableUndo& table, ui::Key& key) {
    const std::string name = key.FullName();
    key.swallowed = true;
    if (name == "Ctrl+A")
        SelectAll(table.Table());
    else if (name == "Ctrl+D")
        FillDown(table);
    else if (name == "Num-")
        ChangeNumbers(table, OtherSign);
    else if (name == "Num*")
        ChangeNumbers(table, TimesTen);
    else if (name == "Num/")
        ChangeNumbers(table, TenthOf);
    else if (name == "Delete")
        EmptySelection(table);
    else if (name == "Ctrl+X") {
        ui::TheDesktop().ClipboardText(table.Table().SelectionText());
        EmptySelection(table);
    } else
        key.swallowed = false;
}

} // namespace vexora
