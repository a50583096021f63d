#pragma once

#include <optional>
#include <string>

#include "plot/PlotFamilies.h"
#include "plot/PlotScale.h"
#include "plot/PlotStrokes.h"

namespace vexora {

/// The drawing surface of a plot. Texts have their size whatever the surface is: on a small one a
/// unit takes as much of the screen, and there are fewer of them.
struct PlotSize {
    double width = 1000, height = 700;
};
inline constexpr PlotSize SmallPlotSize{560, 340};

/// What a plot is drawn from; who shows it owns the parts. The frame leaves room for the labels.
struct Plot {
    Plot(const PlotTable& plotTable, const PlotScale& plotScale, int x,
         const PlotFamilies& plotFamilies, bool bars, bool ties = true, PlotSize surface = {});

    const PlotTable::Row& RowOf(int point) const;
    /// A property of a triangle, which has no axis of its own.
    bool ShowsValues() const;
    bool IsSmall() const { return size.width < PlotSize().width; }
    /// What the picture is of: compounds and property. Empty on a small surface.
    std::string Heading() const;

    const PlotTable& table;
    const PlotScale& scale;
    int xVar = 1;
    const PlotFamilies& families;
    bool showUnc = true;
    bool showTies = true; // join points that coexist
    PlotSize size;
    double left = 0, right = 0, top = 0, bottom = 0; // of the frame
    double head = HeadLine;                          // of the first line below the heading
};

/// The whole plot: its heading, frame, labelled ticks, bars of uncertainty, lines that join
/// coexisting points, a marker for each point in the colour and shape of its family, a ring around
/// one to be looked at again, hollow markers with the names of the pure components, and the
/// families' legend. Points just outside the frame are faint. Nothing for empty axes. A triangle
/// has no bars; few points of a property bear their values, but not on a small surface.
PlotStrokes PlotPicture(const Plot& plot);

/// Where a point is drawn; nothing for one that is not.
std::optional<PlotPlace> PlaceOf(const Plot& plot, int point);
/// A place of the surface in positions on the two axes.
PlotPlace PositionsAt(const Plot& plot, PlotPlace place);

} // namespace vexora
