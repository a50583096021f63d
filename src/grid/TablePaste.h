#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "grid/TableUndo.h"

namespace vexora {

/// A text table cleaned for a grid: "," is a decimal point, runs of blanks and tabs part columns,
/// line ends part rows. The notices name what the cleaning had to guess or could not mend, one for
/// each kind of trouble with its first place; a plain table has none.
struct PastedTable {
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> notices;
    /// Columns up to the last one that holds something.
    std::size_t Columns() const;
};

PastedTable CleanTable(std::string_view text);

/// Writes the block from this cell on, the grid growing downward as it needs to; false, and nothing
/// is written, when it has more columns than the grid has from there on.
bool PasteTable(TableUndo& table, const PastedTable& block, int row, int column);

} // namespace vexora
