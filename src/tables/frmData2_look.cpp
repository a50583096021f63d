#include "tables/frmData2.h"

#include <algorithm>
#include <functional>

#include "chem/LocalFit.h"
#include "chem/clsProperty.h"
#include "entry/RepeatedRows.h"
#include "records/DataSet.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

constexpr const char* LookAgainText = "Look again: far from what its neighbours say";

/// A vapor pressure is nearly straight as its logarithm against the reciprocal temperature.
FitScale ScaleOf(const DataSet& set, int variable) {
    return set.PRPCODE == "PV" && set.VARIABLE(variable) == "T" ? FitScale::Vapor : FitScale::Plain;
}

/// Of the values and the state.
std::size_t HashOf(const FitRow& point) {
    std::size_t hash = std::hash<double>()(point.y);
    for (const double x : point.x) // 31: as for the characters of a text
        hash = hash * 31 + std::hash<double>()(x);
    return hash;
}

} // namespace

/// The rows whose values are all numbers, with their places in the table. Variables count in system
/// units, so that temperatures are absolute; behind them stands the number of the tie line.
struct frmData2::Points {
    std::vector<FitRow> points;
    std::vector<int> rows;
};

frmData2::Points frmData2::WholeRows() const {
    std::vector<int> columns;
    for (int n = 0; n <= set_->nVar; ++n)
        columns.push_back(columns_.Find(Kind::Value, n));
    const int tie = columns_.Find(Kind::Tie);
    Points whole;
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        const auto isNumber = [&](int column) { return IsNumeric(tblData.Cell(row, column)); };
        if (!std::all_of(columns.begin(), columns.end(), isNumber)) continue;
        const std::string& text = tblData.Cell(row, columns.front());
        FitRow point;
        point.y = Val(text);
        point.least = UnitOfLastDigit(text);
        const clsProperty* item = chain_.get();
        for (std::size_t n = 1; n < columns.size(); ++n) {
            item = item->NextItem.get();
            point.x[n - 1] = ToSystem(item->ConversionCode, Val(tblData.Cell(row, columns[n])),
                                      item->Factor, molarMass_);
        }
        if (tie >= 0) point.x[columns.size() - 1] = Val(tblData.Cell(row, tie));
        whole.points.push_back(point);
        whole.rows.push_back(row);
    }
    return whole;
}

/// Only hints: nothing is asked and nothing is refused.
std::vector<Finding> frmData2::Hints() const {
    std::vector<Finding> hints;
    if (!set_) return hints;
    const Points points = WholeRows();
    HintAtFarRows(points, hints);
    HintAtRepeatedRows(points, hints);
    HintAtRepeatedTies(hints);
    return hints;
}

/// As a person counts.
std::string frmData2::RowNumber(int row) const {
    return std::to_string(row - tblData.FixedRows() + 1);
}

/// A misprint seldom shows by itself, but stands off the curve of the others.
void frmData2::HintAtFarRows(const Points& points, std::vector<Finding>& hints) const {
    std::vector<FitScale> scales;
    for (int n = 1; n <= set_->nVar; ++n)
        scales.push_back(ScaleOf(*set_, n));
    for (const std::size_t at : FarRows(points.points, scales))
        hints.push_back({points.rows[at], columns_.Find(Kind::Value, 0), LookAgainText, false});
}

/// A line typed or pasted twice. Another value at the same state is another measurement.
void frmData2::HintAtRepeatedRows(const Points& points, std::vector<Finding>& hints) const {
    const auto hash = [&](std::size_t at) { return HashOf(points.points[at]); };
    const auto equal = [&](std::size_t a, std::size_t b) {
        const FitRow& one = points.points[a];
        const FitRow& two = points.points[b];
        return one.y == two.y && one.x == two.x;
    };
    for (const auto& [row, first] : Repeated(points.rows.size(), hash, equal))
        hints.push_back({points.rows[row], columns_.Find(Kind::Value, 0),
                         "This point stands in row " + RowNumber(points.rows[first]) + " too",
                         false});
}

/// Of each phase a tie line has one end.
void frmData2::HintAtRepeatedTies(std::vector<Finding>& hints) const {
    const int column = columns_.Find(Kind::Tie);
    if (column < 0) return;
    std::vector<int> rows;
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row)
        if (!tblData.Cell(row, column).empty()) rows.push_back(row);
    const auto cell = [&](std::size_t at) -> const std::string& {
        return tblData.Cell(rows[at], column);
    };
    const auto hash = [&](std::size_t at) { return std::hash<std::string>()(cell(at)); };
    const auto equal = [&](std::size_t a, std::size_t b) { return cell(a) == cell(b); };
    for (const auto& [row, first] : Repeated(rows.size(), hash, equal))
        hints.push_back({rows[row], column,
                         "This tie line stands in row " + RowNumber(rows[first]) + " too", false});
}

} // namespace vexora
