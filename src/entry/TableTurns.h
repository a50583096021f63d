#pragma once

#include <optional>
#include <string>

#include "entry/TableColumns.h"
#include "grid/TableUndo.h"

namespace vexora {

/// Turns a two-dimensional table, with the second variable in its top row and the first in its left
/// column, into one row for each cell that holds a value: first variable, second variable, value.
/// A top row whose corner is missing counts from the second column on. The answer is the text that
/// stood in the corner; nothing, and nothing changes, when there is no such table in the grid. A
/// grid that was wider for the printed table becomes as narrow as the columns are.
/// Papers print functions of two variables so. It is one step of the history; statements, which
/// such a table has no room for, are lost.
std::optional<std::string> TurnTwoDimensional(TableUndo& table, const TableColumns& columns);

/// Moves the selected block below the last row that holds something, its first column coming to
/// stand in the first one. False when the block is empty or nothing else stands in the table. The
/// grid becomes narrower as above.
/// For tables that a paper prints in two halves side by side.
bool MoveBlockBelow(TableUndo& table, const TableColumns& columns);

} // namespace vexora
