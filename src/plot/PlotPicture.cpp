#include "plot/PlotPicture.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>
#include <utility>

#include "plot/PlotLegend.h"
#include "plot/PlotName.h"
#include "plot/PlotTriangle.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using Stroke = ui::Picture::Stroke;
using Shape = ui::Picture::Shape;
using Align = ui::Picture::Align;

constexpr double Farthest = 1.2; // points a little outside the frame are still drawn
constexpr double CapWidth = 5;
constexpr double LeastApart = 28; // of labels on the Y axis
constexpr double LeastAside = 70; // of labels on the X axis
constexpr double BesideMarker = 12;
constexpr int ManyPoints = 1000; // beyond these markers lie over one another
constexpr int FewPoints = 60;    // so many may bear their values

std::size_t At(int point) {
    return static_cast<std::size_t>(point);
}

double Across(const Plot& plot, double position) {
    return plot.left + position * (plot.right - plot.left);
}

double Down(const Plot& plot, double position) {
    return plot.bottom - position * (plot.bottom - plot.top);
}

Stroke TickLabel(PlotPlace place, double value, Align align) {
    Stroke stroke = PlotLabel(place, NumberText(value), align);
    stroke.yields = true;
    return stroke;
}

/// Where a row stands, even far outside the frame; nothing for a value without place on its axis.
std::optional<PlotPlace> AnyPlaceOf(const Plot& plot, const PlotTable::Row& row) {
    if (plot.table.IsTriangle()) return PlaceInTriangle(plot, row);
    const auto x = plot.scale.PositionX(row[static_cast<std::size_t>(plot.xVar)]);
    const auto y = plot.scale.PositionY(row[0]);
    if (plot.scale.Empty || !x || !y) return std::nullopt;
    return PlotPlace{Across(plot, *x), Down(plot, *y)};
}

void DrawTicksX(PlotStrokes& strokes, const Plot& plot) {
    double last = -LeastAside;
    for (const double tick : plot.scale.TicksX()) {
        const auto position = plot.scale.PositionX(tick);
        if (!position) continue;
        const double x = Across(plot, *position);
        strokes.push_back(PlotLine({x, plot.top}, {x, plot.bottom}, Faint));
        strokes.push_back(PlotLine({x, plot.bottom}, {x, plot.bottom + TickLength}));
        const auto length = static_cast<double>(NumberText(tick).size());
        if (x - last < std::max(LeastAside, (length + 1) * CharacterWidth)) continue;
        strokes.push_back(TickLabel({x, plot.bottom + 10}, tick, Align::Centre));
        last = x;
    }
}

void DrawTicksY(PlotStrokes& strokes, const Plot& plot) {
    double last = plot.bottom + LeastApart;
    for (const double tick : plot.scale.TicksY()) {
        const auto position = plot.scale.PositionY(tick);
        if (!position) continue;
        const double y = Down(plot, *position);
        strokes.push_back(PlotLine({plot.left, y}, {plot.right, y}, Faint));
        strokes.push_back(PlotLine({plot.left - TickLength, y}, {plot.left, y}));
        if (last - y < LeastApart) continue;
        strokes.push_back(TickLabel({plot.left - 10, y - LineHeight / 2}, tick, Align::Right));
        last = y;
    }
}

/// In the middle of the surface, cut where it is too long for it.
void DrawHeading(PlotStrokes& strokes, const Plot& plot) {
    const std::string heading = plot.Heading();
    if (heading.empty()) return;
    const auto most = static_cast<std::size_t>(plot.size.width / CharacterWidth);
    strokes.push_back(
        PlotLabel({plot.size.width / 2, HeadLine}, Shortened(heading, most), Align::Centre));
}

void DrawFrame(PlotStrokes& strokes, const Plot& plot) {
    strokes.push_back({Shape::Rectangle, plot.left, plot.top, plot.right, plot.bottom, 0, {}});
    const std::string& xName = plot.table.NameOf(plot.xVar);
    strokes.push_back(PlotLabel({(plot.left + plot.right) / 2, plot.bottom + 45},
                                plot.scale.Log ? xName + ", scale of 1/X" : xName, Align::Centre));
    strokes.push_back(PlotLabel(
        {plot.left, plot.head},
        plot.scale.Log ? plot.table.YName + ", scale of ln Y" : plot.table.YName, Align::Left));
    DrawRingLegend(strokes, plot, {plot.left, plot.top - LineHeight - 6});
}

