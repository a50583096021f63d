#pragma once

#include <optional>
#include <string>

#include "plot/PlotFamilies.h"
#include "plot/PlotScale.h"
#include "plot/PlotStrokes.h"

namespace vexora {

/// What a plot is drawn from; frmGraph owns the parts. The frame leaves room for the labels.
struct Plot {
    static constexpr double Width = 1000, Height = 700; // of the drawing surface

    Plot(const PlotTable& plotTable, const PlotScale& plotScale, int x,
         const PlotFamilies& plotFamilies, bool bars, bool ties = true);

    const PlotTable& table;
    const PlotScale& scale;
    int xVar = 1;
    const PlotFamilies& families;
    bool showUnc = true;
    bool showTies = true;                            // join points that coexist
    double left = 0, right = 0, top = 0, bottom = 0; // of the frame
};

/// The whole plot: frame, labelled ticks, bars of uncertainty, lines that join coexisting points, a
/// marker for each point in the colour and shape of its family, a ring around one to be looked at
/// again, hollow markers with the names of the pure components, and the families' legend. Points
/// just outside the frame are faint. Nothing for empty axes. A triangle has no bars; few points of
/// a property bear their values.
PlotStrokes PlotPicture(const Plot& plot);

/// Where a point is drawn; nothing for one that is not.
std::optional<PlotPlace> PlaceOf(const Plot& plot, int point);
/// A place of the surface in positions on the two axes.
PlotPlace PositionsAt(const Plot& plot, PlotPlace place);

/// The drawn point nearest to a place; nothing when none is drawn.
std::optional<int> NearestPoint(const Plot& plot, PlotPlace place);
/// "(X, Y)" of a point; in a triangle its fractions, and the property behind them.
std::string PointText(const Plot& plot, int point);
/// "Row 12", its series, and whether it is to be looked at again.
std::string RowText(const Plot& plot, int point);
/// What is laid over the plot to point at a point: its values and its row beside it.
PlotStrokes PointMark(const Plot& plot, int point);

} // namespace vexora
