#include "plot/PlotPane.h"

#include <cmath>
#include <utility>

#include "plot/PictureSvg.h"
#include "plot/PlotName.h"
#include "plot/PlotPoint.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr double LeastDrag = 10; // a smaller rectangle is a click
constexpr const char* DragHint = "Drag a rectangle to enlarge it, click to see all points";
constexpr const char* TriangleHint = "The fractions of the three components are told at each point";
constexpr const char* KeysHint = "The arrow keys step through the points";
constexpr const char* NoPoints = "There are no points to draw";
constexpr const char* NoLogarithm =
    "Nothing to draw: 1/X and ln Y need an absolute temperature and "
    "a value above 0";
constexpr double PerCent = 100;

std::string PartText(double part) {
    return NumberText(part * PerCent);
}

} // namespace

PlotPane::PlotPane(ui::Form& form, const PlotControls& controls, const PlotMenu& menu)
    : form_(form), controls_(controls), table_(std::make_shared<PlotTable>()) {
    WirePicture();
    WireMenu(menu);
    for (ui::TextBox* field : {&controls_.pressures, &controls_.others})
        field->OnLostFocus = [this] { TakeTolerances(); };
}

void PlotPane::WirePicture() {
    ui::Picture& picture = controls_.picture;
    picture.OnPress = [this](double x, double y) { start_ = PlotPlace{x, y}; };
    picture.OnMove = [this](double x, double y) { Move({x, y}); };
    picture.OnRelease = [this](double x, double y) { Release({x, y}); };
    picture.OnDoubleClick = [this] { GoToPoint(); };
    picture.OnKey = [this](ui::Key& key) { UseKey(key); };
}

void PlotPane::WireMenu(const PlotMenu& menu) {
    menu.save.OnClick = [this] { Save(); };
    menu.print.OnClick = [this] {
        ui::TheDesktop().PrintPicture(form_.Caption(), controls_.picture);
    };
    menu.merge.OnClick = [this] { ScaleTolerances(2); };
    menu.split.OnClick = [this] { ScaleTolerances(0.5); };
    menu.identify.Checked(identifies_);
    menu.identify.OnClick = [this, &identify = menu.identify] {
        identifies_ = !identifies_;
        identify.Checked(identifies_);
        point_.reset();
        Redraw();
    };
    menu.nextFar.OnClick = [this] { StepFar(1); };
    menu.lastFar.OnClick = [this] { StepFar(-1); };
}

void PlotPane::Show(std::shared_ptr<PlotTable> table, int xVar, bool hasLog) {
    table_ = std::move(table);
    xVar_ = xVar;
    scale_.Shift = ShiftOf(*table_);
    scale_.Log = scale_.Log && hasLog;
    controls_.picture.KeepsShape(table_->IsTriangle());
    Arrange(*table_, xVar_);
    scale_.Ranges(*table_, xVar_);
    ShowTolerances();
    FindFamilies();
}

void PlotPane::ToggleLog() {
    scale_.Log = !scale_.Log;
    scale_.Ranges(*table_, xVar_);
    Redraw();
}

void PlotPane::ToggleUncertainties() {
    showUnc_ = !showUnc_;
    Redraw();
}

void PlotPane::ToggleTies() {
    showTies_ = !showTies_;
    Redraw();
}

void PlotPane::Move(PlotPlace place) {
    if (start_ && !table_->IsTriangle())
        controls_.picture.Overlay(
            {{ui::Picture::Shape::Rectangle, start_->x, start_->y, place.x, place.y, 0, {}}});
    else if (const auto point = identifies_ ? NearestPoint(ThePlot(), place) : std::nullopt)
        PointTo(point);
}

/// A rectangle becomes the new ranges, a mere click brings all points back. A triangle is always
/// seen whole.
void PlotPane::Release(PlotPlace place) {
    if (!start_) return;
    const PlotPlace start = *start_;
    start_.reset();
    controls_.picture.Overlay({});
    if (table_->IsTriangle()) return PointTo(point_);
    const double wide = std::abs(place.x - start.x);
    const double high = std::abs(place.y - start.y);
    if (wide > LeastDrag && high > LeastDrag) {
        const PlotPlace from = PositionsAt(ThePlot(), start);
        const PlotPlace to = PositionsAt(ThePlot(), place);
        scale_.Zoom(from.x, from.y, to.x, to.y);
    } else {
        scale_.Ranges(*table_, xVar_);
    }
    Redraw();
}

