#include "plot/frmGraph.h"

#include <cmath>

#include "globals/KVOGlobal.h"
#include "plot/PictureSvg.h"
#include "reference/SafeFile.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr double LeastDrag = 10; // a smaller rectangle is a click
constexpr int HelpAbout = 350;

} // namespace

frmGraph::frmGraph() : Form("frmGraph", "Plot") {
    using namespace ui;
    Arrangement = Column({picPIC, lblPoint, lblRow, ButtonRow({cmdMode, cmdVar, cmdUnc, cmdOK})});
    PreferredColumns = 150;
    PreferredRows = 46;
    DefaultButton = &cmdOK;
    CancelButton = &cmdOK;
    HelpContext = HelpAbout;
    WireEvents();
    WireMenus();
}

void frmGraph::WireEvents() {
    picPIC.OnPress = [this](double x, double y) { picPIC_Press({x, y}); };
    picPIC.OnMove = [this](double x, double y) { picPIC_Move({x, y}); };
    picPIC.OnRelease = [this](double x, double y) { picPIC_Release({x, y}); };
    picPIC.OnDoubleClick = [this] { GoToPoint(); };
    picPIC.OnKey = [this](ui::Key& key) { picPIC_Key(key); };
    cmdMode.OnClick = [this] {
        cmdMode_Click();
        picPIC.SetFocus();
    };
    cmdVar.OnClick = [this] {
        cmdVar_Click();
        picPIC.SetFocus();
    };
    cmdUnc.OnClick = [this] {
        showUnc_ = !showUnc_;
        Redraw();
        picPIC.SetFocus();
    };
    cmdOK.OnClick = [this] { Close(); };
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
    table_ = Globals().Plot;
    if (!table_) table_ = std::make_shared<PlotTable>();
    scale_.Shift = ShiftOf(*table_);
    mnuHide.Checked(hideMarks_);
    cmdVar.Visible(table_->nVar > 1);
    Arrange(*table_, xVar_);
    Group();
    NameAxes();
    Ranges();
    Redraw();
}

/// The keys of the plot serve at once.
void frmGraph::Activate() {
    picPIC.SetFocus();
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
    if (wide > LeastDrag && high > LeastDrag) {
        const PlotPlace from = PositionsAt(ThePlot(), start);
        const PlotPlace to = PositionsAt(ThePlot(), place);
        scale_.Zoom(from.x, from.y, to.x, to.y);
    } else {
        Ranges();
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

void frmGraph::cmdMode_Click() {
    scale_.Log = !scale_.Log;
    cmdMode.Caption(scale_.Log ? "Y vs X" : "ln Y vs 1/X");
    Ranges();
    Redraw();
}

void frmGraph::cmdVar_Click() {
    xVar_ = xVar_ < table_->nVar ? xVar_ + 1 : 1;
    point_.reset();
    Arrange(*table_, xVar_);
    Group();
    NameAxes();
    Ranges();
    Redraw();
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
    if (!bytes) {
        ui::Say("A picture of points (.png) needs a screen\nSave it as a drawing (.svg)");
        return;
    }
    const std::string error = WriteSafely(files, path, *bytes, false);
    if (!error.empty()) ui::Say(error);
}

void frmGraph::ChangeTolerance(double factor) {
    groupTolerance_ *= factor;
    Group();
    Redraw();
}

Plot frmGraph::ThePlot() const {
    return {*table_, scale_, xVar_, families_, showUnc_};
}

void frmGraph::NameAxes() {
    Caption(table_->YName + " as function of " + table_->NameOf(xVar_));
}

void frmGraph::Group() {
    families_ = FamiliesOf(*table_, xVar_, groupTolerance_);
}

void frmGraph::Ranges() {
    scale_.Ranges(*table_, xVar_);
}

void frmGraph::Redraw() {
    picPIC.Strokes(PlotPicture(ThePlot()));
    PointTo(point_);
}

void frmGraph::DrawRectangle(PlotPlace corner) {
    picPIC.Overlay(
        {{ui::Picture::Shape::Rectangle, start_->x, start_->y, corner.x, corner.y, 0, {}}});
}

void frmGraph::HideRectangle() {
    picPIC.Overlay({});
}

void frmGraph::ShowPoint(PlotPlace place) {
    if (const auto point = NearestPoint(ThePlot(), place)) PointTo(point);
}

} // namespace vexora
