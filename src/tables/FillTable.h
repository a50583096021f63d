#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tables/ProcessTable.h"

namespace vexora {

/// A table filled from stored sets, or why it cannot be.
struct FilledTable {
    ProcessTable table;
    std::string refusal; // "TIELINE error" ...; empty when all is well
};

/// The table from which these sets would be made: a column for each quantity, phase and unit; T and
/// P first, then the fractions phase by phase, combined uncertainties behind their column. Rows of
/// tied sets stand beside each other by their tie number. Processing it unchanged gives the same
/// sets again, to the digit.
/// All sets are of one mixture; see TiedSets.
FilledTable FillTable(const std::vector<std::shared_ptr<clsMV>>& sets);

} // namespace vexora
