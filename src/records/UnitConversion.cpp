#include "records/UnitConversion.h"

#include "reference/Conversions.h"
#include "reference/Numbers.h"

#include <algorithm>
#include <cmath>

namespace vexora {

namespace {

// Degrees Celsius without a point: the offset has two decimals, and 298.15 K is what was meant.
constexpr int LeastKelvinDigits = 5;

/// `value` with at least `digits` digits, and as many more as it takes that the way back leads to
/// the source text.
template <class Back>
std::string TextThatComesBack(double value, int digits, std::string_view source, Back back) {
    constexpr int mostDigits = 15; // of a double
    // In units of the last place; a little less than a fifth, for a double is no decimal number.
    constexpr double tolerance = 0.2 - 1e-9;
    const double typed = Val(source);
    const double nearness = tolerance * LastPlace(source);
    std::string text = FormatValue(value, digits);
    while (digits < mostDigits && std::abs(back(Val(text)) - typed) >= nearness)
        text = FormatValue(value, ++digits);
    return text;
}

} // namespace

bool UnitConversion::ChangesValues() const {
    // "*" is no unit: it says that a factor stands for one.
    return factor > 0 || (!IsSystemUnit(code) && code != "*");
}

bool UnitConversion::IsPossible() const {
    if (factor > 0) return true;
    return IsConversionOf(code, unit) && (!IsMassBased(code) || molarMass > 0);
}

double UnitConversion::Absolute(double value) const {
    return ToSystem(code, value, factor, molarMass);
}

double UnitConversion::Difference(double value) const {
    return Absolute(value) - Absolute(0);
}

double UnitConversion::Entered(double system, bool isDifference) const {
    const double entered = FromSystem(code, system, factor, molarMass);
    return isDifference ? entered - FromSystem(code, 0, factor, molarMass) : entered;
}

ConvertedNumber UnitConversion::Converted(std::string_view typed, int count,
                                          bool isDifference) const {
    const int ofText = SignificantDigits(typed);
    ConvertedNumber number{std::string(typed), count > 0 ? count : ofText};
    if (!ChangesValues() || !IsNumeric(typed)) return number;
    const bool hasOffset = !isDifference && factor <= 0 && IsTemperatureOffset(code);
    const double entered = Val(typed);
    if (entered == 0 && !hasOffset) return number;
    if (hasOffset) number.digits += TemperatureDigits(typed, code) - ofText;
    const double system = isDifference ? Difference(entered) : Absolute(entered);
    if (system == 0) { // no first digit to count from
        number.text = FormatFixed(0, DecimalPlaces(typed));
        return number;
    }
    int shown = std::max(1, number.digits);
    const bool isWhole = typed.find('.') == std::string_view::npos;
    if (hasOffset && code == "C" && isWhole) shown = std::max(shown, LeastKelvinDigits);
    number.text = TextThatComesBack(
        system, shown, typed, [&](double shownValue) { return Entered(shownValue, isDifference); });
    return number;
}

std::string UnitConversion::DifferenceText(const std::string& typed) const {
    return Converted(typed, 0, true).text;
}

std::string UnitConversion::EnteredText(std::string_view system) const {
    if (!ChangesValues() || !IsNumeric(system)) return std::string(system);
    const double entered = Entered(Val(system), false);
    // A scale with another zero shows other digits, but as many of them behind the point.
    const bool hasOffset = factor <= 0 && IsTemperatureOffset(code);
    const std::string whole = FormatFixed(entered, DecimalPlaces(system));
    if (Val(whole) == 0) return Val(system) == 0 ? std::string(system) : whole;
    const int digits = hasOffset ? SignificantDigits(whole) : SignificantDigits(system);
    return TextThatComesBack(entered, std::max(1, digits), system,
                             [this](double shown) { return Absolute(shown); });
}

std::string UnitConversion::EnteredDifferenceText(const std::string& system) const {
    const double value = Val(system);
    if (!ChangesValues() || !IsNumeric(system) || value == 0) return system;
    const double entered = Entered(value, true);
    if (entered == 0 || Difference(1) == 1) return system;
    return TextThatComesBack(entered, SignificantDigits(system), system,
                             [&](double shown) { return Difference(shown); });
}

} // namespace vexora
