#pragma once

#include <memory>
#include <vector>

#include "globals/PlotTable.h"
#include "tables/PhaseEquilibria.h"
#include "tables/ThermalFunctions.h"

namespace vexora {

/// Pictures of a table before its sets are made, in the units of its columns. Rows count from 1; a
/// point knows its column as well. What is no number yet is left out.

/// The phase diagrams of a mixture, one leading to the next. Of a binary temperature or pressure
/// against the composition of each phase, and the gas against the liquid; of a ternary the triangle
/// with its tie lines. Null where the heads tell no such thing or no row has the values for it.
std::shared_ptr<PlotTable> PhaseDiagrams(const ProcessTable& table, const clsM& mixture);

/// Columns of a table to be seen against each other.
struct ColumnView {
    int property = -1, uncertainty = -1; // uncertainty -1 for none
    std::vector<int> variables;          // empty: against the number of the row
};
/// The sets to be made; where the analysis finds fault, each described column against temperature
/// and pressure, or else against the first composition.
std::vector<ColumnView> ViewsOf(const ProcessTable& table, const PhaseAnalysis& analysis);
std::vector<ColumnView> ViewsOf(const ProcessTable& table, const ThermalAnalysis& analysis);
/// One picture for each view that has points, one leading to the next; null for none. Mixture null:
/// of a pure compound.
std::shared_ptr<PlotTable> ColumnPlots(const ProcessTable& table,
                                       const std::vector<ColumnView>& views, const clsM* mixture);

} // namespace vexora
