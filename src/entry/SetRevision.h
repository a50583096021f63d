// What the dialogs that define a set of rows have in common: what goes when a quantity of the set
// becomes another one, and the way to the table of its rows.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Control.h"

namespace vexora {

class clsData;
class clsMV;
class DataSet;

/// Whether a row states something of one quantity, 0 the property; of the property its evaluated
/// uncertainty counts as well.
bool HasStatements(const clsData& row, int item);
/// The same for any row of a set.
bool HasStatements(const DataSet& set, int item);
/// Takes from a row what it states of a quantity that is another one now.
void DropStatements(clsData& row, int item);

/// Asks whether what rows state of the quantities of these names may go; No leads to the control.
bool AskToDropStatements(ui::Control& field, const std::string& names);
/// Asks whether so many rows of a set that is said to have no numbers may go.
bool AskToDropRows(ui::Control& field, std::size_t rows);

/// Opens a dialog with a table as a link of the chain behind the form; true when it was accepted.
/// The property chain and the chain of dialogs are then as they were before.
bool EnterTable(ui::Control& field, std::string_view table);

/// Opens the table on a set, as a link of the chain behind the form; true when it was accepted. The
/// working context is then as it was before, for the table makes its own.
bool EnterRows(ui::Control& field, const std::shared_ptr<DataSet>& set, bool includeDigits);

/// Opens the table of sets that share tie lines, in the same way. They have to stand in the
/// document as the table is to show them.
bool EnterTiedRows(ui::Control& field, const std::vector<std::shared_ptr<clsMV>>& sets);

} // namespace vexora
