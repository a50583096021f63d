#pragma once

#include <memory>
#include <vector>

#include "plot/PlotPane.h"
#include "ui/Form.h"

namespace vexora {

/// The points of the table of a bio set before they are accepted: any of its columns against any
/// other, so that a misprint shows as an outlier. The table is put into the globals first, which
/// also say afterwards to which cell the person wants to go.
class frmBioPlot : public ui::Form {
public:
    frmBioPlot();

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

    ui::ComboBox cboVarY{*this, "cboVarY"};
    ui::ComboBox cboVarX{*this, "cboVarX"};
    ui::Picture picPIC{*this, "picPIC", PlotSize().width, PlotSize().height};
    ui::Label lblPoint{*this, "lblPoint"};
    ui::Label lblRow{*this, "lblRow"};
    ui::Label lblPressures{*this, "lblPressures", "One curve: pressures within (%)"};
    ui::TextBox txtPressures{*this, "txtPressures"};
    ui::Label lblOthers{*this, "lblOthers", "all else within (%)"};
    ui::TextBox txtOthers{*this, "txtOthers"};
    ui::CommandButton cmdUnc{*this, "cmdUnc", "Uncertainties"};
    ui::CommandButton cmdOK{*this, "cmdOK", "OK"};

    void Load() override;
    void Activate() override;

private:
    void WireEvents();
    void FillLists();
    void ShowColumns();

    std::shared_ptr<ColumnsToPlot> table_;
    PlotPane pane_{*this,
                   {picPIC, lblPoint, lblRow, txtPressures, txtOthers},
                   {mnuFileSave, mnuFilePrint, mnuToolsIncrease, mnuToolsDecrease, mnuHide,
                    mnuNextFar, mnuLastFar}};
};

} // namespace vexora
