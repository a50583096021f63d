#include "tables/HeadingUnit.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "chem/UnitMeasure.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "tables/HeadingText.h"
#include "tables/ProcessTable.h"

namespace vexora {

namespace {

bool IsLike(double a, double b) {
    return std::fabs(a - b) <= 1e-9 * std::fabs(b);
}

std::string SystemUnitOf(std::string_view quantity) {
    std::string unit = UnitOfProperty(quantity);
    return unit.empty() ? UnitOfVariable(quantity) : unit;
}

/// Scales with an offset are told by name, and no factor stands in front of them.
std::optional<HeadingUnit> ReadTemperature(std::string_view text) {
    const std::string name = Replace(Replace(LowerAscii(text), " ", ""), ".", "");
    if (IsOneOf(name, {"k", "\u00b0k", "degk", "kelvin", "kelvins"})) return HeadingUnit{"S", {}};
    if (IsOneOf(name, {"c", "\u00b0c", "degc", "oc", "^oc", "celsius", "\u00b0celsius",
                       "degreescelsius", "degreecelsius"}))
        return HeadingUnit{"C", {}};
    if (IsOneOf(name, {"f", "\u00b0f", "degf", "^of", "fahrenheit", "\u00b0fahrenheit"}))
        return HeadingUnit{"F", {}};
    if (IsOneOf(name, {"\u00b0r", "degr", "rankine", "\u00b0rankine"})) return HeadingUnit{"R", {}};
    return std::nullopt;
}

struct Alias {
    std::string_view printed, name;
};

// What papers write for the names that the tables know.
constexpr Alias Aliases[] = {
    {"deg", "K"},     {"degK", "K"},   {"degC", "K"},     {"Kelvin", "K"},   {"kpa", "kPa"},
    {"KPa", "kPa"},   {"Kpa", "kPa"},  {"Mpa", "MPa"},    {"torr", "torr"},  {"TORR", "torr"},
    {"Bar", "bar"},   {"bars", "bar"}, {"Atm", "atm"},    {"psia", "psi"},   {"l", "L"},
    {"liter", "L"},   {"litre", "L"},  {"ml", "mL"},      {"gmol", "mol"},   {"mole", "mol"},
    {"moles", "mol"}, {"mols", "mol"}, {"joule", "J"},    {"joules", "J"},   {"cals", "cal"},
    {"mmhg", "mmHg"}, {"gram", "g"},   {"grams", "g"},    {"Kcal", "kcal"},  {"Kj", "kJ"},
    {"KJ", "kJ"},     {"kj", "kJ"},    {"mmole", "mmol"}, {"kmole", "kmol"},
};

std::string_view NameOf(std::string_view printed) {
    const auto* alias = std::ranges::find(Aliases, printed, &Alias::printed);
    return alias == std::end(Aliases) ? printed : alias->name;
}

/// Reads a product of units as papers print them into the one grammar of the tables: "J/K/mol".
/// unit: [number ["^" power]] { ["*" | "." | "/"] (name | "(" names ")") [["^"] power] }
class UnitReader {
public:
    /// behindSlash: one slash divides by all that follows it, as in "J/mol K".
    UnitReader(std::string_view plain, bool behindSlash)
        : tokens_(HeadingTokens(plain)), behindSlash_(behindSlash) {}

    std::optional<std::string> Read() {
        double number = 1;
        if (!AtEnd() && Token().kind == HeadingToken::Kind::Number) number = LeadingNumber();
        if (!Product(false) || !AtEnd() || factors_.empty()) return std::nullopt;
        return Written(number);
    }

private:
    struct Factor {
        std::string name;
        int power;
    };

    bool AtEnd() const { return at_ >= tokens_.size(); }
    const HeadingToken& Token() const { return tokens_[at_]; }
    bool Take(std::string_view text) {
        const bool found = !AtEnd() && Token().text == text;
        if (found) ++at_;
        return found;
    }

