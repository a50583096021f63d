#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plot/PlotPicture.h"
#include "ui/Form.h"

namespace vexora {

/// The points of a table before they are accepted, so that a misprint shows as an outlier. Whoever
/// shows it puts the table into the globals first; the form owns only what the drawing needs.
class frmGraph : public ui::Form {
public:
    frmGraph();

    ui::MenuItem mnuTools{*this, "mnuTools", "&Tools"};
    ui::MenuItem mnuToolsIncrease{*this, "mnuToolsIncrease", "&Merge curves", &mnuTools, "Ctrl++"};
    ui::MenuItem mnuToolsDecrease{*this, "mnuToolsDecrease", "&Split curves", &mnuTools, "Ctrl+-"};
    ui::MenuItem mnuHide{*this, "mnuHide", "&Identify points", &mnuTools};

    ui::Picture picPIC{*this, "picPIC", Plot::Width, Plot::Height};
    ui::Label lblPoint{*this, "lblPoint"};
    ui::CommandButton cmdMode{*this, "cmdMode", "ln Y vs 1/X"};
    ui::CommandButton cmdVar{*this, "cmdVar", "Next variable"};
    ui::CommandButton cmdUnc{*this, "cmdUnc", "Uncertainties"};
    ui::CommandButton cmdOK{*this, "cmdOK", "OK"};

    void Load() override;

private:
    void picPIC_Press(PlotPlace place);
    void picPIC_Move(PlotPlace place);
    void picPIC_Release(PlotPlace place);
    void cmdMode_Click();
    void cmdVar_Click();
    void ChangeTolerance(double factor);

    Plot ThePlot() const;
    void NameAxes();
    void Ranges();
    void Redraw();
    void DrawRectangle(PlotPlace corner);
    void HideRectangle();
    void ShowPoint(PlotPlace place);

    std::shared_ptr<PlotTable> table_;
    PlotScale scale_; // its Log is the mode
    PlotFamilies families_;
    int xVar_ = 1;
    double groupTolerance_ = 0.001;
    bool showUnc_ = true;
    bool hideMarks_ = true;                  // on: the point under the mouse is told
    std::vector<ui::Picture::Stroke> drawn_; // the plot without the rubber band
    std::optional<PlotPlace> start_;         // of the rubber band, while the button is down
};

} // namespace vexora
