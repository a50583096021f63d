#pragma once

#include <memory>
#include <string>

#include "plot/PlotPane.h"
#include "ui/Form.h"

namespace vexora {

/// The points of a table before they are accepted, so that a misprint shows as an outlier. Whoever
/// shows it puts the table into the globals first, and reads there which row the person wants to go
/// to; the form owns only what the drawing needs. A table may come as several pictures: its own
/// columns, coexisting phases, a composition triangle.
class frmGraph : public ui::Form {
public:
    frmGraph();

    ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
    ui::MenuItem mnuFileSave{*this, "mnuFileSave", "&Save the picture...", &mnuFile, "Ctrl+S"};
    ui::MenuItem mnuFilePrint{*this, "mnuFilePrint", "&Print...", &mnuFile, "Ctrl+P"};
    ui::MenuItem mnuTools{*this, "mnuTools", "&Tools"};
    ui::MenuItem mnuToolsIncrease{*this, "mnuToolsIncrease", "&Merge curves", &mnuTools, "Ctrl++"};
    ui::MenuItem mnuToolsDecrease{*this, "mnuToolsDecrease", "&Split curves", &mnuTools, "Ctrl+-"};
    ui::MenuItem mnuHide{*this, "mnuHide", "&Identify points", &mnuTools};
    ui::MenuItem mnuNextFar{*this, "mnuNextFar", "&Next point to look at again", &mnuTools, "F8"};
    ui::MenuItem mnuLastFar{*this, "mnuLastFar", "&Previous point to look at again", &mnuTools,
                            "Shift+F8"};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuHelpAbout{*this, "mnuHelpAbout", "&About this form", &mnuHelp};

    ui::Picture picPIC{*this, "picPIC", PlotSize().width, PlotSize().height};
    ui::Label lblPoint{*this, "lblPoint"};
    ui::Label lblRow{*this, "lblRow"};
    ui::Label lblPressures{*this, "lblPressures", "One curve: pressures within (%)"};
    ui::TextBox txtPressures{*this, "txtPressures"};
    ui::Label lblOthers{*this, "lblOthers", "all else within (%)"};
    ui::TextBox txtOthers{*this, "txtOthers"};
    ui::CommandButton cmdPicture{*this, "cmdPicture", "Next picture"};
    ui::CommandButton cmdTies{*this, "cmdTies", "Tie lines"};
    ui::CommandButton cmdMode{*this, "cmdMode", "ln Y vs 1/X"};
    ui::CommandButton cmdVar{*this, "cmdVar", "Next variable"};
    ui::CommandButton cmdUnc{*this, "cmdUnc", "Uncertainties"};
    ui::CommandButton cmdOK{*this, "cmdOK", "OK"};

    void Load() override;
    void Activate() override;

private:
    void WireEvents();
    void OfferTolerances(bool hasFamilies);
    void ShowPicture(std::shared_ptr<PlotTable> table);
    void cmdPicture_Click();
    void cmdMode_Click();
    void cmdVar_Click();

    void ShowAgainst(int variable);
    void NameMode();
    std::string CaptionText() const;

    std::shared_ptr<PlotTable> table_;
    PlotPane pane_{*this,
                   {picPIC, lblPoint, lblRow, txtPressures, txtOthers},
                   {mnuFileSave, mnuFilePrint, mnuToolsIncrease, mnuToolsDecrease, mnuHide,
                    mnuNextFar, mnuLastFar}};
};

} // namespace vexora
