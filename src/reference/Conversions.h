// Values between the unit that a paper used and the system unit of their quantity. A conversion is
// named by a code: a built-in letter or unit word, a number (the factor itself), or a row of the
// table `Conversions`. Codes are compared with exact case: "K" and "k" are different units.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// The value in the system unit. `factor` > 0 (the operator's own factor, 0 = none) replaces the
/// code. `molarMass` [g/mol] serves the mass-based codes; 0 makes them 0. "S", "D", "", "&" and "*"
/// leave the value as it is; an unknown code gives 0.
/// An uncertainty is converted as a difference, ToSystem(u) - ToSystem(0), in which the offset of a
/// temperature scale cancels; a value on its own is not.
double ToSystem(std::string_view code, double value, double factor, double molarMass);
/// The inverse. A mass-based code with no positive molar mass, an unknown code or one with factor 0
/// gives 0.
/// 0 stands for "not possible" here: callers ask IsKnownConversion and the molar mass first.
double FromSystem(std::string_view code, double value, double factor, double molarMass);

/// What one entered unit is in system units: the built-in constant (per 1 g/mol where the code is
/// mass-based), the number that the code itself is, or the row's FACTOR (of this system unit, when
/// one is named); 0 if there is none, 1 for a code that means the system unit.
/// For "C" and "F" it is the width of one degree in kelvin, without the offset.
/// With a system unit named, 0 for a code that is no unit of that quantity.
double ConversionFactor(std::string_view code, std::string_view unit = {});

/// The listed unit that is just so many of this system unit, the first row in table order; "" for
/// none and for a factor of 1. A unit with an offset or by mass is no mere factor.
/// A record file keeps of a unit without a letter no more than its factor, to the 15 digits that
/// NumberText writes.
std::string UnitOfFactor(double factor, std::string_view unit);

/// The codes whose constants stand in the program, in their order.
std::vector<std::string_view> BuiltInConversions();
/// True for the codes that need the molar mass: Z G P B z Y N.
bool IsMassBased(std::string_view code);
/// True for the codes that stand for the system unit: "S", "D", "", "&".
bool IsSystemUnit(std::string_view code);
/// True for the codes whose value carries an offset against the system unit: "C" and "F".
/// A converted value needs more digits there than were typed (Numbers.h, ConvertedDigits).
bool IsTemperatureOffset(std::string_view code);
/// True for a single letter: a code that record lines keep as it is.
/// "*", the operator's own factor, and "&", an empty field, are no units.
bool IsUnitLetter(std::string_view code);
/// True for every other code but "*": numbers and unit words, which record lines replace by "S"
/// and a factor.
bool IsUnitLong(std::string_view code);
/// True when ToSystem knows the code, by heart or by a row.
bool IsKnownConversion(std::string_view code);
/// True when values of a quantity with this system unit may stand in the code: "K" is kgf/cm2, and
/// so no unit of a temperature. It takes a row for both, but for a number and for what leaves
/// values as they are. Without a system unit, IsKnownConversion.
bool IsConversionOf(std::string_view code, std::string_view unit);
/// The code that a unit field stands for: "S" for the text of the system unit itself, else as it
/// is.
std::string_view CodeInField(std::string_view field, std::string_view unit);

/// The unit text of a code, of this system unit when one is named; "" if there is none. "X" is
/// always "*8.31451". Of two texts of a letter the last is shown. In the context "React" a code
/// with a blank that has no row gets its old first letter replaced ("Z" by "S", "G" by "J") for the
/// caller's next call. A number may be the code of units of several quantities; the system unit
/// tells them apart.
std::string ConversionText(std::string& code, std::string_view unit, std::string_view context = {});
/// The code of a unit text (of this system unit when one is named); "S" when there is none, and for
/// every text with an apostrophe.
/// "J/K/g" is offered per mole and per mass, so the system unit should be named. Exact case: "mPa"
/// and "MPa" are apart by 1e9.
std::string ConversionCodeOf(std::string_view text, std::string_view unit = {});
/// The units offered for a system unit, itself first; "Dimensionless" alone for "1", with per cent
/// and its like where the code of the quantity is that of a fraction or of a ratio to a solvent:
/// refractive index and compressibility factor share the unit.
/// In table order, by which the table can put the usual ones first.
std::vector<std::string> UnitList(std::string_view unit, std::string_view quantity = {});
/// Only the system unit, or "Dimensionless" for "1".
std::vector<std::string> FixedUnitList(std::string_view unit);

} // namespace vexora
