#include "tables/frmData2.h"

#include <algorithm>

#include "chem/clsProperty.h"
#include "entry/TableTurns.h"
#include "entry/frmPasteView.h"
#include "globals/PlotTable.h"
#include "records/DataSet.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

constexpr int PlottedRows = static_cast<int>(PlotTable::MostPoints);

} // namespace

std::vector<int> frmData2::ValueColumns() const {
    std::vector<int> places;
    for (int at = 0; at < columns_.Count(); ++at)
        if (columns_[at].kind == Kind::Value) places.push_back(at);
    return places;
}

/// Equal points on two tie lines are two points.
std::vector<int> frmData2::HintColumns() const {
    std::vector<int> columns = ValueColumns();
    if (const int tie = columns_.Find(Kind::Tie); tie >= 0) columns.push_back(tie);
    return columns;
}

/// The figures of the evaluation are passed over, and so is what stands beside the table.
bool frmData2::IsTypedInto(int column) const {
    return column < std::max(columns_.Find(Kind::KVO), 1);
}

/// The head of a column, with its quantity where several have the same.
std::string frmData2::ColumnName(int column) const {
    if (column >= columns_.Count()) return "column beside the table";
    const std::string& head = columns_[column].head;
    const auto same = std::count_if(columns_.All().begin(), columns_.All().end(),
                                    [&](const TableColumn& one) { return one.head == head; });
    if (same < 2) return head;
    const int quantity = columns_.Find(Kind::Value, columns_[column].item);
    return head + " of " + columns_[quantity].head;
}

std::vector<Finding> frmData2::FindingsOf(int row) const {
    if (!set_) return {};
    std::vector<Finding> found = CheckRow(tblData, columns_, row);
    for (const auto& more :
         {CheckLimits(tblData, columns_, row, *chain_, MolarMassOf(row)),
          CheckFractions(tblData, columns_, row, *chain_, sums_),
          CheckReading(tblData, columns_, row), CheckEvaluation(tblData, columns_, row)})
        found.insert(found.end(), more.begin(), more.end());
    return found;
}

/// Counts of digits that were those of the text follow a text that is entered anew; those that a
/// person has stated otherwise, or enters along with it, stay.
void frmData2::Follow(TableEdit& edit, int row, int column, const std::string& before,
                      const EnteredColumns& entered) const {
    // A failed evaluation was that of the old values.
    const int figure = columns_.Find(Kind::KVO);
    if (column != figure && tblData.Cell(row, figure) == "Error") edit.Cell(row, figure, {});
    if (!entered.Any() || column >= columns_.Count() || columns_[column].kind != Kind::Value)
        return;
    const int digits = columns_.Find(Kind::Digits, columns_[column].item);
    if (digits < 0 || entered.Has(digits)) return;
    const auto countOf = [](const std::string& text) {
        const int count = SignificantDigits(NormalizeNumber(text));
        return count > 0 ? std::to_string(count) : std::string();
    };
    if (tblData.Cell(row, digits) == countOf(before))
        edit.Cell(row, digits, before.empty() ? std::string() : countOf(tblData.Cell(row, column)));
}

/// A table in two dimensions has any width, one of several parts side by side that of its parts.
bool frmData2::MayGrowFor(int columns) const {
    const int values = set_ ? set_->nVar + 1 : 2;
    const bool isTied = columns_.Find(Kind::Tie) >= 0;
    return values == 3 || columns % values == 0 || (isTied && columns % (values + 1) == 0);
}

std::string frmData2::Remark(int rows) const {
    if (rows <= PlottedRows) return {};
    return "The table holds " + std::to_string(rows) + " rows; a plot shows the first " +
           std::to_string(PlottedRows);
}

bool frmData2::IsWanted(const PastedTable& block) const {
    return IsWantedAsShown(block);
}

void frmData2::Action2D() {
    if (!set_ || set_->nVar != 2) {
        ui::Say("Only a set with two variables has a table in two dimensions");
        return;
    }
    const auto corner = TurnTwoDimensional(table_.History(), columns_);
    if (!corner) {
        ui::Say("The table has no values below its top row and behind its left column");
        return;
    }
    // Mostly a table that was in rows already.
    if (IsNumeric(*corner))
        table_.Blocks().Tell({{0, "The number in the corner, " + *corner +
                                      ", was left out; Ctrl+Z brings the printed table back"}});
    else
        table_.Blocks().Tell({});
}

void frmData2::Split() {
    if (!MoveBlockBelow(table_.History(), columns_))
        ui::Say("Select the block that is to stand below the table");
}

} // namespace vexora
