#include "bio/frmBioData.h"

#include <algorithm>
#include <functional>
#include <map>

#include "bio/BioTable.h"
#include "chem/LocalFit.h"
#include "entry/RepeatedRows.h"
#include "entry/RowChecks.h"
#include "entry/TableTurns.h"
#include "entry/frmPasteView.h"
#include "globals/PlotTable.h"
#include "records/BioSet.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

constexpr int PlottedRows = static_cast<int>(PlotTable::MostPoints);
constexpr const char* LookAgainText = "Look again: far from what its neighbours say";

} // namespace

std::vector<int> frmBioData::ValueColumns() const {
    std::vector<int> places;
    for (int at = 0; at < columns_.Count(); ++at)
        if (columns_[at].kind == Kind::Value) places.push_back(at);
    return places;
}

std::string frmBioData::ColumnName(int column) const {
    if (column >= columns_.Count()) return "column beside the table";
    if (columns_[column].kind == Kind::Value) return columns_[column].head;
    return "Unc. of " + columns_[columns_.Find(Kind::Value, columns_[column].item)].head;
}

std::vector<Finding> frmBioData::FindingsOf(int row) const {
    if (!chain_) return {};
    std::vector<Finding> found = CheckBioRow(tblData, columns_, row, CountOfProperties());
    for (const auto& more :
         {CheckLimits(tblData, columns_, row, *chain_, 0), CheckReading(tblData, columns_, row)})
        found.insert(found.end(), more.begin(), more.end());
    return found;
}

/// Only hints: nothing is asked and nothing is refused.
std::vector<Finding> frmBioData::Hints() const {
    std::vector<Finding> hints;
    if (!chain_) return hints;
    for (int n = 0; n < CountOfProperties(); ++n)
        HintAtFarRows(n, hints);
    HintAtRepeatedRows(hints);
    return hints;
}

/// A misprint seldom shows by itself, but stands off the curve of the others.
void frmBioData::HintAtFarRows(int property, std::vector<Finding>& hints) const {
    const int first = CountOfProperties();
    const auto variables = static_cast<std::size_t>(static_cast<int>(set_->Columns()) - first);
    std::vector<FitRow> points;
    if (variables == 0 || variables > FitRow().x.size()) return;
    const int column = columns_.Find(Kind::Value, property);
    std::vector<int> rows;
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        const std::string& text = tblData.Cell(row, column);
        FitRow point;
        bool isWhole = IsNumeric(text);
        const clsProperty* item = ItemOf(*chain_, first);
        for (std::size_t n = 0; isWhole && n < variables; ++n, item = item->NextItem.get()) {
            const std::string& cell =
                tblData.Cell(row, columns_.Find(Kind::Value, first + static_cast<int>(n)));
            isWhole = IsNumeric(cell);
            point.x[n] = ToSystem(item->ConversionCode, Val(cell), item->Factor, 0);
        }
        if (!isWhole) continue;
        point.y = Val(text);
        point.least = UnitOfLastDigit(text);
        points.push_back(point);
        rows.push_back(row);
    }
    const std::vector<FitScale> scales(variables, FitScale::Plain);
    for (const std::size_t at : FarRows(points, scales))
        hints.push_back({rows[at], column, LookAgainText, false});
}

/// A line typed or pasted twice.
void frmBioData::HintAtRepeatedRows(std::vector<Finding>& hints) const {
    const std::vector<int> columns = ValueColumns();
    std::vector<std::string> texts;
    std::vector<int> rows;
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        std::string text;
        bool any = false;
        for (const int column : columns) {
            const std::string& cell = tblData.Cell(row, column);
            any = any || !cell.empty();
            text += IsNumeric(cell) ? NumberText(Val(cell)) : cell;
            text += '\t';
        }
        if (!any) continue;
        texts.push_back(std::move(text));
        rows.push_back(row);
    }
    const auto hash = [&](std::size_t at) { return std::hash<std::string>()(texts[at]); };
    const auto equal = [&](std::size_t a, std::size_t b) { return texts[a] == texts[b]; };
    for (const auto& [row, first] : Repeated(rows.size(), hash, equal))
        hints.push_back({rows[row], columns.front(),
                         "This point stands in row " +
                             std::to_string(rows[first] - tblData.FixedRows() + 1) + " too",
                         false});
}

bool frmBioData::MayBeTwoDimensional() const {
    return set_ && CountOfProperties() == 1 && set_->Columns() == 3;
}

/// A table in two dimensions has any width, one of several parts side by side that of its parts.
bool frmBioData::MayGrowFor(int columns) const {
    const auto values = set_ ? static_cast<int>(set_->Columns()) : 0;
    return MayBeTwoDimensional() || (values > 0 && columns % values == 0);
}

std::string frmBioData::Remark(int rows) const {
    if (rows <= PlottedRows) return {};
    return "The table holds " + std::to_string(rows) + " rows; a plot shows the first " +
           std::to_string(PlottedRows);
}

bool frmBioData::IsWanted(const PastedTable& block) const {
    return IsWantedAsShown(block);
}

void frmBioData::Action2D() {
    if (!MayBeTwoDimensional())
        return ui::Say("Only a set with one property and two variables has a table in two "
                       "dimensions");
    const auto corner = TurnTwoDimensional(table_.History(), columns_);
    if (!corner)
        return ui::Say("The table has no values below its top row and behind its left column");
    // Mostly a table that was in rows already.
    if (IsNumeric(*corner))
        table_.Blocks().Tell({{0, "The number in the corner, " + *corner +
                                      ", was left out; Ctrl+Z brings the printed table back"}});
    else
        table_.Blocks().Tell({});
}

void frmBioData::Split() {
    if (!MoveBlockBelow(table_.History(), columns_))
        ui::Say("Select the block that is to stand below the table");
}

} // namespace vexora
