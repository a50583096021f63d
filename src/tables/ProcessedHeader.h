#pragma once

#include "records/clsA.h"

namespace vexora {

class clsR;

/// The header of a set made of a table: by whom and when as for every new datum, a method that
/// nobody has told yet. Source null: not known where the paper was taken from.
clsA ProcessedHeader(const clsR* source);

} // namespace vexora
