#pragma once

#include <string>
#include <vector>

#include "records/Quantity.h"
#include "records/clsData.h"

namespace vexora {

/// What one column of a data table holds, and of which quantity (Quantity::item).
struct TableColumn {
    enum class Kind { Tie, Value, Digits, DS, Rep, Repetitions, Unc, CU, CD, KVO };
    Kind kind = Kind::Value;
    int item = 0;
    bool percent = false; // the cells are per cent of the value without saying so
    std::string head;

    /// What says something about a value beside it.
    bool IsStatement() const {
        return kind != Kind::Tie && kind != Kind::Value && kind != Kind::KVO;
    }
    bool operator==(const TableColumn&) const = default;
};

/// The columns of a table from left to right: the number of the tie where rows have one, then each
/// quantity with its digits when they are shown and the statements that its set makes for every
/// row; at last the figure of the evaluation. Any number of variables and properties has room.
/// Made anew when the statements of the set, the digits or the ties are switched; cells then move
/// by PlacesIn. Columns count from 0, items as in the set (0 the property).
class TableColumns {
public:
    TableColumns() = default;
    /// A column exists for each statement whose mark is set; its empty cells stand for the figure
    /// of the set.
    explicit TableColumns(const std::vector<Quantity>& quantities, bool withDigits = false,
                          bool withTies = false);

    const std::vector<TableColumn>& All() const { return columns_; }
    int Count() const { return static_cast<int>(columns_.size()); }
    const TableColumn& operator[](int column) const {
        return columns_[static_cast<std::size_t>(column)];
    }
    /// The column of this kind for an item, -1 when there is none.
    int Find(TableColumn::Kind kind, int item = 0) const;
    /// For each column of these the place in the others, -1 when it is not there.
    std::vector<int> PlacesIn(const TableColumns& others) const;

    /// The cell of a column for a row of a data set, as the table shows it.
    /// The row must have a place for the item of the column.
    std::string CellOf(const clsData& row, int column) const;
    /// Puts a cell into the row.
    /// The cell is clean (CleanCell) and good (CheckRow). "Error" is never stored.
    void Store(clsData& row, int column, const std::string& cell) const;

private:
    void StoreValue(clsData& row, int column, const std::string& cell) const;
    static void StoreDigits(clsData& row, int item, const std::string& cell);
    void AddQuantity(const Quantity& quantity, const std::string& head, bool withDigits);
    void Add(TableColumn::Kind kind, int item, const std::string& head,
             const std::string& setValue = {});

    std::vector<TableColumn> columns_;
};

} // namespace vexora
