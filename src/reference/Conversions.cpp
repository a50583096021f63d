#include "reference/Conversions.h"

#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/VocabularyTables.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vexora {

namespace {

enum class Kind { Multiply, Divide, PerMass, PerMassKilo, Kilo, Celsius, Fahrenheit };

/// How a built-in code leads to the system unit; PerMass kinds take the molar mass M [g/mol],
/// Kilo kinds divide by 1000.
struct BuiltIn {
    std::string_view code;
    Kind kind;
    double constant;
};

// Constants: defined calories (4.184 and 4.1868 J), the gas constant of CODATA 1986, standard
// atmosphere and pound definitions, rounded as the stored data were entered with.
// To change a figure here would move every stored value that was entered with its code. 255.372 K
// is 0 degrees Fahrenheit, 273.15 - 32 / 1.8.
constexpr std::array<BuiltIn, 49> BuiltInFactors{{
    {"C", Kind::Celsius, 273.15},
    {"F", Kind::Fahrenheit, 255.372},
    {"R", Kind::Divide, 1.8},
    {"T", Kind::Multiply, 0.133322},
    {"I", Kind::Multiply, 3.386739},
    {"A", Kind::Multiply, 101.325},
    {"a", Kind::Divide, 101.325},
    {"L", Kind::Multiply, 6.894757},
    {"K", Kind::Multiply, 98.0665},
    {"k", Kind::Divide, 98.0665},
    {"V", Kind::Divide, 16.01847},
    {"v", Kind::Multiply, 16.01847},
    {"U", Kind::Divide, 16018.47},
    {"u", Kind::Multiply, 16018.47},
    {"Z", Kind::PerMassKilo, 1},
    {"G", Kind::PerMassKilo, 4.184},
    {"J", Kind::Multiply, 4.184},
    {"P", Kind::PerMassKilo, 4.1868},
    {"Q", Kind::Multiply, 4.1868},
    {"B", Kind::PerMassKilo, 2.326},
    {"M", Kind::Kilo, 2.326},
    {"z", Kind::PerMass, 1},
    {"Y", Kind::PerMass, 4.184},
    {"E", Kind::Multiply, 4.184},
    {"N", Kind::PerMass, 4.1868},
    {"H", Kind::Multiply, 4.1868},
    {"W", Kind::Multiply, 418.4},
    {"x", Kind::Multiply, 418.68},
    {"y", Kind::Multiply, 1.163},
    {"w", Kind::Multiply, 1.73073},
    {"X", Kind::Multiply, 8.31451},
    {"mPa", Kind::Multiply, 0.000001},
    {"Pa", Kind::Multiply, 0.001},
    {"MegaPa", Kind::Multiply, 1000},
    {"bar", Kind::Multiply, 100},
    {"mbar", Kind::Multiply, 0.1},
    {"J/mol", Kind::Multiply, 0.001},
    {"dm3/mol", Kind::Multiply, 0.001},
    {"cm3/mol", Kind::Multiply, 0.000001},
    {"mm3/mol", Kind::Multiply, 0.000000001},
    {"g/cm3", Kind::Multiply, 1000},
    {"mW/m/K", Kind::Multiply, 0.001},
    {"Poise", Kind::Multiply, 0.1},
    {"mPa*s", Kind::Multiply, 0.001},
    {"centiStoke", Kind::Multiply, 0.000001},
    {"J/K/cm3", Kind::Multiply, 1000000},
    {"Hz", Kind::Multiply, 0.000001},
    {"kHz", Kind::Multiply, 0.001},
    {"GHz", Kind::Multiply, 1000},
}};

/// The units of one letter, by the letter: nearly all values have one of them, or the system unit.
constexpr std::array<const BuiltIn*, 128> Letters = [] {
    std::array<const BuiltIn*, 128> letters{};
    for (const BuiltIn& unit : BuiltInFactors)
        if (unit.code.size() == 1) letters[static_cast<std::size_t>(unit.code[0])] = &unit;
    return letters;
}();

const BuiltIn* FindBuiltIn(std::string_view code) {
    if (code.size() == 1) {
        const auto letter = static_cast<unsigned char>(code[0]);
        return letter < Letters.size() ? Letters[letter] : nullptr;
    }
    const auto* found = std::ranges::find(BuiltInFactors, code, &BuiltIn::code);
    return found == BuiltInFactors.end() ? nullptr : found;
}

/// To the system unit. 1000 in the kilo kinds turns J into kJ.
double Forward(const BuiltIn& unit, double value, double molarMass) {
    switch (unit.kind) {
    case Kind::Multiply:
        return value * unit.constant;
    case Kind::Divide:
        return value / unit.constant;
    case Kind::PerMass:
        return value * unit.constant * molarMass;
    case Kind::PerMassKilo:
        return value * unit.constant * molarMass / 1000;
    case Kind::Kilo:
        return value * unit.constant / 1000;
    case Kind::Celsius:
        return value + unit.constant;
    case Kind::Fahrenheit:
        return value / 1.8 + unit.constant;
    }
    return 0;
}

/// From the system unit; nothing follows per mass without a molar mass.
double Backward(const BuiltIn& unit, double value, double molarMass) {
    if (IsMassBased(unit.code) && molarMass <= 0) return 0;
    switch (unit.kind) {
    case Kind::Multiply:
        return value / unit.constant;
    case Kind::Divide:
        return value * unit.constant;
    case Kind::PerMass:
        return value / unit.constant / molarMass;
    case Kind::PerMassKilo:
        return value / unit.constant / molarMass * 1000;
    case Kind::Kilo:
        return value / unit.constant * 1000;
    case Kind::Celsius:
        return value - unit.constant;
    case Kind::Fahrenheit:
        return (value - unit.constant) * 1.8;
    }
    return 0;
}

bool IsOfUnit(const ConversionRow& row, std::string_view unit) {
    return unit.empty() || row.Unit == unit;
}

/// FACTOR of the row with exactly this code (and unit, when named).
double RowFactor(std::string_view code, std::string_view unit) {
    for (const ConversionRow* row :
         Kept(&VocabularyTables::Conversions).With(&ConversionRow::ConversionCode, code))
        if (row->ConversionCode == code && IsOfUnit(*row, unit)) return row->FACTOR;
    return 0;
}

/// Contents without a unit: mole, mass and volume fractions of a component (X1), of it in a state
/// (WE2) or in the solvent (V1S), and of a participant of a reaction (X); ratios to a solvent (Q1),
/// which papers print as g in 100 g.
bool IsFractionOrRatio(std::string_view code) {
    if (code == "X" || code == "XI") return true;
    if (code.empty() || std::string_view("XWVOQB").find(code.front()) == code.npos) return false;
    code.remove_prefix(1);
    if (!code.empty() && std::string_view("ULAEC").find(code.front()) != code.npos)
        code.remove_prefix(1);
    if (code.ends_with('S')) code.remove_suffix(1);
    return code == "1" || code == "2" || code == "3";
}

/// A code may be the factor itself.
double OuterFactor(std::string_view code) {
    return IsNumeric(code) ? Val(code) : RowFactor(code, {});
}

/// "*" without a factor leaves the value alone: its factor comes apart from the code.
bool IsIdentity(std::string_view code) {
    return code == "*" || IsSystemUnit(code);
}

} // namespace