/// From the value less its uncertainty to the value and its uncertainty; what leaves the frame is
/// cut off and has no cap.
void DrawBar(PlotStrokes& strokes, const Plot& plot, int point, double x) {
    const double uncertainty = plot.table.PointUnc[At(point)];
    if (uncertainty == 0) return;
    const double y = plot.RowOf(point)[0];
    const int colour = 1 + plot.families.GroupOf[At(point)] % ColourCount;
    const double low = plot.scale.PositionY(y - std::abs(uncertainty)).value_or(-1);
    const double high = plot.scale.PositionY(y + std::abs(uncertainty)).value_or(-1);
    if (high < 0 || low > 1) return;
    strokes.push_back(PlotLine({x, Down(plot, std::max(low, 0.0))},
                               {x, Down(plot, std::min(high, 1.0))}, colour));
    for (const double end : {low, high}) {
        if (end < 0 || end > 1) continue;
        const double at = Down(plot, end);
        strokes.push_back(PlotLine({x - CapWidth, at}, {x + CapWidth, at}, colour));
    }
}

bool IsInside(const Plot& plot, PlotPlace place) {
    return place.x >= plot.left && place.x <= plot.right && place.y >= plot.top &&
           place.y <= plot.bottom;
}

bool IsInside(const Plot& plot, int point, PlotPlace place) {
    constexpr double rounding = -1e-9;
    if (!plot.table.IsTriangle()) return IsInside(plot, place);
    return LeastFraction(plot.table, plot.RowOf(point)) >= rounding;
}

/// The part of a line that lies in the frame, if any: a side of the frame after the other takes off
/// what lies beyond it.
std::optional<std::pair<PlotPlace, PlotPlace>> InFrame(const Plot& plot, PlotPlace a, PlotPlace b) {
    double from = 0, to = 1;
    const double wide = b.x - a.x, high = b.y - a.y;
    const std::pair<double, double> sides[] = {{-wide, a.x - plot.left},
                                               {wide, plot.right - a.x},
                                               {-high, a.y - plot.top},
                                               {high, plot.bottom - a.y}};
    for (const auto& [outward, room] : sides) {
        if (outward == 0 && room < 0) return std::nullopt;
        if (outward < 0) from = std::max(from, room / outward);
        if (outward > 0) to = std::min(to, room / outward);
    }
    if (from > to) return std::nullopt;
    return std::pair{PlotPlace{a.x + from * wide, a.y + from * high},
                     PlotPlace{a.x + to * wide, a.y + to * high}};
}

/// Where both quantities are equal, on plain axes.
void DrawDiagonal(PlotStrokes& strokes, const Plot& plot) {
    if (!plot.table.HasDiagonal || plot.scale.Log) return;
    PlotTable::Row from{}, to{};
    const auto x = static_cast<std::size_t>(plot.xVar);
    from[0] = from[x] = std::min(plot.scale.XMin, plot.scale.YMin);
    to[0] = to[x] = std::max(plot.scale.XMax, plot.scale.YMax);
    const auto a = AnyPlaceOf(plot, from), b = AnyPlaceOf(plot, to);
    if (!a || !b) return;
    if (const auto seen = InFrame(plot, *a, *b))
        strokes.push_back(PlotLine(seen->first, seen->second));
}

/// Joins the points of one tie; three and more close to a figure.
void DrawTie(PlotStrokes& strokes, const Plot& plot, std::span<const int> points) {
    const std::size_t count = points.size() > 2 ? points.size() : points.size() - 1;
    for (std::size_t at = 0; at < count; ++at) {
        const auto a = AnyPlaceOf(plot, plot.RowOf(points[at]));
        const auto b = AnyPlaceOf(plot, plot.RowOf(points[(at + 1) % points.size()]));
        if (!a || !b) continue;
        if (const auto seen = InFrame(plot, *a, *b))
            strokes.push_back(PlotLine(seen->first, seen->second));
    }
}

void DrawTies(PlotStrokes& strokes, const Plot& plot) {
    const std::vector<int>& ties = plot.table.PointTie;
    std::vector<int> points;
    for (int point = 0; point < plot.table.PointCount(); ++point)
        if (ties[At(point)] > 0) points.push_back(point);
    std::ranges::stable_sort(points, {}, [&](int point) { return ties[At(point)]; });
    for (auto from = points.begin(); from != points.end();) {
        const int tie = ties[At(*from)];
        const auto end =
            std::find_if(from, points.end(), [&](int point) { return ties[At(point)] != tie; });
        DrawTie(strokes, plot, {from, end});
        from = end;
    }
}

Stroke MarkerOf(const Plot& plot, int point, PlotPlace place) {
    Stroke marker = PlotMarker(place, plot.families.GroupOf[At(point)]);
    marker.dense = plot.table.PointCount() > ManyPoints;
    if (!IsInside(plot, point, place)) marker.colour = Faint;
    return marker;
}

