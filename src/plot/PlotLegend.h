#pragma once

#include "plot/PlotPicture.h"

namespace vexora {

/// There is more than one family to be told apart.
bool HasLegend(const Plot& plot);
/// In units of the surface, 0 for none.
double LegendWidth(const Plot& plot);
/// The families by rising value, one below the other from `place` on, what is the same along each
/// above them. What has no room above `bottom` is counted.
void DrawLegend(PlotStrokes& strokes, const Plot& plot, PlotPlace place, double bottom);

/// What the ring around a point says; nothing where no point has one.
void DrawRingLegend(PlotStrokes& strokes, const Plot& plot, PlotPlace place);
bool HasRings(const Plot& plot);

} // namespace vexora