void PlotPane::UseKey(ui::Key& key) {
    const std::string name = key.FullName();
    key.swallowed = true;
    if (name == "Left" || name == "Right")
        StepPoint(name == "Right" ? 1 : -1, false);
    else if (name == "Up" || name == "Down")
        StepPoint(name == "Up" ? 1 : -1, true);
    else if (name == "Home" || name == "End") {
        point_.reset();
        StepPoint(name == "Home" ? 1 : -1, false);
    } else if (name == "Enter" && point_)
        GoToPoint();
    else
        key.swallowed = false;
}

void PlotPane::Save() {
    SavePicture(controls_.picture, form_.Caption(), ProposedName(*table_));
}

void PlotPane::ScaleTolerances(double factor) {
    CurveTolerances& curves = TheSitting().Curves;
    curves.pressure *= factor;
    curves.other *= factor;
    ShowTolerances();
    FindFamilies();
}

/// What is no part of a value is put back as it was.
void PlotPane::TakeTolerances() {
    CurveTolerances& curves = TheSitting().Curves;
    const CurveTolerances before = curves;
    const auto take = [](const ui::TextBox& field, double& tolerance) {
        std::string_view typed = TrimBlanks(field.Text());
        if (typed.ends_with('%')) typed.remove_suffix(1);
        const double part = Val(typed) / PerCent;
        if (IsNumeric(typed) && part > 0 && part < 1 && field.Text() != PartText(tolerance))
            tolerance = part;
    };
    take(controls_.pressures, curves.pressure);
    take(controls_.others, curves.other);
    ShowTolerances();
    if (curves != before) FindFamilies();
}

void PlotPane::ShowTolerances() {
    controls_.pressures.Text(PartText(TheSitting().Curves.pressure));
    controls_.others.Text(PartText(TheSitting().Curves.other));
}

void PlotPane::FindFamilies() {
    families_ = FamiliesOf(*table_, xVar_, TheSitting().Curves);
    Redraw();
}

Plot PlotPane::ThePlot() const {
    return {*table_, scale_, xVar_, families_, showUnc_, showTies_};
}

void PlotPane::Redraw() {
    controls_.picture.Strokes(PlotPicture(ThePlot()));
    PointTo(point_);
}

/// Its values and its row are told on the plot and below it.
void PlotPane::PointTo(std::optional<int> point) {
    point_ = point;
    const Plot plot = ThePlot();
    std::vector<ui::Picture::Stroke> mark;
    if (point) mark = PointMark(plot, *point);
    const bool isSeen = !mark.empty();
    const char* untold = table_->PointTable.empty() ? NoPoints
                         : scale_.Empty             ? NoLogarithm
                         : table_->IsTriangle()     ? TriangleHint
                                                    : DragHint;
    const bool hasRow = isSeen && table_->PointRow[static_cast<std::size_t>(*point)] > 0;
    controls_.point.Caption(isSeen ? PointText(plot, *point) : untold);
    controls_.row.Caption(isSeen ? RowText(plot, *point) + (hasRow ? ", Enter goes there" : "")
                                 : KeysHint);
    controls_.picture.Overlay(std::move(mark));
}

/// To the next drawn point in the order of X, around at the ends; Up and Down stay on the curve.
void PlotPane::StepPoint(int step, bool withinFamily) {
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

void PlotPane::StepFar(int step) {
    const int count = table_->PointCount();
    int at = point_ ? *point_ : step > 0 ? -1 : count;
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (!table_->PointFar[static_cast<std::size_t>(at)]) continue;
        point_ = at;
        if (!PlaceOf(ThePlot(), at)) scale_.Ranges(*table_, xVar_);
        Redraw();
        return;
    }
}

/// The dialog with the table takes the person to the row of the point.
void PlotPane::GoToPoint() {
    const int row = point_ ? table_->PointRow[static_cast<std::size_t>(*point_)] : 0;
    if (row == 0 || !OnGoTo) return;
    OnGoTo(row, table_->PointColumn[static_cast<std::size_t>(*point_)]);
}

} // namespace vexora
