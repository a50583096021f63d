#pragma once

#include <array>

#include "export/Statements.h"
#include "records/clsX.h"

namespace vexora {

/// What a set gives to the export of its rows: how values and statements of each quantity are
/// converted (0 the property, 1 to 3 the variables), and its statements for rows without their own.
struct RowExport {
    struct Quantity {
        ExportUnit unit; // converts tells of the statements of the set; a row has its own flag
        clsX item;
    };
    std::array<Quantity, 4> quantities;
    bool lacksRepeatability = false; // announced, but without a figure in some row
};

} // namespace vexora
