#include "plot/SmallPlot.h"

#include "plot/PlotPicture.h"

namespace vexora {

PlotStrokes SmallPlot(PlotTable& table) {
    constexpr int xVar = 1;
    Arrange(table, xVar);
    PlotScale scale;
    scale.Ranges(table, xVar);
    const PlotFamilies families = FamiliesOf(table, xVar, TheSitting().Curves);
    return PlotPicture({table, scale, xVar, families, false, true, SmallPlotSize});
}

} // namespace vexora
