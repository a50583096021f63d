#include "chem/clsProperty.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

#include "chem/PropertyLimits.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

// One-sided 95 % factors of Student's distribution for 1 to 10 degrees of freedom.
// JCGM 100:2008, table G.2, the column of 90 per cent two-sided.
constexpr std::array<double, 10> StudentFactor = {
    6.313751515, 2.91998558,  2.353363435, 2.131846786, 2.015048373,
    1.943180281, 1.894578605, 1.859548038, 1.833112933, 1.812461123};

// Below this level of confidence [per cent] a figure is a standard deviation.
// One standard deviation of a normal distribution covers 68.27 per cent (JCGM 100:2008, table G.1).
constexpr double ExpandedLevel = 70;

/// A bare "%" is what is left of a figure that was cleared.
bool IsStated(std::string_view statement) {
    const std::string_view text = Trim(statement);
    return !text.empty() && text != "%";
}

/// Coverage factor 2 for about 95 per cent (JCGM 100:2008, 6.3.3). A level of 0 was not given: then
/// the figure is taken for a standard deviation.
double Expanded(double figure, double level) {
    return level < ExpandedLevel ? 2 * figure : figure;
}

// A repeatability becomes an expanded figure. The index runs one ahead of the degrees of freedom:
// two repetitions read the second factor.
double ExpandedRepeatability(double figure, int kind, double repetitions) {
    // A single measurement is brought to the mean, with n (n - 1) and not the n of JCGM 100:2008,
    // 4.2.3, so that figures agree with those evaluated before.
    if (kind > 0 && repetitions > 1) figure /= std::sqrt(repetitions * (repetitions - 1));
    if (repetitions > 10) return figure * 1.8;
    if (repetitions < 2) return figure * 2;
    return figure * StudentFactor[static_cast<std::size_t>(repetitions) - 1];
}

// Sum of squares of the statements; the author's figure is a floor and is not added.
double SumOfSquares(const clsProperty& item) {
    double sum = 0;
    const auto add = [&sum](double u) { sum += u * u; };
    if (IsStated(item.DS)) add(Expanded(StatedFigure(item.DS, item.Value), item.DSLevel));
    if (IsStated(item.Rep)) {
        const double n = Val(item.nRep);
        add(ExpandedRepeatability(StatedFigure(item.Rep, item.Value), item.replevel, n));
    }
    // A root mean square has no level; it enters as it stands.
    if (IsStated(item.CD)) add(StatedFigure(item.CD, item.Value));
    if (IsStated(item.Unc)) {
        // The author has seen device and scatter already: to add them would count them twice.
        const double u = Expanded(StatedFigure(item.Unc, item.Value), item.unclevel);
        sum = std::max(sum, u * u);
    }
    return sum;
}

bool IsConverted(const clsProperty& item) {
    return item.Relation == "A" || item.Relation == "D";
}

/// The image of an interval [system unit]: the offset of a scale cancels, 1 degree Celsius wide is
/// 1 K wide.
double Difference(const clsProperty& unit, double value, double molarMass) {
    return ToSystem(unit.ConversionCode, value, unit.Factor, molarMass) -
           ToSystem(unit.ConversionCode, 0, unit.Factor, molarMass);
}

/// Mole (X), mass (W) and volume (V) fractions of a component by number.
bool IsFractionOfComponent(std::string_view code) {
    if (code.empty() || std::string_view("XWV").find(code.front()) == std::string_view::npos) {
        return false;
    }
    return code.back() >= '1' && code.back() <= '3';
}

bool IsCappedFraction(std::string_view code) {
    if (code.empty() || (code.front() != 'X' && code.front() != 'W')) return false;
    return code.size() == 1 || std::isdigit(static_cast<unsigned char>(code[1])) != 0;
}

// A fraction cannot be less certain than its distance to the nearer end allows.
void CapFraction(clsProperty& item) {
    if (item.Relation != "A") return;
    // x and 1 - x are equally uncertain, so per cent are meant of the smaller one.
    const double distance = 0.5 - std::abs(0.5 - item.SystemValue);
    if (IsFractionOfComponent(item.PropertyCode) && item.PrecisionText.ends_with('%')) {
        item.SystemPrecision = std::abs(Val(item.PrecisionText) * distance) / 100;
    }
    if (IsCappedFraction(item.PropertyCode)) {
        item.SystemPrecision = std::min(item.SystemPrecision, distance);
    }
}

