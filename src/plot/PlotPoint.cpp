#include "plot/PlotPoint.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "plot/PlotTriangle.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using Align = ui::Picture::Align;

constexpr double NoteLine = LineHeight + 3;

std::size_t At(int point) {
    return static_cast<std::size_t>(point);
}

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
    const PlotTable::Row& row = plot.RowOf(point);
    if (plot.table.IsTriangle())
        return CompositionText(plot.table, row) +
               (plot.ShowsValues() ? ": " + NumberText(row[0]) : "");
    return "(" + NumberText(row[static_cast<std::size_t>(plot.xVar)]) + ", " + NumberText(row[0]) +
           ")";
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
    ui::Picture::Stroke reticle = PlotMarker(*place, 0);
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
