#include "plot/frmGraph.h"

#include <algorithm>
#include <cmath>

#include "globals/KVOGlobal.h"
#include "plot/PictureSvg.h"
#include "plot/PlotPoint.h"
#include "reference/SafeFile.h"
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

} // namespace

frmGraph::frmGraph() : Form("frmGraph", "Plot") {
    using namespace ui;
    Arrangement = Column({picPIC, lblPoint, lblRow,
                          ButtonRow({cmdPicture, cmdTies, cmdMode, cmdVar, cmdUnc, cmdOK})});
    PreferredColumns = 150;
    PreferredRows = 46;
    UseButtons(cmdOK, cmdOK, [this] { Close(); });
    HelpContext = 350;
    WireEvents();
    WireMenus();
}

void frmGraph::WireEvents() {
    picPIC.OnPress = [this](double x, double y) { start_ = PlotPlace{x, y}; };
    picPIC.OnMove = [this](double x, double y) { picPIC_Move({x, y}); };
    picPIC.OnRelease = [this](double x, double y) { picPIC_Release({x, y}); };
    picPIC.OnDoubleClick = [this] { GoToPoint(); };
    picPIC.OnKey = [this](ui::Key& key) { picPIC_Key(key); };
    cmdPicture.OnClick = [this] { cmdPicture_Click(); };
    cmdTies.OnClick = [this] {
        showTies_ = !showTies_;
        Redraw();
        picPIC.SetFocus();
    };
    cmdMode.OnClick = [this] { cmdMode_Click(); };
    cmdVar.OnClick = [this] { cmdVar_Click(); };
    cmdUnc.OnClick = [this] {
        showUnc_ = !showUnc_;
        Redraw();
        picPIC.SetFocus();
    };
}

void frmGraph::WireMenus() {
    mnuFileSave.OnClick = [this] { mnuFileSave_Click(); };
    mnuFilePrint.OnClick = [this] { ui::TheDesktop().PrintPicture(Caption(), picPIC); };
    mnuToolsIncrease.OnClick = [this] { ChangeTolerance(2); };
    mnuToolsDecrease.OnClick = [this] { ChangeTolerance(0.5); };
    mnuHide.OnClick = [this] {
        hideMarks_ = !hideMarks_;
        mnuHide.Checked(hideMarks_);
        point_.reset();
        Redraw();
    };
    mnuNextFar.OnClick = [this] { StepFar(1); };
    mnuLastFar.OnClick = [this] { StepFar(-1); };
    mnuHelpAbout.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
}

void frmGraph::Load() {
    const auto first = Globals().Plot;
    mnuHide.Checked(hideMarks_);
    cmdPicture.Visible(first && first->Next);
    ShowPicture(first ? first : std::make_shared<PlotTable>());
}

void frmGraph::ShowPicture(std::shared_ptr<PlotTable> table) {
    table_ = std::move(table);
    const bool isTriangle = table_->IsTriangle();
    scale_.Shift = ShiftOf(*table_);
    cmdVar.Visible(table_->nVar > 1 && !isTriangle);
    const bool hasBars = std::ranges::any_of(table_->PointUnc, [](double u) { return u != 0; });
    cmdUnc.Visible(!isTriangle && (hasBars || table_->SeriesNames.empty()));
    cmdTies.Visible(table_->HasTies());
    picPIC.KeepsShape(isTriangle);
    ShowAgainst(1);
}

/// The keys of the plot serve at once.
void frmGraph::Activate() {
    picPIC.SetFocus();
}

void frmGraph::picPIC_Move(PlotPlace place) {
    if (start_ && !table_->IsTriangle())
        picPIC.Overlay(
            {{ui::Picture::Shape::Rectangle, start_->x, start_->y, place.x, place.y, 0, {}}});
    else if (const auto point = hideMarks_ ? NearestPoint(ThePlot(), place) : std::nullopt)
        PointTo(point);
}