/// What a row says goes before what its set says.
void TakeSetDefaults(clsProperty& item) {
    if (!IsStated(item.DS)) item.DS = item.masterds;
    if (!IsStated(item.Rep)) item.Rep = item.masterrep;
    if (!IsStated(item.Unc)) item.Unc = item.masterunc;
    if (item.nRep.empty() && item.masternrep > 0) item.nRep = std::to_string(item.masternrep);
}

std::string ValueInWords(const clsProperty& item) {
    return "Value " + NumberText(item.SystemValue) + " " + item.Name;
}

bool Put(const ConfirmValue& confirm, const clsProperty& item, const std::string& text,
         bool isQuestion) {
    if (!confirm) return false;
    return confirm({item.PropertyCode + " " + item.Name, item.SystemValue, text, isQuestion});
}

bool PassesLimits(clsProperty& item, const ConfirmValue& confirm) {
    bool ok = true;
    item.Validate(ok);
    if (!ok) {
        Put(confirm, item, ValueInWords(item) + " is not valid", false);
        // The mark by which Convert knows that nothing follows from it.
        item.SystemValue = 0;
        return false;
    }
    item.Check(ok);
    return ok ||
           Put(confirm, item, ValueInWords(item) + " is suspicious\nIs that all right?", true);
}

} // namespace

double StatedFigure(std::string_view statement, double value) {
    const std::string_view text = Trim(statement);
    if (!text.ends_with('%')) return Val(text);
    return Val(text.substr(0, text.size() - 1)) * value / 100;
}

void clsProperty::Validate(bool& ok) const {
    ok = Relation != "A" || IsValidValue(PropertyCode, SystemValue);
}

void clsProperty::Check(bool& ok) const {
    ok = Relation != "A" || IsPlausibleValue(PropertyCode, SystemValue);
}

void clsProperty::Convert(bool& ok, double molarMass, const ConfirmValue& confirm) {
    ok = true;
    Text = std::string(Trim(Text));
    if (!Text.empty()) Value = Val(Text);
    if (Relation.empty()) Put(confirm, *this, "No relation", false);
    SystemValue = Value;
    if (Relation == "A") SystemValue = ToSystem(ConversionCode, Value, Factor, molarMass);
    if (Relation == "D") SystemValue = Difference(*this, Value, molarMass);
    if (Relation == "A" && !PassesLimits(*this, confirm)) {
        ok = false;
        // A suspicious value is evaluated all the same: the caller may show its figures.
        if (SystemValue == 0) return;
    }
    PRECISION = IsStated(PrecisionText) ? std::abs(StatedFigure(PrecisionText, Value)) : 0;
    TakeSetDefaults(*this);
    const double sum = SumOfSquares(*this);
    if (sum > 0) PRECISION = std::sqrt(sum);
    SystemPrecision = PRECISION;
    if (IsConverted(*this)) SystemPrecision = std::abs(Difference(*this, PRECISION, molarMass));
    CapFraction(*this);
    // Per entered unit of the variable becomes per system unit; an unknown unit has width 0.
    const double one = IsConverted(*this) ? Difference(*this, 1, molarMass) : 1;
    if (Der != 0 && one != 0) Der /= one;
}

void clsProperty::ConvertDer(double molarMass) {
    if (!IsConverted(*this)) return;
    for (clsProperty* item = this; !item->isLast && item->NextItem; item = item->NextItem.get()) {
        item->NextItem->Der = Difference(*this, item->NextItem->Der, molarMass);
    }
}

void clsProperty::Copy(const clsProperty& source) {
    std::shared_ptr<clsProperty> next;
    if (!source.isLast && source.NextItem) {
        next = std::make_shared<clsProperty>();
        next->Copy(*source.NextItem);
    }
    *this = source;
    NextItem = next;
}

std::string EvaluateUncertainty(clsProperty& head, double molarMass, const ConfirmValue& confirm) {
    head.LastDigit = DecimalPlaces(head.Text);
    bool ok = true;
    head.Convert(ok, molarMass, confirm);
    if (!ok) return "Error";
    head.ConvertDer(molarMass);
    for (clsProperty* item = &head; !item->isLast && item->NextItem;) {
        item = item->NextItem.get();
        item->Convert(ok, molarMass, confirm);
        if (!ok) return "Error";
    }
    return {};
}

} // namespace vexora
