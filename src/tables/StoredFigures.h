#pragma once

#include <memory>
#include <vector>

#include "tables/PhaseEquilibria.h"
#include "tables/ProcessTable.h"

namespace vexora {

/// For stored sets whose figures stand partly in system units, or in another unit than a set that
/// shares the column: the table showed them converted. Where a cell is unchanged, the set made of
/// it takes up the stored figure itself, with its count of digits and its statements. Its units are
/// those of the stored set again, and values that were edited are brought into them. A set that no
/// stored one agrees with, or that has another unit now, stays as it is.
/// made are the sets of the analysis that have rows, in order.
void TakeUpStored(const ProcessTable& table, const PhaseAnalysis& analysis,
                  const std::vector<std::shared_ptr<clsMV>>& made);

} // namespace vexora
