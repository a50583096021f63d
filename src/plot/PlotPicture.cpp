#include "plot/PlotPicture.h"

#include <algorithm>
#include <cmath>

#include "reference/Numbers.h"

namespace vexora {

namespace {

using Stroke = ui::Picture::Stroke;
using Shape = ui::Picture::Shape;
using Align = ui::Picture::Align;

constexpr double farthest = 1.2; // points a little outside the frame are still drawn
constexpr double tickLength = 6;
constexpr double capWidth = 5;
constexpr double lineHeight = 24;
constexpr double leastApart = 28; // of labels on the Y axis
constexpr double leastAside = 70; // of labels on the X axis
constexpr int colourCount = 7;
constexpr int grey = -1;

struct Frame {
    double left = 115, right = 975, top = 45, bottom = 610;
};

bool HasLegend(const Plot& plot) {
    return plot.families.GroupRows.size() > 1;
}

Frame FrameOf(const Plot& plot) {
    Frame frame;
    if (HasLegend(plot)) frame.right = 800;
    return frame;
}

const PlotTable::Row& RowOf(const Plot& plot, int point) {
    return plot.table.PointTable[static_cast<std::size_t>(point)];
}

double XOf(const Plot& plot, int point) {
    return RowOf(plot, point)[static_cast<std::size_t>(plot.xVar)];
}

double Across(const Frame& frame, double position) {
    return frame.left + position * (frame.right - frame.left);
}

double Down(const Frame& frame, double position) {
    return frame.bottom - position * (frame.bottom - frame.top);
}

Stroke Line(double x, double y, double x2, double y2, int colour = 0) {
    return {Shape::Line, x, y, x2, y2, colour, {}};
}

Stroke Label(double x, double y, std::string text, Align align) {
    Stroke stroke{Shape::Text, x, y, 0, 0, 0, std::move(text)};
    stroke.align = align;
    return stroke;
}

/// Neighbouring families differ in colour and in shape, so that either is enough.
Stroke Marker(PlotPlace place, int group) {
    Stroke stroke{Shape::Marker, place.x, place.y, 0, 0, 1 + group % colourCount, {}};
    stroke.marker = group % ui::Picture::MarkerCount;
    return stroke;
}

void DrawTicksX(std::vector<Stroke>& strokes, const Plot& plot, const Frame& frame) {
    double last = -leastAside;
    for (const double tick : plot.scale.TicksX()) {
        const auto position = plot.scale.PositionX(tick);
        if (!position) continue;
        const double x = Across(frame, *position);
        strokes.push_back(Line(x, frame.top, x, frame.bottom, grey));
        strokes.push_back(Line(x, frame.bottom, x, frame.bottom + tickLength));
        if (x - last < leastAside) continue;
        strokes.push_back(Label(x, frame.bottom + 10, NumberText(tick), Align::Centre));
        last = x;
    }
}

void DrawTicksY(std::vector<Stroke>& strokes, const Plot& plot, const Frame& frame) {
    double last = frame.bottom + leastApart;
    for (const double tick : plot.scale.TicksY()) {
        const auto position = plot.scale.PositionY(tick);
        if (!position) continue;
        const double y = Down(frame, *position);
        strokes.push_back(Line(frame.left, y, frame.right, y, grey));
        strokes.push_back(Line(frame.left - tickLength, y, frame.left, y));
        if (last - y < leastApart) continue;
        strokes.push_back(
            Label(frame.left - 10, y - lineHeight / 2, NumberText(tick), Align::Right));
        last = y;
    }
}

void DrawFrame(std::vector<Stroke>& strokes, const Plot& plot, const Frame& frame) {
    strokes.push_back({Shape::Rectangle, frame.left, frame.top, frame.right, frame.bottom, 0, {}});
    const std::string& xName = plot.table.NameOf(plot.xVar);
    strokes.push_back(Label((frame.left + frame.right) / 2, frame.bottom + 45,
                            plot.scale.Log ? xName + ", scale of 1/X" : xName, Align::Centre));
    strokes.push_back(Label(
        frame.left, frame.top - 34,
        plot.scale.Log ? plot.table.YName + ", scale of ln Y" : plot.table.YName, Align::Left));
}

/// From the value less its uncertainty to the value and its uncertainty; what leaves the frame is
/// cut off and has no cap.
void DrawBar(std::vector<Stroke>& strokes, const Plot& plot, const Frame& frame, int point,
             double x) {
    const double uncertainty = plot.table.PointUnc[static_cast<std::size_t>(point)];
    if (uncertainty == 0) return;
    const double y = RowOf(plot, point)[0];
    const int colour = 1 + plot.families.GroupOf[static_cast<std::size_t>(point)] % colourCount;
    const double low = plot.scale.PositionY(y - std::abs(uncertainty)).value_or(-1);
    const double high = plot.scale.PositionY(y + std::abs(uncertainty)).value_or(-1);
    if (high < 0 || low > 1) return;
    strokes.push_back(
        Line(x, Down(frame, std::max(low, 0.0)), x, Down(frame, std::min(high, 1.0)), colour));
    for (const double end : {low, high}) {
        if (end < 0 || end > 1) continue;
        const double at = Down(frame, end);
        strokes.push_back(Line(x - capWidth, at, x + capWidth, at, colour));
    }
}

void DrawPoints(std::vector<Stroke>& strokes, const Plot& plot, const Frame& frame) {
    std::vector<Stroke> markers;
    for (int point = 0; point < plot.table.PointCount(); ++point) {
        const auto place = PlaceOf(plot, point);
        if (!place) continue;
        if (plot.showUnc) DrawBar(strokes, plot, frame, point, place->x);
        markers.push_back(Marker(*place, plot.families.GroupOf[static_cast<std::size_t>(point)]));
    }
    strokes.insert(strokes.end(), markers.begin(), markers.end());
}

/// The variables that are the same along a family: their names, or their values at a point.
std::string OthersText(const Plot& plot, const PlotTable::Row* row) {
    std::string text;
    for (int n = 1; n <= plot.table.nVar; ++n) {
        if (n == plot.xVar) continue;
        if (!text.empty()) text += ", ";
        text += row ? NumberText((*row)[static_cast<std::size_t>(n)]) : plot.table.NameOf(n);
    }
    return text;
}

void DrawLegend(std::vector<Stroke>& strokes, const Plot& plot, const Frame& frame) {
    const double left = frame.right + 20;
    double y = frame.top;
    strokes.push_back(
        Label(Plot::Width - 10, frame.top - 34, OthersText(plot, nullptr), Align::Right));
    int group = 0;
    for (const int row : plot.families.GroupRows) {
        if (y + 2 * lineHeight > frame.bottom) {
            strokes.push_back(Label(left, y, "...", Align::Left));
            return;
        }
        strokes.push_back(Marker({left, y + lineHeight / 2}, group++));
        strokes.push_back(Label(left + 18, y, OthersText(plot, &RowOf(plot, row)), Align::Left));
        y += lineHeight + 4;
    }
}

} // namespace

std::vector<Stroke> PlotPicture(const Plot& plot) {
    std::vector<Stroke> strokes;
    if (plot.scale.Empty) return strokes;
    const Frame frame = FrameOf(plot);
    DrawTicksX(strokes, plot, frame);
    DrawTicksY(strokes, plot, frame);
    DrawFrame(strokes, plot, frame);
    DrawPoints(strokes, plot, frame);
    if (HasLegend(plot)) DrawLegend(strokes, plot, frame);
    return strokes;
}

std::optional<PlotPlace> PlaceOf(const Plot& plot, int point) {
    if (plot.scale.Empty) return std::nullopt;
    const auto x = plot.scale.PositionX(XOf(plot, point));
    const auto y = plot.scale.PositionY(RowOf(plot, point)[0]);
    const auto seen = [](double position) {
        return position > 1 - farthest && position < farthest;
    };
    if (!x || !y || !seen(*x) || !seen(*y)) return std::nullopt;
    const Frame frame = FrameOf(plot);
    return PlotPlace{Across(frame, *x), Down(frame, *y)};
}

PlotPlace PositionsAt(const Plot& plot, PlotPlace place) {
    const Frame frame = FrameOf(plot);
    return {(place.x - frame.left) / (frame.right - frame.left),
            (frame.bottom - place.y) / (frame.bottom - frame.top)};
}

std::optional<int> NearestPoint(const Plot& plot, PlotPlace place) {
    std::optional<int> nearest;
    double least = 0;
    for (int point = 0; point < plot.table.PointCount(); ++point) {
        const auto at = PlaceOf(plot, point);
        if (!at) continue;
        const double x = at->x - place.x;
        const double y = at->y - place.y;
        const double distance = x * x + y * y;
        if (nearest && distance >= least) continue;
        nearest = point;
        least = distance;
    }
    return nearest;
}

std::string PointText(const Plot& plot, int point) {
    return "(" + NumberText(XOf(plot, point)) + ", " + NumberText(RowOf(plot, point)[0]) + ")";
}

} // namespace vexora
