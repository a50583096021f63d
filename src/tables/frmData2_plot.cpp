#include "tables/frmData2.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "chem/clsProperty.h"
#include "entry/SetPictures.h"
#include "globals/KVOGlobal.h"
#include "globals/PlotTable.h"
#include "records/DataSet.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

using Kind = TableColumn::Kind;

/// The table as it stands, in the units of its cells.
void frmData2::View() {
    if (!Check()) return;
    KVOGlobal& globals = Globals();
    const auto own = std::make_shared<PlotTable>(PointsOfTable());
    const std::size_t count = own->PointTable.size();
    if (count > PlotTable::MostPoints) {
        ui::Say("The table holds " + std::to_string(count) + " points; the plot shows the first " +
                std::to_string(PlotTable::MostPoints));
        own->Cut();
    }
    globals.Plot = FirstPicture(own);
    NameSystem(*globals.Plot, set_->SystemName(), set_->PRPSETNO);
    ui::Forms::Current().Get("frmGraph").ShowModal();
    const int row = std::exchange(globals.Plot, nullptr)->ChosenRow;
    if (row > 0) GoToRow(row);
}

void frmData2::GoToRow(int row) {
    table_.EndTyping();
    table_.MoveTo(row, columns_.Find(Kind::Value, 0));
    tblData.SetFocus();
}

/// Drawn after each edit: bars, which take an evaluation of each row, only while rows are few.
std::shared_ptr<PlotTable> frmData2::PointsBeside() const {
    constexpr int fewRows = 1000;
    auto points = std::make_shared<PlotTable>(PointsOfTable(tblData.Rows() < fewRows));
    points->Cut();
    return points;
}

/// What a mixture shows with its other sets comes before the plot of the table's own columns.
std::shared_ptr<PlotTable> frmData2::FirstPicture(const std::shared_ptr<PlotTable>& own) const {
    if (set_->DataContext() != "Bin" && set_->DataContext() != "Tern") return own;
    const SetSurroundings around = set_->Surroundings();
    const auto asItStands = set_->Copy();
    asItStands->recData.Clear();
    for (const int row : own->PointRow)
        asItStands->recData.Add(NewRow(row, nullptr));
    return PicturesOf({*set_, *asItStands, *own, original_}, own, around);
}

/// A table without variables is plotted against the number of the row.
PlotTable frmData2::PointsOfTable(bool withUncertainties) const {
    PlotTable table;
    const std::vector<int> values = ValueColumns();
    if (set_->nVar > 0) table.nVar = set_->nVar;
    NameColumns(table, set_->Quantities());
    const int property = columns_.Find(Kind::Value, 0);
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        const auto isNumber = [&](int column) { return IsNumeric(tblData.Cell(row, column)); };
        if (!std::ranges::all_of(values, isNumber)) continue;
        PlotTable::Row point{};
        point[0] = Val(tblData.Cell(row, property));
        point[1] = row - tblData.FixedRows() + 1;
        for (int n = 1; n <= set_->nVar; ++n)
            point[static_cast<std::size_t>(n)] =
                Val(tblData.Cell(row, columns_.Find(Kind::Value, n)));
        table.Add(point, withUncertainties ? UncertaintyOf(row) : 0, row,
                  table_.Findings().HasHint(row));
    }
    return table;
}

/// What the statements of the row come to, or its combined uncertainty where that is larger, else
/// the figure typed for it; 0 for none. The head of the chain is evaluated alone and without
/// conversion, so that no limits are asked about.
double frmData2::UncertaintyOf(int row) const {
    clsProperty item = *chain_;
    item.NextItem = nullptr;
    item.isLast = true;
    item.Relation = "as typed";
    item.Text = tblData.Cell(row, columns_.Find(Kind::Value, 0));
    TakeStatements(item, 0, row);
    bool ok = true;
    item.Convert(ok, MolarMassOf(row));
    const double uncertainty = std::max(item.PRECISION, CombinedOf(row, item.Value));
    return uncertainty > 0 ? uncertainty : Val(tblData.Cell(row, columns_.Find(Kind::KVO)));
}

/// The combined uncertainty of a row, else that of the set; 0 for none.
double frmData2::CombinedOf(int row, double value) const {
    const int column = columns_.Find(Kind::CU);
    if (column < 0) return 0;
    std::string stated = tblData.Cell(row, column);
    if (stated.empty())
        stated = set_->UX[0].CValue;
    else if (columns_[column].percent && !stated.ends_with('%'))
        stated += "%";
    return std::abs(StatedFigure(stated, value));
}

} // namespace vexora
