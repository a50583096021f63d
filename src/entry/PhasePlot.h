#pragma once

#include <memory>

#include "entry/PlotColumns.h"

namespace vexora {

/// The set whose table is to be seen: as the record has it, and a copy with the rows as they stand,
/// one for each point of `table`, the plot of its own columns.
struct SetInHand {
    const DataSet& record;
    const DataSet& asItStands;
    const PlotTable& table;
    bool original = true; // cells stand in the units of the paper
};

/// What a mixture set shows together with the other sets of its system: for a binary the coexisting
/// phases, temperature or pressure against the composition of each; for a ternary the composition
/// triangle, with the phases of all sets or, for another property, the points of this one. Each
/// point needs two fractions of one phase there. Phases of one state are tied. Null when the set
/// does not tell enough, and for fractions of no whole, as molalities are.
std::shared_ptr<PlotTable> PhasePlot(const SetInHand& hand, const SetSurroundings& around);

} // namespace vexora