double ToSystem(std::string_view code, double value, double factor, double molarMass) {
    // The operator's own unit goes before any table.
    if (factor > 0) return value * factor;
    if (const BuiltIn* unit = FindBuiltIn(code)) return Forward(*unit, value, molarMass);
    return IsIdentity(code) ? value : value * OuterFactor(code);
}

double FromSystem(std::string_view code, double value, double factor, double molarMass) {
    if (factor > 0) return value / factor;
    if (const BuiltIn* unit = FindBuiltIn(code)) return Backward(*unit, value, molarMass);
    if (IsIdentity(code)) return value;
    const double outer = OuterFactor(code);
    return outer == 0 ? 0 : value / outer;
}

double ConversionFactor(std::string_view code, std::string_view unit) {
    code = CodeInField(code, unit);
    if (IsIdentity(code)) return 1;
    if (!IsConversionOf(code, unit)) return 0;
    if (const BuiltIn* builtIn = FindBuiltIn(code)) {
        if (IsTemperatureOffset(code)) return code == "C" ? 1 : 1 / 1.8;
        return Forward(*builtIn, 1, 1);
    }
    return IsNumeric(code) ? Val(code) : RowFactor(code, unit);
}

std::string UnitOfFactor(double factor, std::string_view unit) {
    if (factor <= 0 || factor == 1) return {};
    const std::string written = NumberText(factor);
    for (const ConversionRow* row :
         Kept(&VocabularyTables::Conversions).With(&ConversionRow::Unit, unit)) {
        const std::string& code = row->ConversionCode;
        if (row->Unit != unit || IsTemperatureOffset(code) || IsMassBased(code)) continue;
        if (NumberText(ConversionFactor(code, unit)) == written) return row->Conversion;
    }
    return {};
}

