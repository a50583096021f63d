#pragma once

#include <string>
#include <string_view>

#include "globals/PlotTable.h"

namespace vexora {

/// "Density" of "Density (kg/m3)".
std::string WithoutUnit(std::string_view caption);

/// A text of at most so many bytes, cut between letters, with dots for the rest.
std::string Shortened(const std::string& text, std::size_t most);

/// The path that is proposed for a saved picture: in the document's folder, named after the
/// document and the set, without what no file name may hold.
std::string ProposedName(const PlotTable& table);

} // namespace vexora
