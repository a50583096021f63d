#pragma once

#include <span>

#include "entry/TableColumns.h"
#include "ui/Grid.h"

namespace vexora {

/// What the set states for all rows, by the columns whose empty cells it stands for; without the
/// sign of per cent that the head of the column bears. `statements` are those of the items.
ui::Grid::ColumnTexts StatedTexts(const TableColumns& columns, std::span<const clsX> statements);

/// The second line of the heads: quantity and unit of a value, the unit of what is stated of it.
ui::Grid::ColumnTexts HeadNotes(const TableColumns& columns, std::span<const clsX> statements);

} // namespace vexora
