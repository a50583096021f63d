#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "plot/PlotPicture.h"
#include "ui/Form.h"

namespace vexora {

/// The controls of a form that show a plot: the surface, what is told below it of the point in
/// hand, and how far the values of one curve may lie apart, in per cent.
/// References only: the form owns them, and they must outlive the pane.
struct PlotControls {
    ui::Picture& picture;
    ui::Label &point, &row;
    ui::TextBox &pressures, &others;
};

/// The menu entries of a form for the work in its plot.
struct PlotMenu {
    ui::MenuItem &save, &print;
    ui::MenuItem &merge, &split, &identify;
    ui::MenuItem &nextFar, &lastFar;
};

/// The work in the plot of a form: a part enlarged, points told and stepped through, curves merged
/// and split, the picture saved and printed, all wired to the controls, which stay the form's. How
/// far the values of a curve may lie apart is remembered in the sitting.
/// Which table is drawn against which of its variables, the form says. It declares the pane behind
/// its controls and so owns it.
class PlotPane {
public:
    PlotPane(ui::Form& form, const PlotControls& controls, const PlotMenu& menu);
    PlotPane(const PlotPane&) = delete;
    PlotPane& operator=(const PlotPane&) = delete;

    const PlotTable& Table() const { return *table_; }
    int XVar() const { return xVar_; }
    bool IsLog() const { return scale_.Log; }
    /// Draws all points of the table over this variable, with plain axes where it has no
    /// reciprocal.
    void Show(std::shared_ptr<PlotTable> table, int xVar, bool hasLog);
    /// Between plain and logarithmic axes.
    void ToggleLog();
    void ToggleUncertainties();
    void ToggleTies();
    /// No point is told any more.
    void Forget() { point_.reset(); }

    /// Leads to a row of the table that the points came from, and the column of the value there, -1
    /// for any.
    std::function<void(int row, int column)> OnGoTo;

private:
    void WirePicture();
    void WireMenu(const PlotMenu& menu);
    void Move(PlotPlace place);
    void Release(PlotPlace place);
    void UseKey(ui::Key& key);
    void Save();
    void ScaleTolerances(double factor);
    void TakeTolerances();
    void ShowTolerances();
    void FindFamilies();

    Plot ThePlot() const;
    void Redraw();

    // The point that is told, and the ways to others.
    void PointTo(std::optional<int> point);
    void StepPoint(int step, bool withinFamily);
    void StepFar(int step);
    void GoToPoint();

    ui::Form& form_;
    PlotControls controls_;
    std::shared_ptr<PlotTable> table_;
    PlotScale scale_; // its Log is the mode
    PlotFamilies families_;
    int xVar_ = 1;
    bool showUnc_ = true;
    bool showTies_ = true;
    bool identifies_ = true;         // the point under the mouse is told
    std::optional<int> point_;       // the one that is told
    std::optional<PlotPlace> start_; // of the rubber band, while the button is down
};

} // namespace vexora
