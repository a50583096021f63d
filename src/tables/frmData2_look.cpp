#include "tables/frmData2.h"

#include <algorithm>

#include "chem/LocalFit.h"
#include "chem/clsProperty.h"
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

} // namespace

/// A misprint seldom shows by itself, but stands off the curve of the others. It is only a hint:
/// nothing is asked and nothing is refused.
std::vector<Finding> frmData2::Hints() const {
    std::vector<Finding> hints;
    if (!set_) return hints;
    for (const int row : FarRowsOfTable())
        hints.push_back({row, columns_.Find(Kind::Value, 0), LookAgainText, false});
    return hints;
}

/// Variables count in system units, so that temperatures are absolute; rows that are not whole are
/// left out.
std::vector<int> frmData2::FarRowsOfTable() const {
    std::vector<FitScale> scales;
    std::vector<int> columns{columns_.Find(Kind::Value, 0)};
    for (int n = 1; n <= set_->nVar; ++n) {
        scales.push_back(ScaleOf(*set_, n));
        columns.push_back(columns_.Find(Kind::Value, n));
    }
    std::vector<FitRow> points;
    std::vector<int> rows;
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
        points.push_back(point);
        rows.push_back(row);
    }
    std::vector<int> far;
    for (const std::size_t at : FarRows(points, scales))
        far.push_back(rows[at]);
    return far;
}

} // namespace vexora
