#include "plot/frmGraph.h"

namespace vexora {

namespace {

constexpr const char* DragHint = "Drag a rectangle to enlarge it, click to see all points";
constexpr const char* KeysHint = "The arrow keys step through the points";
constexpr const char* NoPoints = "There are no points to draw";
constexpr const char* NoLogarithm =
    "Nothing to draw: 1/X and ln Y need an absolute temperature and "
    "a value above 0";

} // namespace

/// Its values and its row are told on the plot and below it.
void frmGraph::PointTo(std::optional<int> point) {
    point_ = point;
    const Plot plot = ThePlot();
    std::vector<ui::Picture::Stroke> mark;
    if (point) mark = PointMark(plot, *point);
    const bool isSeen = !mark.empty();
    const char* untold = table_->PointTable.empty() ? NoPoints
                         : scale_.Empty             ? NoLogarithm
                                                    : DragHint;
    lblPoint.Caption(isSeen ? PointText(plot, *point) : untold);
    lblRow.Caption(isSeen ? RowText(plot, *point) + ", Enter goes there" : KeysHint);
    picPIC.Overlay(std::move(mark));
}

/// To the next drawn point in the order of X, around at the ends; Up and Down stay on the curve.
void frmGraph::StepPoint(int step, bool withinFamily) {
    const int count = table_->PointCount();
    const auto family = [this](int point) {
        return families_.GroupOf[static_cast<std::size_t>(point)];
    };
    const Plot plot = ThePlot();
    int at = point_ ? *point_ : step > 0 ? -1 : count;
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (withinFamily && point_ && family(at) != family(*point_)) continue;
        if (!PlaceOf(plot, at)) continue;
        PointTo(at);
        return;
    }
}

void frmGraph::StepFar(int step) {
    const int count = table_->PointCount();
    int at = point_ ? *point_ : step > 0 ? -1 : count;
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (!table_->PointFar[static_cast<std::size_t>(at)]) continue;
        point_ = at;
        if (!PlaceOf(ThePlot(), at)) Ranges();
        Redraw();
        return;
    }
}

/// The dialog with the table takes the person to the row of the point.
void frmGraph::GoToPoint() {
    if (!point_) return;
    table_->ChosenRow = table_->PointRow[static_cast<std::size_t>(*point_)];
    Close();
}

} // namespace vexora
