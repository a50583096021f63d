#pragma once

#include <string>
#include <vector>

#include "tables/ProcessTable.h"

namespace vexora {

/// What the first rows of a pasted block say about its columns.
struct GuessedHeads {
    int rows = 0;                       // how many rows are headings, 0 for none
    std::vector<ProcessColumn> columns; // one a column; not described where it is not sure
};

/// The names that a heading may use for the components of a mixture, in their order.
struct NamedComponents {
    std::vector<std::string> names, formulas;
    int MixType() const { return static_cast<int>(names.size()); } // 1 for a pure compound
};

/// Reads headings as papers print them ("T/K", "t / °C", "p/kPa", "x1", "w1''",
/// "Cp / J·K-1·mol-1"): quantity, unit and phase. Nothing is proposed where it is not sure.
/// rows are the first rows of a block, cells as texts.
GuessedHeads GuessHeads(const std::vector<std::vector<std::string>>& rows,
                        const NamedComponents& components);

} // namespace vexora
