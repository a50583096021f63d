#include "plot/frmBioPlot.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"

namespace vexora {

frmBioPlot::frmBioPlot() : Form("frmBioPlot", "Plot") {
    using namespace ui;
    Arrangement = Column({Row({Field("Y:", cboVarY), Field("X:", cboVarX)}), picPIC, lblPoint,
                          lblRow, ButtonRow({cmdUnc, cmdOK})});
    PreferredColumns = 150;
    PreferredRows = 48;
    UseButtons(cmdOK, cmdOK, [this] { Close(); });
    HelpContext = 355;
    WireEvents();
}

void frmBioPlot::WireEvents() {
    for (ui::ComboBox* list : {&cboVarY, &cboVarX}) {
        list->OnClick = [this] {
            if (Filling) return;
            pane_.Forget();
            ShowColumns();
        };
    }
    cmdUnc.OnClick = [this] {
        pane_.ToggleUncertainties();
        picPIC.SetFocus();
    };
    pane_.OnGoTo = [this](int row, int column) {
        table_->ChosenRow = row;
        table_->ChosenColumn = column;
        Close();
    };
    mnuHelpAbout.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
}

void frmBioPlot::Load() {
    table_ = Globals().BioPlot ? Globals().BioPlot : std::make_shared<ColumnsToPlot>();
    FillLists();
    ShowColumns();
}

/// The keys of the plot serve at once.
void frmBioPlot::Activate() {
    picPIC.SetFocus();
}

/// At first a property is seen against a variable, or the next column where there is none.
void frmBioPlot::FillLists() {
    const ui::FillingScope filling(*this);
    std::vector<std::string> names;
    for (const ColumnsToPlot::Column& column : table_->columns)
        names.push_back((column.isProperty ? "P  " : "") + column.name);
    cboVarY.Assign(names);
    cboVarX.Assign(names);
    if (names.empty()) return;
    const auto variable =
        std::ranges::find(table_->columns, false, &ColumnsToPlot::Column::isProperty);
    const auto place = static_cast<int>(variable - table_->columns.begin());
    cboVarY.Index(0);
    cboVarX.Index(variable != table_->columns.end() ? place : std::min(1, cboVarX.Count() - 1));
}

void frmBioPlot::ShowColumns() {
    if (table_->columns.empty()) return pane_.Show(std::make_shared<PlotTable>(), 1, false);
    const auto y = static_cast<std::size_t>(cboVarY.Index());
    const auto x = static_cast<std::size_t>(cboVarX.Index());
    const auto points = std::make_shared<PlotTable>(PointsOf(y, x));
    cmdUnc.Visible(std::ranges::any_of(points->PointUnc, [](double u) { return u != 0; }));
    pane_.Show(points, 1, false);
    Caption(points->YName + " as function of " + points->NameOf(1));
}

/// Rows that agree in them lie on one curve; as many as the plot has room for.
std::vector<std::size_t> frmBioPlot::OtherVariables(std::size_t y, std::size_t x) const {
    constexpr std::size_t most = std::tuple_size_v<PlotTable::Row> - 2;
    std::vector<std::size_t> others;
    for (std::size_t n = 0; n < table_->columns.size() && others.size() < most; ++n)
        if (!table_->columns[n].isProperty && n != y && n != x) others.push_back(n);
    return others;
}

/// Rows without one of the two values are no points.
PlotTable frmBioPlot::PointsOf(std::size_t y, std::size_t x) const {
    const std::vector<std::size_t> others = OtherVariables(y, x);
    const ColumnsToPlot::Column& upward = table_->columns[y];
    const ColumnsToPlot::Column& across = table_->columns[x];
    PlotTable points;
    points.YName = upward.name;
    points.VarNames[0] = across.name;
    points.nVar = 1 + static_cast<int>(others.size());
    for (std::size_t n = 0; n < others.size(); ++n)
        points.VarNames[n + 1] = table_->columns[others[n]].name;
    for (std::size_t row = 0; row < table_->rows.size(); ++row) {
        PlotTable::Row point{upward.values[row], across.values[row]};
        if (std::isnan(point[0]) || std::isnan(point[1])) continue;
        for (std::size_t n = 0; n < others.size(); ++n)
            point[n + 2] = table_->columns[others[n]].values[row];
        points.Add(point, upward.uncertainties[row], table_->rows[row], table_->isFar[row]);
        points.PointColumn.back() = upward.column;
    }
    points.Cut();
    return points;
}

} // namespace vexora
