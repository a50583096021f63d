#pragma once

#include <cstddef>
#include <utility>

#include "globals/PlotTable.h"

namespace vexora {

/// The column of the first property and that of the first variable, or the next one where there is
/// none; what a plot begins with. The table must have columns.
std::pair<std::size_t, std::size_t> FirstColumns(const ColumnsToPlot& table);

/// One column against another; rows without one of the two values are no points. Rows that agree
/// in the other variables, as many as a plot has room for, lie on one curve.
PlotTable PointsOf(const ColumnsToPlot& table, std::size_t y, std::size_t x);

} // namespace vexora