/// A rectangle becomes the new ranges, a mere click brings all points back. A triangle is always
/// seen whole.
void frmGraph::picPIC_Release(PlotPlace place) {
    if (!start_) return;
    const PlotPlace start = *start_;
    start_.reset();
    picPIC.Overlay({});
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

void frmGraph::picPIC_Key(ui::Key& key) {
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

void frmGraph::cmdPicture_Click() {
    point_.reset();
    ShowPicture(table_->Next ? table_->Next : Globals().Plot);
    picPIC.SetFocus();
}

void frmGraph::cmdMode_Click() {
    scale_.Log = !scale_.Log;
    NameMode();
    scale_.Ranges(*table_, xVar_);
    Redraw();
    picPIC.SetFocus();
}

void frmGraph::cmdVar_Click() {
    point_.reset();
    ShowAgainst(xVar_ < table_->nVar ? xVar_ + 1 : 1);
    picPIC.SetFocus();
}

/// The button names the mode that it goes to.
void frmGraph::NameMode() {
    cmdMode.Caption(scale_.Log ? "Y vs X" : "ln Y vs 1/X");
}

/// Draws all points over this variable. A fraction of nothing has no reciprocal.
void frmGraph::ShowAgainst(int variable) {
    xVar_ = variable;
    const bool hasLog = !table_->IsTriangle() && !table_->IsFraction(xVar_);
    cmdMode.Visible(hasLog);
    scale_.Log = scale_.Log && hasLog;
    NameMode();
    Arrange(*table_, xVar_);
    Caption(CaptionText());
    scale_.Ranges(*table_, xVar_);
    ChangeTolerance(1);
}

std::string frmGraph::CaptionText() const {
    if (!table_->IsTriangle()) return table_->YName + " as function of " + table_->NameOf(xVar_);
    const auto& [top, left, right] = table_->Corners;
    return top + " + " + left + " + " + right + ": " + table_->Title;
}

/// The ending of the name tells what is written; without one it is a drawing.
void frmGraph::mnuFileSave_Click() {
    const auto chosen = ui::TheDesktop().Choose({true, {}, "plot.svg", "Pictures (*.svg *.png)"});
    if (!chosen) return;
    const std::string name = LowerAscii(*chosen);
    const bool isPng = name.ends_with(".png");
    const std::string path = isPng || name.ends_with(".svg") ? *chosen : *chosen + ".svg";
    ui::FileSystem& files = ui::TheDesktop().Files();
    if (files.Exists(path) && !ui::AskYesNo(path + " exists already\nReplace it?")) return;
    const auto bytes = isPng ? ui::TheDesktop().PngOf(picPIC) : SvgOf(picPIC, Caption());
    if (!bytes)
        return ui::Say("A picture of points (.png) needs a screen\nSave it as a drawing (.svg)");
    const SaveOutcome outcome = WriteSafely(files, path, *bytes, false);
    if (const std::string told = outcome.Told("The file " + path); !told.empty()) ui::Say(told);
}

void frmGraph::ChangeTolerance(double factor) {
    groupTolerance_ *= factor;
    families_ = FamiliesOf(*table_, xVar_, groupTolerance_);
    Redraw();
}

Plot frmGraph::ThePlot() const {
    return {*table_, scale_, xVar_, families_, showUnc_, showTies_};
}

void frmGraph::Redraw() {
    picPIC.Strokes(PlotPicture(ThePlot()));
    PointTo(point_);
}

/// Its values and its row are told on the plot and below it.
void frmGraph::PointTo(std::optional<int> point) {
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
    lblPoint.Caption(isSeen ? PointText(plot, *point) : untold);
    lblRow.Caption(isSeen ? RowText(plot, *point) + (hasRow ? ", Enter goes there" : "")
                          : KeysHint);
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
        if (!PlaceOf(ThePlot(), at)) scale_.Ranges(*table_, xVar_);
        Redraw();
        return;
    }
}

/// The dialog with the table takes the person to the row of the point.
void frmGraph::GoToPoint() {
    const int row = point_ ? table_->PointRow[static_cast<std::size_t>(*point_)] : 0;
    if (row == 0) return;
    Globals().Plot->ChosenRow = row;
    Globals().Plot->ChosenColumn = table_->PointColumn[static_cast<std::size_t>(*point_)];
    Close();
}

} // namespace vexora
