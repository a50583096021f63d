#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vexora {

class clsMV;

/// Why these sets of one mixture cannot stand in one table of phase equilibria, for the user; empty
/// when they can. What the table has no place for would be lost with the first set made of it.
std::string WhyNotInTable(const std::vector<std::shared_ptr<clsMV>>& sets);

} // namespace vexora
