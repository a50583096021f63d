#include "plot/PlotPicture.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>
#include <utility>

#include "plot/PlotLegend.h"
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

const PlotTable::Row& RowOf(const Plot& plot, int point) {
    return plot.table.PointTable[At(point)];
}

double XOf(const Plot& plot, int point) {
    return RowOf(plot, point)[static_cast<std::size_t>(plot.xVar)];
}

bool ShowsValues(const Plot& plot) {
    return plot.table.IsTriangle() && !plot.table.YName.empty();
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
    if (plot.table.IsTriangle()) return PlaceInTriangle(plot.table, row);
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

void DrawFrame(PlotStrokes& strokes, const Plot& plot) {
    strokes.push_back({Shape::Rectangle, plot.left, plot.top, plot.right, plot.bottom, 0, {}});
    const std::string& xName = plot.table.NameOf(plot.xVar);
    strokes.push_back(PlotLabel({(plot.left + plot.right) / 2, plot.bottom + 45},
                                plot.scale.Log ? xName + ", scale of 1/X" : xName, Align::Centre));
    strokes.push_back(PlotLabel(
        {plot.left, HeadLine},
        plot.scale.Log ? plot.table.YName + ", scale of ln Y" : plot.table.YName, Align::Left));
    DrawRingLegend(strokes, plot, {plot.left, plot.top - LineHeight - 6});
}

/// From the value less its uncertainty to the value and its uncertainty; what leaves the frame is
/// cut off and has no cap.
void DrawBar(PlotStrokes& strokes, const Plot& plot, int point, double x) {
    const double uncertainty = plot.table.PointUnc[At(point)];
    if (uncertainty == 0) return;
    const double y = RowOf(plot, point)[0];
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
    return LeastFraction(plot.table, RowOf(plot, point)) >= rounding;
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

/// Joins the points of one tie; three and more close to a figure.
void DrawTie(PlotStrokes& strokes, const Plot& plot, std::span<const int> points) {
    const std::size_t count = points.size() > 2 ? points.size() : points.size() - 1;
    for (std::size_t at = 0; at < count; ++at) {
        const auto a = AnyPlaceOf(plot, RowOf(plot, points[at]));
        const auto b = AnyPlaceOf(plot, RowOf(plot, points[(at + 1) % points.size()]));
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
    const bool hasValues = ShowsValues(plot) && plot.table.PointCount() <= FewPoints;
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
        if (hasValues) values.push_back(ValueLabel(plot.table, RowOf(plot, point)));
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

constexpr double NoteLine = LineHeight + 3;
constexpr int LegendLines = 18;

/// Where the two lines beside a point stand.
struct Note {
    bool isLeft = false; // of the point
    double left = 0, right = 0, top = 0, bottom = 0;
    int hidden = 0; // points below it
};

Note NoteBeside(PlotPlace place, double width, bool isLeft, bool isAbove) {
    const double left = place.x + (isLeft ? -24 - width : 24);
    const double top = place.y + (isAbove ? -2 * LineHeight - 18 : 18);
    return {isLeft, left, left + width, top, top + 2 * NoteLine, 0};
}

/// The side towards the middle of the plot, unless another that fits hides fewer points.
Note FreestNote(const Plot& plot, PlotPlace place, std::size_t characters) {
    const double width = CharacterWidth * static_cast<double>(characters);
    const bool isLeft = place.x > (plot.left + plot.right) / 2;
    const bool isAbove = place.y > (plot.top + plot.bottom) / 2;
    std::vector<Note> notes{NoteBeside(place, width, isLeft, isAbove)};
    for (const auto& [left, above] :
         {std::pair{isLeft, !isAbove}, std::pair{!isLeft, isAbove}, std::pair{!isLeft, !isAbove}}) {
        const Note note = NoteBeside(place, width, left, above);
        if (note.left >= plot.left && note.right <= plot.right && note.top >= plot.top &&
            note.bottom <= plot.bottom)
            notes.push_back(note);
    }
    for (int point = 0; point < plot.table.PointCount(); ++point) {
        const auto at = PlaceOf(plot, point);
        if (!at) continue;
        for (Note& note : notes)
            note.hidden += at->x >= note.left && at->x <= note.right && at->y >= note.top &&
                           at->y <= note.bottom;
    }
    return *std::min_element(notes.begin(), notes.end(), [](const Note& one, const Note& other) {
        return one.hidden < other.hidden;
    });
}

} // namespace

Plot::Plot(const PlotTable& plotTable, const PlotScale& plotScale, int x,
           const PlotFamilies& plotFamilies, bool bars, bool ties)
    : table(plotTable), scale(plotScale), xVar(x), families(plotFamilies), showUnc(bars),
      showTies(ties) {
    if (table.IsTriangle()) {
        right = Width;
        bottom = Height;
        return;
    }
    top = HasLegend(*this) || HasRings(*this) ? 76 : 45;
    bottom = 610;
    left = std::clamp(25 + LongestLabel(scale.TicksY()), 80.0, 220.0);
    right = Width - 25 - std::clamp(LegendWidth(*this), 0.0, 330.0);
}

PlotStrokes PlotPicture(const Plot& plot) {
    PlotStrokes strokes;
    if (plot.scale.Empty) return strokes;
    if (plot.table.IsTriangle()) {
        DrawTriangle(strokes, plot);
    } else {
        DrawTicksX(strokes, plot);
        DrawTicksY(strokes, plot);
        DrawFrame(strokes, plot);
    }
    if (plot.showTies) DrawTies(strokes, plot);
    DrawEnds(strokes, plot);
    DrawPoints(strokes, plot);
    if (HasLegend(plot) && !plot.table.IsTriangle())
        DrawLegend(strokes, plot, {plot.right + 24, plot.top}, LegendLines);
    return strokes;
}

std::optional<PlotPlace> PlaceOf(const Plot& plot, int point) {
    const PlotTable::Row& row = RowOf(plot, point);
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
    const PlotTable::Row& row = RowOf(plot, point);
    if (plot.table.IsTriangle())
        return CompositionText(plot.table, row) +
               (ShowsValues(plot) ? ": " + NumberText(row[0]) : "");
    return "(" + NumberText(XOf(plot, point)) + ", " + NumberText(row[0]) + ")";
}

std::string RowText(const Plot& plot, int point) {
    const PlotTable& table = plot.table;
    const int row = table.PointRow[At(point)];
    std::string text = row > 0 ? "Row " + std::to_string(row) : "Of another table";
    if (!table.SeriesNames.empty())
        text += ", " + LowerAscii(table.SeriesNames[At(table.PointSeries[At(point)])]);
    return text + (table.PointFar[At(point)] ? ", look again" : "");
}

PlotStrokes PointMark(const Plot& plot, int point) {
    const auto place = PlaceOf(plot, point);
    if (!place) return {};
    Stroke reticle = PlotMarker(*place, 0);
    reticle.colour = 0;
    reticle.marker = ui::Picture::Reticle;
    PlotStrokes strokes{reticle};
    const std::string texts[] = {PointText(plot, point), RowText(plot, point)};
    const Note note = FreestNote(plot, *place, std::max(texts[0].size(), texts[1].size()));
    double y = note.top;
    for (const std::string& text : texts) {
        strokes.push_back(PlotLabel({note.isLeft ? note.right : note.left, y}, text,
                                    note.isLeft ? Align::Right : Align::Left));
        strokes.back().boxed = true;
        y += NoteLine;
    }
    return strokes;
}

} // namespace vexora
