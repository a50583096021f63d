// Query helpers shared by the look-ups of this room: they turn "no database" into "no rows".
#pragma once

#include "reference/ReferenceDatabases.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// The rows of a query of the vocabulary; nothing without a database.
std::optional<Recordset> LocalRows(std::string_view sql, const SqlValues& values = {});
/// Field of the first row, "" if there is none.
std::string LocalText(std::string_view sql, const SqlValues& values, std::string_view field);
/// That field of all rows.
std::vector<std::string> LocalTexts(std::string_view sql, const SqlValues& values,
                                    std::string_view field);
/// Column that tells whether a row is offered in a context; "" where no column does.
std::string_view ContextColumn(std::string_view context);
/// True when the row is offered in the context; every row where no column tells.
bool IsOffered(const Recordset& row, std::string_view context);

} // namespace vexora
