// Numbers in and out of text, the only place where they meet. Values are kept as the text typed,
// because the digits typed are part of the datum; a double appears only inside a calculation.
// Point is ".", no locale is ever asked.
// Formats of the C library follow the locale of the desktop and would read "1,5" or write "1.5" by
// it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexora {

/// True for [+-]?(digits[.digits*] | .digits)([eE][+-]?digits)? of a finite double, blanks around
/// it allowed. No thousands marks, hex, inf or nan.
/// "1." and ".5" are numbers; "1E400" is none, "1E-400" is 0.
bool IsNumeric(std::string_view text);
/// The value of a text for which IsNumeric is true, else nothing.
std::optional<double> NumberIn(std::string_view text);
/// Value of the longest numeric beginning after removal of all blanks; else 0.
/// "12 kPa" is 12: what follows the number is passed over, a typing mistake too.
double Val(std::string_view text);
/// Both zero, or the same but for what a conversion rounds (1e-9 of the first).
bool Equal(double a, double b);
/// Shortest text within 15 significant digits; plain for 1e-15 <= |v| < 1e15, else "1.5E+20".
/// A value that is not finite gives "0".
/// 15 digits are those that every double gives back unharmed (DBL_DIG).
std::string NumberText(double v);
/// v with exactly `decimals` places (0 or more), rounded half away from zero on its 15 significant
/// digits; places past the 15th digit are "0". Never "-0"; not finite gives "0".
std::string FormatFixed(double v, int decimals);
/// Whole number of a trimmed text [+-]?digits that fits 64 bits.
std::optional<std::int64_t> ParseInteger(std::string_view text);
/// Rounded half to even, saturated at the bounds; 0 for not-a-number.
/// 0.5 gives 0 and 1.5 gives 2, so that no side is preferred.
std::int64_t ToInteger(double v);

/// Makes a typed or pasted number readable: trims, turns "," into ".", the minus sign U+2212
/// into "-", cuts blanks, puts "0" before a leading ".". The character that moves into the place of
/// a cut blank is not looked at, so of two adjacent blanks one stays. A comma that parts thousands
/// is read as a decimal point here; whoever pastes tables tells of it.
std::string NormalizeNumber(std::string_view text);
/// Digits shown behind the point, 0 to 255, exponent taken into account. A mantissa without point
/// counts one place too many ("1e-3" is 4): stored uncertainties depend on it.
/// Places beyond 255 do not occur in measured data; the bound keeps an absurd exponent small.
int DecimalPlaces(std::string_view text);
/// Digits from the first non-zero one on, exponent left out; 0 means unknown ("0.0").
/// Trailing zeros of an integer count, for nobody can tell whether they were meant.
int SignificantDigits(std::string_view text);
/// SignificantDigits; for the unit codes "C" and "F" raised by the integer digits that the offset
/// to kelvin adds.
/// 25.0 in degrees Celsius has three digits; 298.2 K, with the same decimals, has four.
int TemperatureDigits(std::string_view text, std::string_view unitCode);
/// One unit of the last digit shown: 0.01 for "1.25", 1 for "1200", 10 for "7.6e2".
double LastPlace(std::string_view text);

/// The value of the text at `digits` significant digits (0: as many as the text has). Integer
/// digits are never zeroed, no exponent is ever used.
/// 1234.5 at two digits is "1235", not "1200": a table prints what was measured.
std::string FormatDigits(std::string_view text, int digits);
/// Same for a double; 0 digits: as many as NumberText shows.
std::string FormatValue(double v, int digits);

} // namespace vexora
