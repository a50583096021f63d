#include "reference/UnitText.h"

#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

constexpr const char* Dimensionless = "Dimensionless";

} // namespace

double FactorInUnit(std::string_view code, double factor) {
    return factor <= 0 && IsNumeric(code) ? Val(code) : factor;
}

std::string UnitText(const std::string& systemUnit, std::string_view code, double factor) {
    const bool isOne = systemUnit == "1"; // of a dimensionless quantity
    std::string known(code);
    if (factor <= 0 && !IsSystemUnit(code)) { // a number may be the code of a named unit
        std::string text = ConversionText(known, systemUnit);
        if (!text.empty()) return text;
    }
    factor = FactorInUnit(code, factor);
    if (std::string named = UnitOfFactor(factor, systemUnit); !named.empty()) return named;
    // The star says "times": the typed value times the factor is in the unit behind it.
    if (factor > 0) return NumberText(factor) + (isOne ? "*" : "* " + systemUnit);
    if (isOne) return Dimensionless;
    return IsSystemUnit(code) ? systemUnit : std::string(code);
}

std::string NumberWithUnit(const std::string& number, const std::string& unitText) {
    if (unitText.empty() || unitText == "1" || unitText == Dimensionless) return number;
    const bool hasFactor = unitText.ends_with('*') || unitText.find("* ") != std::string::npos;
    return number + (hasFactor ? " (" + unitText + ")" : " " + unitText);
}

} // namespace vexora
