// Formulas as chemists print them.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// Counts in lowered digits: "C7H6O2" is "C₇H₆O₂", "CuSO4*5H2O" is "CuSO₄*5H₂O". Any text is taken;
/// figures that count no atoms stay as they are.
std::string PrintedFormula(std::string_view formula);

} // namespace vexora
