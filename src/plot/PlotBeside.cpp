#include "plot/PlotBeside.h"

#include "globals/Sitting.h"
#include "plot/PlotPoint.h"

namespace vexora {

namespace {

constexpr int Across = 1; // the variable

} // namespace

PlotBeside::PlotBeside(ui::Picture& picture, ui::MenuItem& toggle)
    : picture_(picture), toggle_(toggle), table_(std::make_shared<PlotTable>()) {
    picture_.Visible(false);
    picture_.AccessibleName("Plot of the table");
    toggle_.OnClick = [this] {
        TheSitting().PlotBeside = !TheSitting().PlotBeside;
        Follow();
    };
    picture_.OnMove = [this](double x, double y) {
        const auto point = NearestPoint(ThePlot(), {x, y});
        picture_.Overlay(point ? PointMark(ThePlot(), *point) : PlotStrokes());
    };
    picture_.OnPress = [this](double x, double y) { Press({x, y}); };
}

Plot PlotBeside::ThePlot() const {
    return {*table_, scale_, Across, families_, true, true, BesideSize};
}

void PlotBeside::Follow() {
    const bool isSeen = TheSitting().PlotBeside;
    toggle_.Checked(isSeen);
    picture_.Visible(isSeen);
    if (!isSeen || !Points) return;
    table_ = Points();
    if (!table_) table_ = std::make_shared<PlotTable>();
    Arrange(*table_, Across);
    scale_.Ranges(*table_, Across);
    families_ = FamiliesOf(*table_, Across, TheSitting().Curves);
    picture_.Overlay({});
    picture_.Strokes(PlotPicture(ThePlot()));
}

void PlotBeside::Press(PlotPlace place) {
    const auto point = NearestPoint(ThePlot(), place);
    if (!point || !OnGoTo) return;
    const auto at = static_cast<std::size_t>(*point);
    OnGoTo(table_->PointRow[at], table_->PointColumn[at]);
}

} // namespace vexora