    double LeadingNumber() {
        const double base = Val(tokens_[at_++].text);
        const bool isRaised = Take("^");
        const double power = isRaised ? Power() : 1;
        Take("*");
        return std::pow(base, power);
    }

    /// Behind a name: "-1", "^-1", "^2", "2"; 1 where there is none.
    int Power() {
        const std::size_t from = at_;
        Take("^");
        const bool isNegative = Take("-");
        if (AtEnd() || Token().kind != HeadingToken::Kind::Number) {
            at_ = from;
            return 1;
        }
        const int power = static_cast<int>(Val(tokens_[at_++].text));
        return isNegative ? -power : power;
    }

    bool Product(bool isInside) {
        bool isDivided = false;
        while (!AtEnd()) {
            if (isInside && Token().text == ")") return true;
            const bool divides = Take("/");
            if (!divides && !Take("*")) Take(".");
            isDivided = divides || (behindSlash_ && isDivided);
            if (!OneFactor(isDivided ? -1 : 1)) return false;
            if (!behindSlash_) isDivided = false;
        }
        return !isInside;
    }

    bool OneFactor(int sign) {
        if (AtEnd()) return false;
        if (Take("(") || Take("[")) return Group(sign);
        if (Token().text == "\u00b0") ++at_; // of a degree
        if (AtEnd() || Token().kind != HeadingToken::Kind::Word) return false;
        std::string name(NameOf(tokens_[at_++].text));
        TakeApart(name, sign);
        if (IsOneOf(name, {"mm", "cm", "in"}) && (Take("Hg") || Take("hg"))) name += "Hg";
        factors_.push_back({std::move(name), sign * Power()});
        return true;
    }

    /// "JK" lost what stood between its two units.
    void TakeApart(std::string& name, int sign) {
        if (MeasureOfUnit(name)) return;
        for (const std::string_view last : {"K", "mol", "g"}) {
            if (!name.ends_with(last)) continue;
            const std::string first = name.substr(0, name.size() - last.size());
            if (!MeasureOfUnit(first)) continue;
            factors_.push_back({first, sign});
            name = last;
            return;
        }
    }

    bool Group(int sign) {
        const std::size_t first = factors_.size();
        if (!Product(true) || AtEnd()) return false;
        ++at_; // ")"
        const int power = sign * Power();
        for (std::size_t i = first; i < factors_.size(); ++i)
            factors_[i].power *= power;
        return true;
    }

    std::string Written(double number) const {
        std::string above, below;
        for (const Factor& factor : factors_) {
            const int size = std::abs(factor.power);
            const std::string text = factor.name + (size == 1 ? "" : std::to_string(size));
            if (factor.power < 0)
                below += "/" + text;
            else
                above += (above.empty() ? "" : "*") + text;
        }
        if (number != 1 || above.empty())
            above = NumberText(number) + (above.empty() ? "" : "*" + above);
        return above + below;
    }

