#include "plot/PlotTriangle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "plot/PlotLegend.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using Align = ui::Picture::Align;
using Fractions = std::array<double, 3>; // of 1

constexpr int Tenths = 10;
constexpr std::size_t LineLength = 28; // of a corner's name, in characters
constexpr double LegendTop = 76;
constexpr double LegendBottom = 392; // further down the triangle is too wide

/// Where the triangle stands on the surface. On a small one there is no title above it.
struct Frame {
    explicit Frame(const Plot& plot)
        : side(plot.IsSmall() ? 230 : 560), middle(plot.IsSmall() ? 210 : 450),
          base(plot.IsSmall() ? 256 : 592),
          top(base - side * std::sqrt(3.0) / 2), corners{{{middle, top},
                                                          {middle - side / 2, base},
                                                          {middle + side / 2, base}}} {}

    double side, middle, base, top;
    std::array<PlotPlace, 3> corners;
};

double WholeOf(const PlotTable& table) {
    return table.Whole[1] > 0 ? table.Whole[1] : 1;
}

Fractions FractionsOf(const PlotTable& table, const PlotTable::Row& row) {
    const double whole = WholeOf(table);
    const double first = row[1] / whole;
    const double second = row[2] / whole;
    return {first, second, 1 - first - second};
}

PlotPlace PlaceAt(const Frame& frame, const Fractions& fractions) {
    PlotPlace place;
    for (std::size_t n = 0; n < fractions.size(); ++n) {
        place.x += fractions[n] * frame.corners[n].x;
        place.y += fractions[n] * frame.corners[n].y;
    }
    return place;
}

/// The ends of the line along which component n has this fraction: on the side where its scale
/// stands, which is the one that leads to its corner with the corners counted around, and across.
struct GridLine {
    PlotPlace atScale, across;
};

GridLine LineOf(const Frame& frame, std::size_t n, double fraction) {
    // The scale of the top runs up the right side, that of the left corner down the left side, that
    // of the right corner along the base: each side from the corner before to its own.
    const std::size_t before = (n + 2) % 3;
    const std::size_t after = (n + 1) % 3;
    Fractions scale{}, other{};
    scale[n] = other[n] = fraction;
    scale[before] = other[after] = 1 - fraction;
    return {PlaceAt(frame, scale), PlaceAt(frame, other)};
}

/// Beyond the side, in the direction of the line, so that the eye follows it into the triangle.
void DrawScale(PlotStrokes& strokes, const Frame& frame, std::size_t n, double whole) {
    constexpr Align aligns[] = {Align::Left, Align::Right, Align::Centre};
    constexpr PlotPlace shifts[] = {{5, -LineHeight / 2}, {-4, -LineHeight + 6}, {-6, 2}};
    for (int tenth = 1; tenth < Tenths; ++tenth) {
        const double fraction = static_cast<double>(tenth) / Tenths;
        const GridLine line = LineOf(frame, n, fraction);
        const double length = frame.side * (1 - fraction);
        const double x = (line.atScale.x - line.across.x) / length * TickLength;
        const double y = (line.atScale.y - line.across.y) / length * TickLength;
        const PlotPlace tick{line.atScale.x + x, line.atScale.y + y};
        strokes.push_back(PlotLine(line.across, line.atScale, Faint));
        strokes.push_back(PlotLine(line.atScale, tick));
        strokes.push_back(PlotLabel({tick.x + shifts[n].x, tick.y + shifts[n].y},
                                    NumberText(Val(FormatFixed(fraction * whole, 6))), aligns[n]));
        strokes.back().yields = true;
    }
}

void DrawCorner(PlotStrokes& strokes, const Frame& frame, std::size_t n, const std::string& name) {
    const std::vector<std::string> lines = CornerLines(name);
    const auto count = static_cast<double>(lines.size());
    double y = n == 0 ? frame.top - 6 - count * LineHeight : frame.base + TickLength + 30;
    for (const std::string& line : lines) {
        strokes.push_back(PlotLabel({frame.corners[n].x, y}, line, Align::Centre));
        y += LineHeight;
    }
}

/// No cut within a letter of several bytes.
std::size_t WholeLetters(const std::string& name, std::size_t most) {
    while (most > 0 && most < name.size() && (name[most] & 0xC0) == 0x80)
        --most;
    return most;
}

/// The last place at or before `most` where a name may be broken; `most` when it has none.
std::size_t BreakOf(const std::string& name, std::size_t most) {
    for (std::size_t at = most; at > most / 3; --at)
        if (std::string_view(" -,)").find(name[at - 1]) != std::string_view::npos) return at;
    return WholeLetters(name, most);
}

} // namespace

void DrawTriangle(PlotStrokes& strokes, const Plot& plot) {
    const PlotTable& table = plot.table;
    const Frame frame(plot);
    const std::size_t corners = frame.corners.size();
    for (std::size_t n = 0; n < corners; ++n)
        DrawScale(strokes, frame, n, WholeOf(table));
    for (std::size_t n = 0; n < corners; ++n) {
        strokes.push_back(PlotLine(frame.corners[n], frame.corners[(n + 1) % corners]));
        DrawCorner(strokes, frame, n, table.Corners[n]);
    }
    if (!plot.IsSmall()) {
        strokes.push_back(PlotLabel({10, HeadLine}, table.Title, Align::Left));
        DrawRingLegend(strokes, plot, {10, HeadLine + LineHeight + 6});
    }
    if (!HasLegend(plot)) return;
    const PlotPlace place{plot.size.width - 10 - LegendWidth(plot),
                          plot.IsSmall() ? HeadLine : LegendTop};
    DrawLegend(strokes, plot, place, plot.IsSmall() ? frame.base / 2 : LegendBottom);
}

PlotPlace PlaceInTriangle(const Plot& plot, const PlotTable::Row& row) {
    return PlaceAt(Frame(plot), FractionsOf(plot.table, row));
}

double LeastFraction(const PlotTable& table, const PlotTable::Row& row) {
    return std::ranges::min(FractionsOf(table, row));
}

ui::Picture::Stroke ValueLabel(const Plot& plot, const PlotTable::Row& row) {
    constexpr double beside = 12;
    const Frame frame(plot);
    PlotPlace place = PlaceInTriangle(plot, row);
    const bool isLeft = place.x < frame.middle;
    const bool isOnBase = place.y > frame.base - LineHeight / 2; // the text would be struck through
    place.x += isLeft ? beside : -beside;
    place.y -= isOnBase ? LineHeight : LineHeight / 2;
    auto label = PlotLabel(place, NumberText(row[0]), isLeft ? Align::Left : Align::Right);
    label.yields = true;
    return label;
}

std::string CompositionText(const PlotTable& table, const PlotTable::Row& row) {
    constexpr int digits = 10; // the difference from the whole is no rounder than that
    const double third = Val(FormatFixed(WholeOf(table) - row[1] - row[2], digits));
    return "(" + NumberText(row[1]) + ", " + NumberText(row[2]) + ", " + NumberText(third) + ")";
}

std::vector<std::string> CornerLines(const std::string& name) {
    if (name.size() <= LineLength) return {name};
    const std::size_t end = BreakOf(name, LineLength);
    std::string first = name.substr(0, end);
    if (first.ends_with(' ')) first.pop_back();
    std::string second = name.substr(end);
    if (second.size() > LineLength)
        second = second.substr(0, WholeLetters(second, LineLength - 3)) + "...";
    return {first, second};
}

} // namespace vexora
