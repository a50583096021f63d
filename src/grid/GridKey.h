#pragma once

#include "grid/TableUndo.h"
#include "ui/Key.h"

namespace vexora {

/// The keys that all tables share, on the selected block: Ctrl+A selects all rows, Ctrl+D fills
/// downward, Delete and Ctrl+X empty the cells (Ctrl+X after copying them), the keys -, * and / of
/// the number pad change the sign, multiply and divide by ten with all digits kept. Cells that hold
/// no number are passed over by the last three. A key that was used is swallowed.
/// Only the keys of the number pad scale: the same signs among the letters begin a number.
void GridKey(TableUndo& table, ui::Key& key);

/// Empties the cells of the selected block.
/// Fixed cells, the heads, are passed over.
void EmptySelection(TableUndo& table);

/// Selects the cell, or the one nearest to it behind the fixed ones.
void SelectCell(ui::Grid& grid, int row, int column);

} // namespace vexora