std::vector<std::string_view> BuiltInConversions() {
    std::vector<std::string_view> codes;
    codes.reserve(std::size(BuiltInFactors));
    for (const BuiltIn& unit : BuiltInFactors)
        codes.push_back(unit.code);
    return codes;
}

bool IsMassBased(std::string_view code) {
    const BuiltIn* unit = FindBuiltIn(code);
    return unit && (unit->kind == Kind::PerMass || unit->kind == Kind::PerMassKilo);
}

bool IsSystemUnit(std::string_view code) {
    return code == "S" || code == "D" || IsBlankField(code);
}

bool IsTemperatureOffset(std::string_view code) {
    return code == "C" || code == "F";
}

bool IsUnitLetter(std::string_view code) {
    return CodePointCount(code) == 1 && !IsNumeric(code) && code != "*" && code != "&";
}

bool IsUnitLong(std::string_view code) {
    return !IsBlankField(code) && code != "*" && !IsUnitLetter(code);
}

bool IsKnownConversion(std::string_view code) {
    return IsConversionOf(code, {});
}

bool IsConversionOf(std::string_view code, std::string_view unit) {
    if (IsIdentity(code)) return true;
    if (IsNumeric(code)) return Val(code) != 0;
    if (unit.empty()) return FindBuiltIn(code) || RowFactor(code, {}) != 0;
    return RowFactor(code, unit) != 0;
}

std::string_view CodeInField(std::string_view field, std::string_view unit) {
    return !field.empty() && field == unit ? "S" : field;
}

std::string ConversionText(std::string& code, std::string_view unit, std::string_view context) {
    if (code == "X") return "*8.31451";
    bool none = true;
    std::string text; // of the last row, should there be several
    for (const ConversionRow* row :
         Kept(&VocabularyTables::Conversions).With(&ConversionRow::ConversionCode, code)) {
        if (!IsOfUnit(*row, unit)) continue;
        none = false;
        if (row->ConversionCode == code) text = row->Conversion;
    }
    if (none && context == "React" && code.find(' ') != std::string::npos) {
        if (code.front() == 'Z')
            code.front() = 'S';
        else if (code.front() == 'G')
            code.front() = 'J';
    }
    return text;
}

std::string ConversionCodeOf(std::string_view text, std::string_view unit) {
    // No unit text holds an apostrophe; what does is taken for the system unit.
    if (text.find('\'') != std::string_view::npos) return "S";
    for (const ConversionRow* row :
         Kept(&VocabularyTables::Conversions).With(&ConversionRow::Conversion, text))
        if (IsOfUnit(*row, unit)) return row->ConversionCode;
    return "S";
}

std::vector<std::string> UnitList(std::string_view unit, std::string_view quantity) {
    std::vector<std::string> list = FixedUnitList(unit);
    if (unit == "1" && !IsFractionOrRatio(quantity)) return list;
    for (const ConversionRow* row :
         Kept(&VocabularyTables::Conversions).With(&ConversionRow::Unit, unit))
        if (!IsSystemUnit(row->ConversionCode)) list.push_back(row->Conversion);
    return list;
}

// The unit "1" of the tables reads as a word, for "1" alone says nothing on a form.
std::vector<std::string> FixedUnitList(std::string_view unit) {
    return {unit == "1" ? "Dimensionless" : std::string(unit)};
}

} // namespace vexora
