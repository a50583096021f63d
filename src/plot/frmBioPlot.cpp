#include "plot/frmBioPlot.h"

#include <algorithm>
#include <utility>

#include "globals/KVOGlobal.h"
#include "plot/ColumnPoints.h"
#include "ui/Desktop.h"

namespace vexora {

frmBioPlot::frmBioPlot() : Form("frmBioPlot", "Plot") {
    using namespace ui;
    Arrangement =
        Column({Row({Field("Y:", cboVarY), Field("X:", cboVarX)}), picPIC, lblPoint, lblRow,
                Row({Field(lblPressures, Narrow(txtPressures, 8)),
                     Field(lblOthers, Narrow(txtOthers, 8)), Stretch()}),
                ButtonRow({cmdUnc, cmdOK})});
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
    const auto [y, x] = FirstColumns(*table_);
    cboVarY.Index(static_cast<int>(y));
    cboVarX.Index(static_cast<int>(x));
}

void frmBioPlot::ShowColumns() {
    if (table_->columns.empty()) return pane_.Show(std::make_shared<PlotTable>(), 1, false);
    const auto y = static_cast<std::size_t>(cboVarY.Index());
    const auto x = static_cast<std::size_t>(cboVarX.Index());
    const auto points = std::make_shared<PlotTable>(PointsOf(*table_, y, x));
    cmdUnc.Visible(std::ranges::any_of(points->PointUnc, [](double u) { return u != 0; }));
    pane_.Show(points, 1, false);
    Caption(points->YName + " as function of " + points->NameOf(1));
}

} // namespace vexora