void DrawPoints(PlotStrokes& strokes, const Plot& plot) {
    PlotStrokes markers, ringed, values; // each above those before
    const bool hasValues =
        plot.ShowsValues() && !plot.IsSmall() && plot.table.PointCount() <= FewPoints;
    for (int point = 0; point < plot.table.PointCount(); ++point) {
        const auto place = PlaceOf(plot, point);
        if (!place) continue;
        const Stroke marker = MarkerOf(plot, point, *place);
        if (plot.showUnc && !plot.table.IsTriangle() && place->x >= plot.left &&
            place->x <= plot.right)
            DrawBar(strokes, plot, point, place->x);
        const bool isRinged = plot.table.PointFar[At(point)] && marker.colour != Faint;
        (marker.colour == Faint ? strokes : isRinged ? ringed : markers).push_back(marker);
        if (isRinged) ringed.push_back(PlotRing(*place));
        if (hasValues) values.push_back(ValueLabel(plot, plot.RowOf(point)));
    }
    for (const auto* some : {&markers, &ringed, &values})
        strokes.insert(strokes.end(), some->begin(), some->end());
}

/// What the pure components have in the document: no points of the table, and so hollow. Each is
/// named once, beside the value that is farthest from the middle, where curves are rare.
void DrawEnds(PlotStrokes& strokes, const Plot& plot) {
    const double middle = (plot.top + plot.bottom) / 2;
    std::map<std::string, PlotPlace> names;
    for (const PlotTable::End& end : plot.table.Ends) {
        const auto place = AnyPlaceOf(plot, end.at);
        if (!place || !IsInside(plot, *place)) continue;
        strokes.push_back(PlotMarker(*place, 0));
        strokes.back().colour = 0;
        strokes.back().hollow = true;
        PlotPlace& named = names.try_emplace(end.name, *place).first->second;
        if (std::abs(place->y - middle) > std::abs(named.y - middle)) named = *place;
    }
    for (const auto& [name, place] : names) {
        const bool isLeft = place.x < (plot.left + plot.right) / 2;
        strokes.push_back(
            PlotLabel({place.x + (isLeft ? BesideMarker : -BesideMarker), place.y - LineHeight / 2},
                      name, isLeft ? Align::Left : Align::Right));
        strokes.back().yields = true;
    }
}

double LongestLabel(const std::vector<double>& ticks) {
    std::size_t longest = 0;
    for (const double tick : ticks)
        longest = std::max(longest, NumberText(tick).size());
    return CharacterWidth * static_cast<double>(longest);
}

} // namespace

Plot::Plot(const PlotTable& plotTable, const PlotScale& plotScale, int x,
           const PlotFamilies& plotFamilies, bool bars, bool ties, PlotSize surface)
    : table(plotTable), scale(plotScale), xVar(x), families(plotFamilies), showUnc(bars),
      showTies(ties), size(surface) {
    if (table.IsTriangle()) {
        right = size.width;
        bottom = size.height;
        return;
    }
    if (!Heading().empty()) head += LineHeight + 6;
    top = head + (HasLegend(*this) || HasRings(*this) ? 68 : 37);
    bottom = size.height - 90;
    left = std::clamp(25 + LongestLabel(scale.TicksY()), 80.0, 220.0);
    right = size.width - 25 - LegendWidth(*this);
}

const PlotTable::Row& Plot::RowOf(int point) const {
    return table.PointTable[At(point)];
}

std::string Plot::Heading() const {
    if (IsSmall() || table.System.empty()) return {};
    // The corners of a triangle bear the names of its components.
    return table.IsTriangle() ? std::string() : table.System + ": " + WithoutUnit(table.YName);
}

bool Plot::ShowsValues() const {
    return table.IsTriangle() && !table.YName.empty();
}

PlotStrokes PlotPicture(const Plot& plot) {
    PlotStrokes strokes;
    if (plot.scale.Empty) return strokes;
    if (plot.table.IsTriangle()) {
        DrawTriangle(strokes, plot);
    } else {
        DrawHeading(strokes, plot);
        DrawTicksX(strokes, plot);
        DrawTicksY(strokes, plot);
        DrawFrame(strokes, plot);
    }
    DrawDiagonal(strokes, plot);
    if (plot.showTies) DrawTies(strokes, plot);
    DrawEnds(strokes, plot);
    DrawPoints(strokes, plot);
    if (HasLegend(plot) && !plot.table.IsTriangle())
        DrawLegend(strokes, plot, {plot.right + 24, plot.top}, plot.bottom);
    return strokes;
}

std::optional<PlotPlace> PlaceOf(const Plot& plot, int point) {
    const PlotTable::Row& row = plot.RowOf(point);
    const auto place = AnyPlaceOf(plot, row);
    if (!place || plot.scale.Empty) return std::nullopt;
    if (plot.table.IsTriangle())
        return LeastFraction(plot.table, row) > 1 - Farthest ? place : std::nullopt;
    const PlotPlace position = PositionsAt(plot, *place);
    const auto seen = [](double one) { return one > 1 - Farthest && one < Farthest; };
    return seen(position.x) && seen(position.y) ? place : std::nullopt;
}

PlotPlace PositionsAt(const Plot& plot, PlotPlace place) {
    return {(place.x - plot.left) / (plot.right - plot.left),
            (plot.bottom - place.y) / (plot.bottom - plot.top)};
}

} // namespace vexora