    std::vector<HeadingToken> tokens_;
    std::size_t at_ = 0;
    bool behindSlash_;
    std::vector<Factor> factors_;
};

bool Agree(const UnitMeasure& a, const UnitMeasure& b) {
    return a.powers == b.powers && IsLike(a.size, b.size);
}

/// The code of the listed unit of this name, or the first that is the same: "hPa" is no "mbar".
std::optional<std::string> ListedUnit(const std::string& name, const UnitMeasure& measure,
                                      std::string_view quantity, const std::string& system) {
    const std::vector<std::string> list = UnitList(system, quantity);
    if (std::ranges::find(list, name) != list.end()) return ConversionCodeOf(name, system);
    for (const std::string& text : list) {
        const auto listed = MeasureOfUnit(text);
        if (listed && Agree(*listed, measure)) return ConversionCodeOf(text, system);
    }
    return std::nullopt;
}

std::optional<HeadingUnit> ReadProduct(const std::string& text, std::string_view quantity,
                                       double scale) {
    const std::string system = SystemUnitOf(quantity);
    const auto measure = MeasureOfUnit(text);
    const auto base = MeasureOfUnit(system);
    if (!measure || !base) return std::nullopt;
    if (scale == 1)
        if (const auto code = ListedUnit(text, *measure, quantity, system))
            return HeadingUnit{*code, {}};
    if (measure->powers != base->powers) return std::nullopt;
    return UnitByFactor(measure->size / base->size / scale, quantity);
}

/// Units that are no product of names: what only one quantity has.
std::string OwnName(std::string_view text, std::string_view quantity) {
    const std::string name = Replace(std::string(text), ". ", " ");
    const bool isPressure = quantity == "P";
    if (isPressure && IsOneOf(name, {"kg/cm2", "kg/cm^2", "kg*cm^-2", "kg cm^-2", "kg cm-2",
                                     "kgf/cm^2", "kgf*cm^-2", "kgf cm^-2"}))
        return "kgf/cm2";
    if (isPressure && IsOneOf(name, {"mm of Hg", "mm of mercury", "mm mercury"})) return "mmHg";
    if (quantity.starts_with('J') && name == "M") return "mol/dm3";
    return name;
}

/// Amounts of the gas constant: what is left when a function is divided by it.
bool IsGasConstant(std::string_view text, std::string_view quantity) {
    return text == "R" && SystemUnitOf(quantity) == "J/K/mol";
}

/// "mol/mol", "mg*g^-1": of amounts for mole fractions, of masses for weight fractions.
std::optional<double> RatioOfUnits(std::string_view text, bool ofMoles) {
    if (text.find_first_of("/*^ ") == text.npos) return std::nullopt;
    const auto product = UnitReader(text, false).Read();
    const auto ratio = product ? MeasureOfUnit(*product) : std::nullopt;
    if (!ratio || ratio->powers != UnitMeasure{}.powers) return std::nullopt;
    const bool hasMoles = text.find("mol") != text.npos;
    const bool hasMasses = !hasMoles && text.find('g') != text.npos;
    return (ofMoles ? hasMoles : hasMasses) ? std::optional(ratio->size) : std::nullopt;
}

std::optional<HeadingUnit> ReadRatio(std::string_view text, std::string_view quantity,
                                     double scale) {
    const std::string lower = LowerAscii(text);
    std::optional<double> size;
    if (IsOneOf(lower, {"-", "--", "1", "dimensionless"}))
        size = 1;
    else if (IsOneOf(lower, {"%", "percent", "per cent", "pct"}))
        size = 0.01;
    else if (lower == "ppm")
        size = 1e-6;
    else if (!quantity.starts_with('V'))
        size = RatioOfUnits(text, quantity.starts_with('X'));
    if (!size) return std::nullopt;
    return UnitByFactor(*size / scale, quantity);
}

} // namespace

HeadingUnit UnitByFactor(double factor, std::string_view quantity) {
    const std::string system = SystemUnitOf(quantity);
    for (const std::string& text : UnitList(system, quantity)) {
        const std::string code = ConversionCodeOf(text, system);
        if (text.starts_with("mmol/mol") && !quantity.starts_with('X')) continue;
        if (!IsMassBased(code) && IsLike(ConversionFactor(code, system), factor)) return {code, {}};
    }
    return {std::string(ProcessColumn::ByFactor), NumberText(factor)};
}

std::optional<HeadingUnit> ReadUnit(std::string_view text, std::string_view quantity,
                                    double scale) {
    text = TrimBlanks(text);
    if (text.empty()) return std::nullopt;
    if (quantity == "T") return scale == 1 ? ReadTemperature(text) : std::nullopt;
    if (SystemUnitOf(quantity) == "1") return ReadRatio(text, quantity, scale);
    if (scale == 1 && IsGasConstant(text, quantity)) return HeadingUnit{"X", {}};
    const std::string name = OwnName(text, quantity);
    for (const bool behindSlash : {false, true}) {
        const auto product = UnitReader(name, behindSlash).Read();
        if (!product) continue;
        if (auto unit = ReadProduct(*product, quantity, scale)) return unit;
    }
    return std::nullopt;
}

} // namespace vexora
