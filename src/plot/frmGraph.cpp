#include "plot/frmGraph.h"

#include <cmath>

#include "globals/KVOGlobal.h"

namespace vexora {

namespace {

constexpr double leastDrag = 10; // a smaller rectangle is a click

constexpr const char* hint = "Drag a rectangle to enlarge it, click to see all points";
constexpr const char* noLogarithm =
    "Nothing to draw: 1/X and ln Y need an absolute temperature and "
    "a value above 0";

} // namespace

frmGraph::frmGraph() : Form("frmGraph", "Plot") {
    using namespace ui;
    Arrangement = Column({picPIC, lblPoint, ButtonRow({cmdMode, cmdVar, cmdUnc, cmdOK})});
    PreferredColumns = 110;
    PreferredRows = 36;
    DefaultButton = &cmdOK;
    CancelButton = &cmdOK;
    picPIC.OnPress = [this](double x, double y) { picPIC_Press({x, y}); };
    picPIC.OnMove = [this](double x, double y) { picPIC_Move({x, y}); };
    picPIC.OnRelease = [this](double x, double y) { picPIC_Release({x, y}); };
    cmdMode.OnClick = [this] { cmdMode_Click(); };
    cmdVar.OnClick = [this] { cmdVar_Click(); };
    cmdUnc.OnClick = [this] {
        showUnc_ = !showUnc_;
        Redraw();
    };
    cmdOK.OnClick = [this] { Close(); };
    mnuToolsIncrease.OnClick = [this] { ChangeTolerance(2); };
    mnuToolsDecrease.OnClick = [this] { ChangeTolerance(0.5); };
    mnuHide.OnClick = [this] {
        hideMarks_ = !hideMarks_;
        mnuHide.Checked(hideMarks_);
        Redraw();
    };
}

void frmGraph::Load() {
    table_ = Globals().Plot;
    if (!table_) table_ = std::make_shared<PlotTable>();
    scale_.Shift = ShiftOf(*table_);
    mnuHide.Checked(hideMarks_);
    cmdVar.Visible(table_->nVar > 1);
    Arrange(*table_, xVar_);
    NameAxes();
    Ranges();
    Redraw();
}

void frmGraph::picPIC_Press(PlotPlace place) {
    start_ = place;
}

void frmGraph::picPIC_Move(PlotPlace place) {
    if (start_)
        DrawRectangle(place);
    else if (hideMarks_)
        ShowPoint(place);
}

/// A rectangle becomes the new ranges, a mere click brings all points back.
void frmGraph::picPIC_Release(PlotPlace place) {
    if (!start_) return;
    const PlotPlace start = *start_;
    start_.reset();
    HideRectangle();
    const double wide = std::abs(place.x - start.x);
    const double high = std::abs(place.y - start.y);
    if (wide > leastDrag && high > leastDrag) {
        const PlotPlace from = PositionsAt(ThePlot(), start);
        const PlotPlace to = PositionsAt(ThePlot(), place);
        scale_.Zoom(from.x, from.y, to.x, to.y);
    } else {
        Ranges();
    }
    Redraw();
}

void frmGraph::cmdMode_Click() {
    scale_.Log = !scale_.Log;
    cmdMode.Caption(scale_.Log ? "Y vs X" : "ln Y vs 1/X");
    Ranges();
    Redraw();
}

void frmGraph::cmdVar_Click() {
    xVar_ = xVar_ < table_->nVar ? xVar_ + 1 : 1;
    Arrange(*table_, xVar_);
    NameAxes();
    Ranges();
    Redraw();
}

void frmGraph::ChangeTolerance(double factor) {
    groupTolerance_ *= factor;
    Redraw();
}

Plot frmGraph::ThePlot() const {
    return {*table_, scale_, xVar_, families_, showUnc_};
}

void frmGraph::NameAxes() {
    Caption(table_->YName + " as function of " + table_->NameOf(xVar_));
}

void frmGraph::Ranges() {
    scale_.Ranges(*table_, xVar_);
}

void frmGraph::Redraw() {
    families_ = FamiliesOf(*table_, xVar_, groupTolerance_);
    drawn_ = PlotPicture(ThePlot());
    picPIC.Strokes(drawn_);
    lblPoint.Caption(scale_.Empty ? noLogarithm : hint);
}

void frmGraph::DrawRectangle(PlotPlace corner) {
    std::vector<ui::Picture::Stroke> strokes = drawn_;
    strokes.push_back(
        {ui::Picture::Shape::Rectangle, start_->x, start_->y, corner.x, corner.y, 0, {}});
    picPIC.Strokes(std::move(strokes));
}

void frmGraph::HideRectangle() {
    picPIC.Strokes(drawn_);
}

/// The nearest point is told below the plot and beside the point.
void frmGraph::ShowPoint(PlotPlace place) {
    const auto point = NearestPoint(ThePlot(), place);
    if (!point) return;
    const std::string text = PointText(ThePlot(), *point);
    lblPoint.Caption(text);
    const PlotPlace at = PlaceOf(ThePlot(), *point).value_or(place);
    const bool isRight = at.x > Plot::Width / 2;
    std::vector<ui::Picture::Stroke> strokes = drawn_;
    ui::Picture::Stroke label{
        ui::Picture::Shape::Text, at.x + (isRight ? -14 : 14), at.y - 12, 0, 0, 0, text};
    label.align = isRight ? ui::Picture::Align::Right : ui::Picture::Align::Left;
    strokes.push_back(label);
    picPIC.Strokes(std::move(strokes));
}

} // namespace vexora
