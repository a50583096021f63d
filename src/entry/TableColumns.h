#pragma once

#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "records/Quantity.h"
#include "records/RowList.h"
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

/// Columns whose cells bear "%" each by itself, because some of them are
/// absolute: kind and item.
using OwnSigns = std::set<std::pair<TableColumn::Kind, int>>;

/// The figure of the set that stands for the empty cells of such a column;
/// empty for a kind that has none.
const std::string& FigureOf(const clsX& statements, TableColumn::Kind kind);
/// The mark of the statement that such a column belongs to; null for a kind
/// that has none.
bool* MarkOf(clsX& statements, TableColumn::Kind kind);
/// Marks in the items of a set (0 the property, then its variables) what its
/// rows state, so that nothing of it is without a column.
void MarkStatementsOfRows(const RowList& rows, std::span<clsX> items);
/// The columns in which a row states an absolute figure.
OwnSigns AbsoluteEntries(const RowList& rows);
/// The columns of a table from left to right: the number of the tie where rows have one, then each
/// quantity with its digits when they are shown and the statements that its set makes for every
/// row; at last the figure of the evaluation. Any number of variables and properties has room.
/// Made anew when the statements of the set, the digits or the ties are switched; cells then move
/// by PlacesIn. Columns count from 0, items as in the set (0 the property).
class TableColumns {
public:
    TableColumns() = default;
    /// A column exists for each statement whose mark is set; its empty cells
    /// stand for the figure of the set. The head says "%" for all cells where the
    /// set states per cent and the cells have no signs of their own.
    explicit TableColumns(const std::vector<Quantity>& quantities, bool withDigits = false,
                          bool withTies = false, const OwnSigns& ownSigns = {});

    /// These, from left to right.
    explicit TableColumns(std::vector<TableColumn> columns) : columns_(std::move(columns)) {}

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
    void AddQuantity(const Quantity& quantity, const std::string& head, bool withDigits,
                     const OwnSigns& ownSigns);
    void Add(TableColumn::Kind kind, int item, const std::string& head, bool percent = false);

    std::vector<TableColumn> columns_;
};

} // namespace vexora
