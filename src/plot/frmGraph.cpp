#include "plot/frmGraph.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"

namespace vexora {

frmGraph::frmGraph() : Form("frmGraph", "Plot") {
    using namespace ui;
    Arrangement = Column({picPIC, lblPoint, lblRow,
                          Row({Field(lblPressures, Narrow(txtPressures, 8)),
                               Field(lblOthers, Narrow(txtOthers, 8)), Stretch()}),
                          ButtonRow({cmdPicture, cmdTies, cmdMode, cmdVar, cmdUnc, cmdOK})});
    PreferredColumns = 150;
    PreferredRows = 46;
    UseButtons(cmdOK, cmdOK, [this] { Close(); });
    HelpContext = 350;
    WireEvents();
}

void frmGraph::WireEvents() {
    cmdPicture.OnClick = [this] { cmdPicture_Click(); };
    cmdTies.OnClick = [this] {
        pane_.ToggleTies();
        picPIC.SetFocus();
    };
    cmdMode.OnClick = [this] { cmdMode_Click(); };
    cmdVar.OnClick = [this] { cmdVar_Click(); };
    cmdUnc.OnClick = [this] {
        pane_.ToggleUncertainties();
        picPIC.SetFocus();
    };
    pane_.OnGoTo = [this](int row, int column) {
        Globals().Plot->ChosenRow = row;
        Globals().Plot->ChosenColumn = column;
        Close();
    };
    mnuHelpAbout.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
}

void frmGraph::Load() {
    const auto first = Globals().Plot;
    cmdPicture.Visible(first && first->Next);
    ShowPicture(first ? first : std::make_shared<PlotTable>());
}

void frmGraph::ShowPicture(std::shared_ptr<PlotTable> table) {
    table_ = std::move(table);
    const bool isTriangle = table_->IsTriangle();
    cmdVar.Visible(table_->nVar > 1 && !isTriangle);
    const bool hasBars = std::ranges::any_of(table_->PointUnc, [](double u) { return u != 0; });
    cmdUnc.Visible(!isTriangle && (hasBars || table_->SeriesNames.empty()));
    cmdTies.Visible(table_->HasTies());
    OfferTolerances(table_->nVar > 1 && !isTriangle);
    ShowAgainst(1);
}

void frmGraph::OfferTolerances(bool hasFamilies) {
    for (ui::Control* one :
         std::initializer_list<ui::Control*>{&lblPressures, &txtPressures, &lblOthers, &txtOthers})
        one->Visible(hasFamilies);
}

/// The keys of the plot serve at once.
void frmGraph::Activate() {
    picPIC.SetFocus();
}

void frmGraph::cmdPicture_Click() {
    pane_.Forget();
    ShowPicture(table_->Next ? table_->Next : Globals().Plot);
    picPIC.SetFocus();
}

void frmGraph::cmdMode_Click() {
    pane_.ToggleLog();
    NameMode();
    picPIC.SetFocus();
}

void frmGraph::cmdVar_Click() {
    pane_.Forget();
    ShowAgainst(pane_.XVar() < table_->nVar ? pane_.XVar() + 1 : 1);
    picPIC.SetFocus();
}

/// The button names the mode that it goes to.
void frmGraph::NameMode() {
    cmdMode.Caption(pane_.IsLog() ? "Y vs X" : "ln Y vs 1/X");
}

/// Draws all points over this variable. A fraction of nothing has no reciprocal.
void frmGraph::ShowAgainst(int variable) {
    const bool hasLog = !table_->IsTriangle() && !table_->IsFraction(variable);
    cmdMode.Visible(hasLog);
    pane_.Show(table_, variable, hasLog);
    NameMode();
    Caption(CaptionText());
}

std::string frmGraph::CaptionText() const {
    if (!table_->IsTriangle())
        return table_->YName + " as function of " + table_->NameOf(pane_.XVar());
    const auto& [top, left, right] = table_->Corners;
    return top + " + " + left + " + " + right + ": " + table_->Title;
}

} // namespace vexora
