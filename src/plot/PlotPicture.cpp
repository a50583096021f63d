#include "plot/PlotPicture.h"

#include <algorithm>
#include <cmath>

#include "reference/Numbers.h"

namespace vexora {

namespace {

using Stroke = ui::Picture::Stroke;
using Shape = ui::Picture::Shape;
using Align = ui::Picture::Align;

constexpr double Farthest = 1.2; // points a little outside the frame are still drawn
constexpr double TickLength = 6;
constexpr double CapWidth = 5;
constexpr double LineHeight = 24;
constexpr double HeadLine = 8;
constexpr double TextMiddle = 10;
constexpr double LegendLine = 28;
constexpr double CharacterWidth = 10;
constexpr double LeastApart = 28; // of labels on the Y axis
constexpr double LeastAside = 70; // of labels on the X axis
constexpr int ManyPoints = 1000;  // beyond these markers lie over one another
constexpr int ColourCount = static_cast<int>(ui::PictureColours.size());
constexpr int Faint = -1;

std::size_t At(int point) {
    return static_cast<std::size_t>(point);
}

bool HasLegend(const Plot& plot) {
    return plot.families.GroupRows.size() > 1;
}

bool HasRings(const Plot& plot) {
    const auto& far = plot.table.PointFar;
    return std::find(far.begin(), far.end(), true) != far.end();
}

const PlotTable::Row& RowOf(const Plot& plot, int point) {
    return plot.table.PointTable[At(point)];
}

double XOf(const Plot& plot, int point) {
    return RowOf(plot, point)[static_cast<std::size_t>(plot.xVar)];
}

double Across(const Plot& plot, double position) {
    return plot.left + position * (plot.right - plot.left);
}

double Down(const Plot& plot, double position) {
    return plot.bottom - position * (plot.bottom - plot.top);
}

Stroke Line(double x, double y, double x2, double y2, int colour = 0) {
    return {Shape::Line, x, y, x2, y2, colour, {}};
}

Stroke Label(double x, double y, std::string text, Align align) {
    Stroke stroke{Shape::Text, x, y, 0, 0, 0, std::move(text)};
    stroke.align = align;
    return stroke;
}

Stroke TickLabel(double x, double y, double value, Align align) {
    Stroke stroke = Label(x, y, NumberText(value), align);
    stroke.yields = true;
    return stroke;
}

/// Neighbouring families differ in colour and in shape, so that either is enough.
Stroke Marker(PlotPlace place, int group) {
    Stroke stroke{Shape::Marker, place.x, place.y, 0, 0, 1 + group % ColourCount, {}};
    stroke.marker = group % ui::Picture::MarkerCount;
    return stroke;
}

void DrawTicksX(std::vector<Stroke>& strokes, const Plot& plot) {
    double last = -LeastAside;
    for (const double tick : plot.scale.TicksX()) {
        const auto position = plot.scale.PositionX(tick);
        if (!position) continue;
        const double x = Across(plot, *position);
        strokes.push_back(Line(x, plot.top, x, plot.bottom, Faint));
        strokes.push_back(Line(x, plot.bottom, x, plot.bottom + TickLength));
        const auto length = static_cast<double>(NumberText(tick).size());
        if (x - last < std::max(LeastAside, (length + 1) * CharacterWidth)) continue;
        strokes.push_back(TickLabel(x, plot.bottom + 10, tick, Align::Centre));
        last = x;
    }
}

void DrawTicksY(std::vector<Stroke>& strokes, const Plot& plot) {
    double last = plot.bottom + LeastApart;
    for (const double tick : plot.scale.TicksY()) {
        const auto position = plot.scale.PositionY(tick);
        if (!position) continue;
        const double y = Down(plot, *position);
        strokes.push_back(Line(plot.left, y, plot.right, y, Faint));
        strokes.push_back(Line(plot.left - TickLength, y, plot.left, y));
        if (last - y < LeastApart) continue;
        strokes.push_back(TickLabel(plot.left - 10, y - LineHeight / 2, tick, Align::Right));
        last = y;
    }
}

void DrawFrame(std::vector<Stroke>& strokes, const Plot& plot) {
    strokes.push_back({Shape::Rectangle, plot.left, plot.top, plot.right, plot.bottom, 0, {}});
    const std::string& xName = plot.table.NameOf(plot.xVar);
    strokes.push_back(Label((plot.left + plot.right) / 2, plot.bottom + 45,
                            plot.scale.Log ? xName + ", scale of 1/X" : xName, Align::Centre));
    strokes.push_back(Label(
        plot.left, HeadLine,
        plot.scale.Log ? plot.table.YName + ", scale of ln Y" : plot.table.YName, Align::Left));
    if (!HasRings(plot)) return;
    const double y = plot.top - LineHeight - 6;
    strokes.push_back({Shape::Ring, plot.left + 14, y + TextMiddle, 0, 0, 0, {}});
    strokes.push_back(Label(plot.left + 36, y, "far from its neighbours: look again", Align::Left));
}

/// From the value less its uncertainty to the value and its uncertainty; what leaves the frame is
/// cut off and has no cap.
void DrawBar(std::vector<Stroke>& strokes, const Plot& plot, int point, double x) {
    const double uncertainty = plot.table.PointUnc[At(point)];
    if (uncertainty == 0) return;
    const double y = RowOf(plot, point)[0];
    const int colour = 1 + plot.families.GroupOf[At(point)] % ColourCount;
    const double low = plot.scale.PositionY(y - std::abs(uncertainty)).value_or(-1);
    const double high = plot.scale.PositionY(y + std::abs(uncertainty)).value_or(-1);
    if (high < 0 || low > 1) return;
    strokes.push_back(
        Line(x, Down(plot, std::max(low, 0.0)), x, Down(plot, std::min(high, 1.0)), colour));
    for (const double end : {low, high}) {
        if (end < 0 || end > 1) continue;
        const double at = Down(plot, end);
        strokes.push_back(Line(x - CapWidth, at, x + CapWidth, at, colour));
    }
}

bool IsInside(const Plot& plot, PlotPlace place) {
    return place.x >= plot.left && place.x <= plot.right && place.y >= plot.top &&
           place.y <= plot.bottom;
}

void DrawPoints(std::vector<Stroke>& strokes, const Plot& plot) {
    std::vector<Stroke> markers;
    std::vector<Stroke> ringed; // above all others
    for (int point = 0; point < plot.table.PointCount(); ++point) {
        const auto place = PlaceOf(plot, point);
        if (!place) continue;
        Stroke marker = Marker(*place, plot.families.GroupOf[At(point)]);
        marker.dense = plot.table.PointCount() > ManyPoints;
        if (plot.showUnc && place->x >= plot.left && place->x <= plot.right)
            DrawBar(strokes, plot, point, place->x);
        if (!IsInside(plot, *place)) {
            marker.colour = Faint;
            strokes.push_back(marker);
            continue;
        }
        if (!plot.table.PointFar[At(point)]) {
            markers.push_back(marker);
            continue;
        }
        ringed.push_back(marker);
        ringed.push_back({Shape::Ring, place->x, place->y, 0, 0, 0, {}});
    }
    for (const auto* some : {&markers, &ringed})
        strokes.insert(strokes.end(), some->begin(), some->end());
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

/// So many families stand in the legend.
std::size_t LegendLines(const Plot& plot) {
    const auto room = static_cast<std::size_t>((plot.bottom - plot.top) / LegendLine) - 1;
    return std::min(plot.families.GroupRows.size(), room);
}

std::string LegendText(const Plot& plot, std::size_t group) {
    return OthersText(plot, &RowOf(plot, plot.families.GroupRows[group]));
}

/// What the legend has no room for.
std::string MoreText(const Plot& plot) {
    const std::size_t more = plot.families.GroupRows.size() - LegendLines(plot);
    return more == 0 ? "" : "and " + std::to_string(more) + " more";
}

void DrawLegend(std::vector<Stroke>& strokes, const Plot& plot) {
    const double left = plot.right + 24;
    double y = plot.top;
    strokes.push_back(Label(Plot::Width - 10, plot.top - LineHeight - 6, OthersText(plot, nullptr),
                            Align::Right));
    for (std::size_t group = 0; group < LegendLines(plot); ++group, y += LegendLine) {
        strokes.push_back(Marker({left, y + TextMiddle}, static_cast<int>(group)));
        strokes.push_back(Label(left + 16, y, LegendText(plot, group), Align::Left));
    }
    const std::string more = MoreText(plot);
    if (!more.empty()) strokes.push_back(Label(left + 16, y, more, Align::Left));
}

double LongestLabel(const std::vector<double>& ticks) {
    std::size_t longest = 0;
    for (const double tick : ticks)
        longest = std::max(longest, NumberText(tick).size());
    return CharacterWidth * static_cast<double>(longest);
}

double LegendWidth(const Plot& plot) {
    if (!HasLegend(plot)) return 0;
    std::size_t longest = MoreText(plot).size();
    for (std::size_t group = 0; group < LegendLines(plot); ++group)
        longest = std::max(longest, LegendText(plot, group).size());
    return 45 + CharacterWidth * static_cast<double>(longest);
}

constexpr double NoteLine = LineHeight + 3;

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
           const PlotFamilies& plotFamilies, bool bars)
    : table(plotTable), scale(plotScale), xVar(x), families(plotFamilies), showUnc(bars) {
    top = HasLegend(*this) || HasRings(*this) ? 76 : 45;
    bottom = 610;
    left = std::clamp(25 + LongestLabel(scale.TicksY()), 80.0, 220.0);
    right = Width - 25 - std::clamp(LegendWidth(*this), 0.0, 330.0);
}

std::vector<Stroke> PlotPicture(const Plot& plot) {
    std::vector<Stroke> strokes;
    if (plot.scale.Empty) return strokes;
    DrawTicksX(strokes, plot);
    DrawTicksY(strokes, plot);
    DrawFrame(strokes, plot);
    DrawPoints(strokes, plot);
    if (HasLegend(plot)) DrawLegend(strokes, plot);
    return strokes;
}

std::optional<PlotPlace> PlaceOf(const Plot& plot, int point) {
    if (plot.scale.Empty) return std::nullopt;
    const auto x = plot.scale.PositionX(XOf(plot, point));
    const auto y = plot.scale.PositionY(RowOf(plot, point)[0]);
    const auto seen = [](double position) {
        return position > 1 - Farthest && position < Farthest;
    };
    if (!x || !y || !seen(*x) || !seen(*y)) return std::nullopt;
    return PlotPlace{Across(plot, *x), Down(plot, *y)};
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
    return "(" + NumberText(XOf(plot, point)) + ", " + NumberText(RowOf(plot, point)[0]) + ")";
}

std::string RowText(const Plot& plot, int point) {
    return "Row " + std::to_string(plot.table.PointRow[At(point)]) +
           (plot.table.PointFar[At(point)] ? ", look again" : "");
}

std::vector<Stroke> PointMark(const Plot& plot, int point) {
    const auto place = PlaceOf(plot, point);
    if (!place) return {};
    Stroke reticle = Marker(*place, 0);
    reticle.colour = 0;
    reticle.marker = ui::Picture::Reticle;
    std::vector<Stroke> strokes{reticle};
    const std::string texts[] = {PointText(plot, point), RowText(plot, point)};
    const Note note = FreestNote(plot, *place, std::max(texts[0].size(), texts[1].size()));
    double y = note.top;
    for (const std::string& text : texts) {
        strokes.push_back(Label(note.isLeft ? note.right : note.left, y, text,
                                note.isLeft ? Align::Right : Align::Left));
        strokes.back().boxed = true;
        y += NoteLine;
    }
    return strokes;
}

} // namespace vexora
