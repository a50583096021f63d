#pragma once

#include <string>
#include <vector>

#include "tables/PhaseEquilibria.h"
#include "tables/ProcessHeads.h"
#include "tables/ThermalFunctions.h"

namespace vexora {

/// What processing would make of a table, line by line for a pane beside it: of each set its
/// property, how many rows it gets, its variables, phases and constants; or what is missing.
std::vector<std::string> PreviewOf(const ProcessTable& table, const PhaseAnalysis& analysis,
                                   const ProcessHeads& heads);
std::vector<std::string> PreviewOf(const ProcessTable& table, const ThermalAnalysis& analysis,
                                   const ProcessHeads& heads);

} // namespace vexora
