// Numbers in and out of text, the only place where they meet. Values are kept as the text typed,
// because the digits typed are part of the datum; a double appears only inside a calculation.
// Point is ".", no locale is ever asked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexora {

/// True for [+-]?(digits[.digits*] | .digits)([eE][+-]?digits)? of a finite double, blanks around
/// it allowed. No thousands marks, hex, inf or nan.
bool IsNumeric(std::string_view text);
/// Value of the longest numeric beginning after removal of all blanks; else 0.
double Val(std::string_view text);
/// Shortest text within 15 significant digits; plain for 1e-15 <= |v| < 1e15, else "1.5E+20".
/// A value that is not finite gives "0".
std::string NumberText(double v);
/// v with exactly `decimals` places (0 or more), rounded half away from zero on its 15 significant
/// digits; places past the 15th digit are "0". Never "-0"; not finite gives "0".
std::string FormatFixed(double v, int decimals);
/// Whole number of a trimmed text [+-]?digits that fits 64 bits.
std::optional<std::int64_t> ParseInteger(std::string_view text);
/// Rounded half to even, saturated at the bounds; 0 for not-a-number.
std::int64_t ToInteger(double v);

/// Makes a typed or pasted number readable: trims, turns "," into ".", cuts blanks, puts "0" before
/// a leading ".". The character that moves into the place of a cut blank is not looked at, so of
/// two adjacent blanks one stays.
std::string NormalizeNumber(std::string_view text);
/// Digits shown behind the point, 0 to 255, exponent taken into account. A mantissa without point
/// counts one place too many ("1e-3" is 4): stored uncertainties depend on it.
int DecimalPlaces(std::string_view text);
/// Digits from the first non-zero one on, exponent left out; 0 means unknown ("0.0").
int SignificantDigits(std::string_view text);
/// SignificantDigits; for the unit codes "C" and "F" raised by the integer digits that the offset
/// to kelvin adds.
int TemperatureDigits(std::string_view text, std::string_view unitCode);
/// Digits to show for `converted`, made from `typed` in unit `unitCode`: TemperatureDigits for "C"
/// and "F", and then at least as many decimals as were typed; else SignificantDigits.
int ConvertedDigits(std::string_view typed, std::string_view unitCode, double converted);

/// The value of the text at `digits` significant digits (0: as many as the text has). Integer
/// digits are never zeroed, no exponent is ever used.
std::string FormatDigits(std::string_view text, int digits);
/// Same for a double; 0 digits: as many as NumberText shows.
std::string FormatValue(double v, int digits);
/// A converted value printed at ConvertedDigits; exactly 0 keeps the typed text.
std::string FormatConverted(std::string_view typed, std::string_view unitCode, double converted);

} // namespace vexora
