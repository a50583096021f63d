#pragma once

#include "globals/PlotTable.h"
#include "plot/PlotStrokes.h"

namespace vexora {

/// A table as the plot first shows it, drawn for a surface of SmallPlotSize: without bars, without
/// values beside the points. Brings the points into their order. Nothing where nothing can be seen.
PlotStrokes SmallPlot(PlotTable& table);

} // namespace vexora
