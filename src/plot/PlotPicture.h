#pragma once

#include <optional>
#include <string>
#include <vector>

#include "plot/PlotFamilies.h"
#include "plot/PlotScale.h"
#include "ui/Picture.h"

namespace vexora {

/// What a plot is drawn from; frmGraph owns the parts. The frame leaves room for the labels.
struct Plot {
    static constexpr double Width = 1000, Height = 700; // of the drawing surface

    Plot(const PlotTable& plotTable, const PlotScale& plotScale, int x,
         const PlotFamilies& plotFamilies, bool bars);

    const PlotTable& table;
    const PlotScale& scale;
    int xVar = 1;
    const PlotFamilies& families;
    bool showUnc = true;
    double left = 0, right = 0, top = 0, bottom = 0; // of the frame
};

struct PlotPlace {
    double x = 0, y = 0;
};

/// The whole plot: frame, labelled ticks, bars of uncertainty, a marker for each point in the
/// colour and shape of its family, a ring around one to be looked at again, and the families'
/// legend. Points just outside the frame are faint. Nothing for empty axes.
std::vector<ui::Picture::Stroke> PlotPicture(const Plot& plot);

/// Where a point is drawn; nothing for one that is not.
std::optional<PlotPlace> PlaceOf(const Plot& plot, int point);
/// A place of the surface in positions on the two axes.
PlotPlace PositionsAt(const Plot& plot, PlotPlace place);

/// The drawn point nearest to a place; nothing when none is drawn.
std::optional<int> NearestPoint(const Plot& plot, PlotPlace place);
/// "(X, Y)" of a point.
std::string PointText(const Plot& plot, int point);
/// "Row 12", and whether it is to be looked at again.
std::string RowText(const Plot& plot, int point);
/// What is laid over the plot to point at a point: its values and its row beside it.
std::vector<ui::Picture::Stroke> PointMark(const Plot& plot, int point);

} // namespace vexora
