#include <cmath>
#include <optional>
#include <string>

#include "Target.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora::fuzz {

namespace {

void TryNumber(std::string_view text, double value) {
    Must(std::isfinite(value), "a number is finite");
    Must(Val(text) == value || text.find_first_of(" \t") != text.npos,
         "Val reads what NumberIn reads");
    Must(Equal(value, NumberIn(NumberText(value)).value_or(NAN)),
         "NumberText gives the number back");
    const std::optional<double> normal = NumberIn(NormalizeNumber(text));
    Must(normal && Equal(value, *normal), "a normalized number keeps its value");
    Must(NormalizeNumber(NormalizeNumber(text)) == NormalizeNumber(text),
         "a normalized number stays as it is");
    Must(IsNumeric(FormatDigits(text, SignificantDigits(text))), "a formatted number is a number");
    Must(LastPlace(text) >= 0 && DecimalPlaces(text) >= 0, "places are counted from 0");
}

} // namespace

// A code of a unit may stand in front of the number, parted by a line feed.
void Try(std::string_view text) {
    const std::size_t end = text.find('\n');
    const std::string_view code = end == text.npos ? std::string_view() : text.substr(0, end);
    if (end != text.npos) text.remove_prefix(end + 1);
    const std::optional<double> value = NumberIn(text);
    Must(IsNumeric(text) == value.has_value(), "IsNumeric and NumberIn agree");
    if (value) TryNumber(text, *value);
    const double any = Val(text);
    Must(std::isfinite(any), "Val is finite");
    ToInteger(any);
    ParseInteger(text);
    TemperatureDigits(text, code);
    FormatDigits(text, static_cast<int>(text.size() % 20));
    for (const double molarMass : {0.0, 18.01528}) {
        FromSystem(code, ToSystem(code, any, 0, molarMass), 0, molarMass);
        FromSystem(code, ToSystem(code, any, 1000, molarMass), 1000, molarMass);
    }
}

} // namespace vexora::fuzz
