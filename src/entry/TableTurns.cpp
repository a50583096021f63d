#include "entry/TableTurns.h"

#include <algorithm>

namespace vexora {

namespace {

using Cells = std::vector<std::vector<std::string>>;

/// Cells up to the last one that holds something.
std::size_t Width(const std::vector<std::string>& row) {
    std::size_t width = row.size();
    while (width > 0 && row[width - 1].empty())
        --width;
    return width;
}

/// All texts behind the fixed rows, without empty rows at the end.
Cells TextsOf(const ui::Grid& grid) {
    Cells cells;
    std::size_t filled = 0;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        std::vector<std::string> texts;
        texts.reserve(static_cast<std::size_t>(grid.Columns()));
        for (int column = 0; column < grid.Columns(); ++column)
            texts.push_back(grid.Cell(row, column));
        const bool empty = Width(texts) == 0;
        cells.push_back(std::move(texts));
        if (!empty) filled = cells.size();
    }
    cells.resize(filled);
    return cells;
}

/// The top row, its values standing over the columns they belong to.
std::vector<std::string> TopRow(const Cells& cells) {
    std::vector<std::string> top = cells.front();
    std::size_t widest = 0;
    for (std::size_t row = 1; row < cells.size(); ++row)
        widest = std::max(widest, Width(cells[row]));
    // Pasted with one cell too few at the left, for nothing is printed in the corner.
    if (!top.front().empty() && Width(top) + 1 == widest) top.insert(top.begin(), "");
    return top;
}

struct Triple {
    std::string first, second, value;
};

/// Row by row, as the paper reads. A cell without a value is a state that was not measured.
std::vector<Triple> TriplesOf(const Cells& cells, const std::vector<std::string>& top) {
    std::vector<Triple> triples;
    for (std::size_t row = 1; row < cells.size(); ++row) {
        for (std::size_t column = 1; column < cells[row].size(); ++column) {
            const std::string& value = cells[row][column];
            if (!value.empty()) triples.push_back({cells[row].front(), top[column], value});
        }
    }
    return triples;
}

bool AnyOutside(const ui::Grid& grid, const ui::Grid::Block& block) {
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Columns(); ++column) {
            const bool inside = row >= block.top && row <= block.bottom && column >= block.left &&
                                column <= block.right;
            if (!inside && !grid.Cell(row, column).empty()) return true;
        }
    }
    return false;
}

} // namespace

std::optional<std::string> TurnTwoDimensional(TableUndo& table, const TableColumns& columns) {
    using Kind = TableColumn::Kind;
    const int second = columns.Find(Kind::Value, 2);
    const Cells cells = TextsOf(table.Table());
    // A set with one variable has no table in two dimensions.
    if (second < 0 || cells.size() < 2) return {};
    const std::vector<std::string> top = TopRow(cells);
    const std::vector<Triple> triples = TriplesOf(cells, top);
    if (triples.empty()) return {};
    const auto writer = [&](TableEdit& edit) {
        const int fixed = table.Table().FixedRows();
        // Out with the old texts first: rows of the new table are narrower and stand elsewhere.
        edit.Rows(fixed);
        edit.Columns(columns.Count());
        edit.Rows(fixed + static_cast<int>(triples.size()));
        int row = fixed;
        for (const Triple& triple : triples) {
            edit.Cell(row, columns.Find(Kind::Value, 1), triple.first);
            edit.Cell(row, second, triple.second);
            edit.Cell(row++, columns.Find(Kind::Value, 0), triple.value);
        }
    };
    table.Do(writer);
    return top.front();
}

bool MoveBlockBelow(TableUndo& table, const TableColumns& columns) {
    const ui::Grid& grid = table.Table();
    const ui::Grid::Block block = grid.Selection();
    Cells moved;
    bool any = false;
    for (int row = std::max(block.top, grid.FixedRows()); row <= block.bottom; ++row) {
        std::vector<std::string> texts;
        for (int column = block.left; column <= block.right; ++column)
            texts.push_back(grid.Cell(row, column));
        any = any || Width(texts) > 0;
        moved.push_back(std::move(texts));
    }
    // A block that is all there is has nothing to go below.
    if (!any || !AnyOutside(grid, block)) return false;
    const auto writer = [&](TableEdit& edit) {
        for (int row = std::max(block.top, grid.FixedRows()); row <= block.bottom; ++row) {
            for (int column = block.left; column <= block.right; ++column)
                edit.Cell(row, column, {});
        }
        int row = grid.FixedRows() + static_cast<int>(TextsOf(grid).size());
        for (const auto& texts : moved) {
            // Gaps of a printed table are no rows.
            if (Width(texts) == 0) continue;
            edit.Rows(std::max(grid.Rows(), row + 1));
            for (std::size_t column = 0; column < texts.size(); ++column)
                edit.Cell(row, static_cast<int>(column), texts[column]);
            ++row;
        }
        // Columns behind those of the set go where that loses nothing.
        const bool anyBehind = AnyOutside(grid, {0, 0, grid.Rows() - 1, columns.Count() - 1});
        if (!anyBehind) edit.Columns(columns.Count());
    };
    return table.Do(writer);
}

} // namespace vexora
