#include "plot/PlotLegend.h"

#include <algorithm>

#include "reference/Numbers.h"

namespace vexora {

namespace {

using Align = ui::Picture::Align;

constexpr double LegendLine = 28;
constexpr double TextIndent = 16;
constexpr double Widest = 330;
constexpr double LargestShare = 0.4;  // of the surface
constexpr std::size_t MostLines = 19; // that any picture has room for

void Append(std::string& text, const std::string& part) {
    if (!part.empty()) text += (text.empty() ? "" : ", ") + part;
}

/// The variables that are the same along a family: their names, or their values at a point.
std::string OthersText(const Plot& plot, const PlotTable::Row* row) {
    std::string text;
    for (int n = 1; n <= plot.table.nVar; ++n) {
        if (n == plot.xVar || (plot.table.IsTriangle() && n <= 2)) continue;
        Append(text, row ? NumberText((*row)[static_cast<std::size_t>(n)]) : plot.table.NameOf(n));
    }
    return text;
}

/// The limits of the class that a value belongs to; open at the ends.
std::string ClassText(const Plot& plot, double value) {
    const std::vector<double> bounds = ClassBounds(plot.table);
    const auto above = std::upper_bound(bounds.begin(), bounds.end(), value);
    if (bounds.empty()) return NumberText(value);
    if (above == bounds.begin()) return "below " + NumberText(*above);
    const std::string from = NumberText(*(above - 1));
    return above == bounds.end() ? "from " + from : from + " to " + NumberText(*above);
}

std::string LegendText(const Plot& plot, int group) {
    const auto point =
        static_cast<std::size_t>(plot.families.GroupRows[static_cast<std::size_t>(group)]);
    const PlotTable::Row& row = plot.table.PointTable[point];
    if (plot.table.IsTriangle() && !plot.table.YName.empty()) return ClassText(plot, row[0]);
    std::string text;
    if (plot.table.SeriesNames.size() > 1)
        text = plot.table.SeriesNames[static_cast<std::size_t>(plot.table.PointSeries[point])];
    Append(text, OthersText(plot, &row));
    return text;
}

std::string MoreText(std::size_t more) {
    return more == 0 ? "" : "and " + std::to_string(more) + " more";
}

} // namespace

bool HasLegend(const Plot& plot) {
    return plot.families.GroupRows.size() > 1;
}

double LegendWidth(const Plot& plot) {
    if (!HasLegend(plot)) return 0;
    const std::vector<int> order = FamiliesByValue(plot.table, plot.xVar, plot.families);
    const std::size_t shown = std::min(order.size(), MostLines);
    std::size_t longest = MoreText(order.size() - shown).size();
    for (std::size_t line = 0; line < shown; ++line)
        longest = std::max(longest, LegendText(plot, order[line]).size());
    return std::min({45 + CharacterWidth * static_cast<double>(longest), Widest,
                     LargestShare * plot.size.width});
}

void DrawLegend(PlotStrokes& strokes, const Plot& plot, PlotPlace place, double bottom) {
    const std::vector<int> order = FamiliesByValue(plot.table, plot.xVar, plot.families);
    const auto room = static_cast<std::size_t>((bottom - place.y) / LegendLine) - 1;
    const std::size_t shown = std::min({order.size(), MostLines, room});
    const std::string head = OthersText(plot, nullptr);
    if (!head.empty())
        strokes.push_back(
            PlotLabel({plot.size.width - 10, place.y - LineHeight - 6}, head, Align::Right));
    for (std::size_t line = 0; line < shown; ++line, place.y += LegendLine) {
        strokes.push_back(PlotMarker({place.x, place.y + TextMiddle}, order[line]));
        strokes.push_back(
            PlotLabel({place.x + TextIndent, place.y}, LegendText(plot, order[line]), Align::Left));
    }
    const std::string more = MoreText(order.size() - shown);
    if (!more.empty())
        strokes.push_back(PlotLabel({place.x + TextIndent, place.y}, more, Align::Left));
}

bool HasRings(const Plot& plot) {
    const auto& far = plot.table.PointFar;
    return std::find(far.begin(), far.end(), true) != far.end();
}

void DrawRingLegend(PlotStrokes& strokes, const Plot& plot, PlotPlace place) {
    if (!HasRings(plot)) return;
    strokes.push_back(PlotRing({place.x + 14, place.y + TextMiddle}));
    strokes.push_back(
        PlotLabel({place.x + 36, place.y}, "far from its neighbours: look again", Align::Left));
}

} // namespace vexora
