#include "bio/frmBioData.h"

#include <cmath>
#include <limits>
#include <utility>

#include "bio/BioTable.h"
#include "entry/RowChecks.h"
#include "globals/KVOGlobal.h"
#include "globals/PlotTable.h"
#include "plot/ColumnPoints.h"
#include "records/BioSet.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

using Kind = TableColumn::Kind;

namespace {

/// What the statements of a value come to, the combined one where it is the larger. Without
/// conversion, so that no limits are asked about.
double UncertaintyOf(clsProperty item, const clsX& statement) {
    item.Relation = "as typed";
    bool ok = true;
    item.Convert(ok, 0);
    const double combined =
        statement.iCU ? std::abs(StatedFigure(statement.CValue, item.Value)) : 0;
    return std::max(std::abs(item.PRECISION), combined);
}

} // namespace

/// The table as it stands, in the units of its cells.
void frmBioData::View() {
    if (!Check()) return;
    KVOGlobal& globals = Globals();
    const auto plot = std::make_shared<ColumnsToPlot>(PlotOfTable());
    plot->System = set_->ShowKey();
    if (plot->rows.size() > PlotTable::MostPoints)
        ui::Say("The table holds " + std::to_string(plot->rows.size()) +
                " points; the plot shows the first " + std::to_string(PlotTable::MostPoints));
    globals.BioPlot = plot;
    ui::Forms::Current().Get("frmBioPlot").ShowModal();
    globals.BioPlot = nullptr;
    tblData.SetFocus();
    if (plot->ChosenRow > 0) table_.MoveTo(plot->ChosenRow, std::max(plot->ChosenColumn, 0));
}

/// The first property against the first variable, as the plot begins.
std::shared_ptr<PlotTable> frmBioData::PointsBeside() {
    const ColumnsToPlot table = PlotOfTable();
    const auto [y, x] = FirstColumns(table);
    return std::make_shared<PlotTable>(PointsOf(table, y, x));
}

/// A table without variables is seen against the number of the row.
ColumnsToPlot frmBioData::PlotOfTable() {
    ColumnsToPlot plot;
    const auto count = static_cast<int>(set_->Columns());
    const int properties = CountOfProperties();
    for (int n = 0; n < count; ++n) {
        const BioQuantity& quantity = set_->Quantities()[static_cast<std::size_t>(n)];
        plot.columns.push_back(
            {HeadOf(*set_, quantity), n < properties, columns_.Find(Kind::Value, n), {}, {}});
    }
    if (count == properties) plot.columns.push_back({"Point number", false, 0, {}, {}});
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        if (IsEmptyRow(tblData, columns_, row)) continue;
        TakeRow(row);
        std::size_t n = 0;
        for (const clsProperty* item = chain_.get(); item; item = item->NextItem.get(), ++n) {
            ColumnsToPlot::Column& column = plot.columns[n];
            const bool isThere = IsNumeric(item->Text);
            column.values.push_back(isThere ? Val(item->Text)
                                            : std::numeric_limits<double>::quiet_NaN());
            column.uncertainties.push_back(isThere ? UncertaintyOf(*item, statements_[n]) : 0);
        }
        if (n < plot.columns.size()) {
            plot.columns[n].values.push_back(row - tblData.FixedRows() + 1);
            plot.columns[n].uncertainties.push_back(0);
        }
        plot.rows.push_back(row);
        plot.isFar.push_back(table_.Findings().HasHint(row));
    }
    return plot;
}

} // namespace vexora
