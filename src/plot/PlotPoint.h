#pragma once

#include <optional>
#include <string>

#include "plot/PlotPicture.h"

namespace vexora {

// A point of a plot that is pointed at, and what is told of it.

/// The drawn point nearest to a place; nothing when none is drawn.
std::optional<int> NearestPoint(const Plot& plot, PlotPlace place);
/// "(X, Y)" of a point; in a triangle its fractions, and the property behind them.
std::string PointText(const Plot& plot, int point);
/// "Row 12", its series, and whether it is to be looked at again.
std::string RowText(const Plot& plot, int point);
/// What is laid over the plot to point at a point: its values and its row beside it.
PlotStrokes PointMark(const Plot& plot, int point);

} // namespace vexora
