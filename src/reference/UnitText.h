// How units read, on forms, in the tree and in the reading pane alike.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The factor that stands for a unit: the user's own, or the code itself when it is a number; 0 for
/// none.
/// A record may hold a number in the place of a unit code.
double FactorInUnit(std::string_view code, double factor);

/// A conversion code with its factor as the user reads it: the name of the unit, also where only
/// its factor stands in the record; "2.5* kPa" for a factor of nobody else; the code itself where
/// no table knows it.
std::string UnitText(const std::string& systemUnit, std::string_view code, double factor);

/// A number with its unit, which "1" and "Dimensionless" are none: "3.54 kPa", "3.54 (2.5* kPa)".
std::string NumberWithUnit(const std::string& number, const std::string& unitText);

} // namespace vexora
