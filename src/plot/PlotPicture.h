#pragma once

#include <optional>
#include <string>
#include <vector>

#include "plot/PlotFamilies.h"
#include "plot/PlotScale.h"
#include "ui/Picture.h"

namespace vexora {

/// What a plot is drawn from; frmGraph owns the parts.
struct Plot {
    static constexpr double Width = 1000, Height = 700; // of the drawing surface

    const PlotTable& table;
    const PlotScale& scale;
    int xVar = 1;
    const PlotFamilies& families;
    bool showUnc = true;
};

struct PlotPlace {
    double x = 0, y = 0;
};

/// The whole plot: frame, labelled ticks, bars of uncertainty, a marker for each point in the
/// colour and shape of its family, and the families' legend. Nothing for empty axes.
std::vector<ui::Picture::Stroke> PlotPicture(const Plot& plot);

/// Where a point is drawn; nothing for one that is not.
std::optional<PlotPlace> PlaceOf(const Plot& plot, int point);
/// A place of the surface in positions on the two axes.
PlotPlace PositionsAt(const Plot& plot, PlotPlace place);

/// The drawn point nearest to a place; nothing when none is drawn.
std::optional<int> NearestPoint(const Plot& plot, PlotPlace place);
/// "(X, Y)" of a point.
std::string PointText(const Plot& plot, int point);

} // namespace vexora
