#pragma once

#include "entry/PlotColumns.h"

namespace vexora {

/// Adds what the document holds of the two pure components of a binary set: values of the same
/// property and phase at each temperature and pressure of the plot, for temperatures and pressures
/// of phase equilibrium the boiling states. Nothing for a plot without a column of fractions, and
/// for columns of further variables, at which no pure value can be told to hold.
void AddPureEnds(PlotTable& table, const PlotColumns& columns, const DataSet& set,
                 const SetSurroundings& around);

} // namespace vexora
