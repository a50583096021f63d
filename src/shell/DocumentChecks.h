#pragma once

#include "records/clsR.h"

namespace vexora {

/// Findings on a document that is about to be saved; saving goes on.

/// Compounds that came from a file and have no sample are left out of the file. The last compound
/// without a sample decides.
bool LosesCompounds(const clsR& source);

} // namespace vexora
