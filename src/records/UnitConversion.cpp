#include "records/UnitConversion.h"

#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora {

bool UnitConversion::ChangesValues() const {
    // "*" is no unit: it says that a factor stands for one.
    return factor > 0 || (!IsSystemUnit(code) && code != "*");
}

bool UnitConversion::IsPossible() const {
    if (factor > 0) return true;
    return IsKnownConversion(code) && (!IsMassBased(code) || molarMass > 0);
}

double UnitConversion::Absolute(double value) const {
    return ToSystem(code, value, factor, molarMass);
}

double UnitConversion::Difference(double value) const {
    return Absolute(value) - Absolute(0);
}

std::string UnitConversion::DifferenceText(const std::string& typed) const {
    if (!ChangesValues() || !IsNumeric(typed)) return typed;
    const double system = Difference(Val(typed));
    // 0 is a unit that is not known, or a zero whose digits only the typed text shows.
    return system == 0 ? typed : FormatValue(system, SignificantDigits(typed));
}

} // namespace vexora
