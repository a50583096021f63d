#include "records/BoilingCurves.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>
#include <utility>

#include "records/PureValues.h"
#include "records/RowFractions.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// What a row tells two of, in this order: the fractions of component 1 in both phases, and the
/// level.
enum Part { Liquid, Gas, Level };
using Pairs = std::vector<std::array<double, 2>>;

/// The rows of sets that belong together, by what they tell.
struct Gathered {
    BoilingCurve curve;
    Pairs liquidLevel, gasLevel, liquidGas;
};
/// In the order of the document.
struct Groups {
    std::vector<Gathered> all;
    std::unordered_map<std::string, std::size_t> places;

    Gathered& Of(const std::string& key) {
        const auto [place, isNew] = places.try_emplace(key, all.size());
        return isNew ? all.emplace_back() : all[place->second];
    }
};

/// Values by a number that rows share; equal ones are given out in turn, the last one for ever.
class Partners {
public:
    explicit Partners(const Pairs& pairs) {
        for (const auto& [key, value] : pairs)
            values_[KeyOfNumber(key)].push_back(value);
    }
    std::optional<double> Next(double key) {
        const std::string text = KeyOfNumber(key);
        const auto found = values_.find(text);
        if (found == values_.end()) return std::nullopt;
        std::size_t& next = next_[text];
        return found->second[std::min(next++, found->second.size() - 1)];
    }

private:
    std::unordered_map<std::string, std::vector<double>> values_;
    std::unordered_map<std::string, std::size_t> next_;
};

/// What holds a set in place: temperature or pressure, and which quantity is the level then.
struct Held {
    HeldInBoiling what;
    double value;
};

std::optional<Held> HeldBy(const clsMV& set) {
    const std::vector<HeldConstant> constants = set.Constants();
    if (constants.size() != 1 || !IsNumeric(constants[0].value)) return std::nullopt;
    const UnitConversion unit = set.Conversion(constants[0].item);
    if (!unit.IsPossible() || (constants[0].code != "T" && constants[0].code != "P"))
        return std::nullopt;
    const bool isPressure = constants[0].code == "P";
    return Held{isPressure ? HeldInBoiling::Pressure : HeldInBoiling::Temperature,
                unit.Absolute(Val(constants[0].value))};
}

/// A quantity of a set that tells a part of a state.
class PartColumn {
public:
    PartColumn(const clsMV& set, int n, Part tells)
        : part(tells), column_(set, n), fraction_(FractionOf(set.VARIABLE(n))) {
        if (set.Parent) masses_ = set.Parent->MolarMasses();
    }
    Part part;
    std::optional<double> Of(const clsData& row) const {
        std::optional<double> value = column_.Converts(row) ? column_.Of(row) : std::nullopt;
        if (!value || part == Level) return value;
        if (fraction_->component == 2) value = 1 - *value;
        if (fraction_->kind == 'X') return value;
        // w1 / M1 : w2 / M2 is the ratio of the amounts.
        if (masses_[0] <= 0 || masses_[1] <= 0) return std::nullopt;
        const double amount = *value / masses_[0];
        return amount / (amount + (1 - *value) / masses_[1]);
    }
    double LastDigit(const clsMV& set, int n, const clsData& row) const {
        const double digit = LastPlace(column_.TextOf(row));
        return row.inOriginalUnits ? set.Conversion(n).Difference(digit) : digit;
    }

private:
    SystemColumn column_;
    std::optional<Fraction> fraction_;
    std::array<double, 3> masses_{};
};

std::optional<Part> PartOf(const clsMV& set, int n, HeldInBoiling held) {
    const std::string& code = set.VARIABLE(n);
    if (code == (held == HeldInBoiling::Pressure ? "T" : "P")) return Level;
    const auto fraction = FractionOf(code);
    if (!fraction || fraction->kind == 'V') return std::nullopt;
    if (IsLiquidPhase(set.PhaseFor(n))) return Liquid;
    return set.PhaseFor(n) == "G" ? std::optional(Gas) : std::nullopt;
}

void TakeEnd(BoilingCurve& curve, double fraction, double level) {
    if (fraction == 0 && !curve.pure2) curve.pure2 = level;
    if (fraction == 1 && !curve.pure1) curve.pure1 = level;
}

/// Takes the rows of a set whose property and variable are two different parts.
void TakeRows(const clsMV& set, Gathered& known, Part ofProperty, Part ofVariable) {
    const PartColumn property(set, 0, ofProperty), variable(set, 1, ofVariable);
    const bool propertyLeads = ofProperty < ofVariable;
    const PartColumn& first = propertyLeads ? property : variable;
    const PartColumn& second = propertyLeads ? variable : property;
    Pairs& pairs = second.part == Gas     ? known.liquidGas
                   : first.part == Liquid ? known.liquidLevel
                                          : known.gasLevel;
    double digit = -1; // of the first row: texts of one column are alike
    for (const clsData& row : set.recData) {
        const auto a = first.Of(row), b = second.Of(row);
        if (!a || !b) continue;
        pairs.push_back({*a, *b});
        if (second.part != Level) continue;
        TakeEnd(known.curve, *a, *b);
        if (digit < 0) digit = second.LastDigit(set, propertyLeads ? 1 : 0, row);
    }
    known.curve.least = std::max(known.curve.least, digit);
}

void Take(const clsMV& set, Groups& groups) {
    const auto held = HeldBy(set);
    if (!held) return;
    const auto ofProperty = PartOf(set, 0, held->what), ofVariable = PartOf(set, 1, held->what);
    if (!ofProperty || !ofVariable || *ofProperty == *ofVariable) return;
    const std::string kind = held->what == HeldInBoiling::Pressure ? "P" : "T";
    Gathered& known =
        groups.Of(set.SMPNM1 + "\n" + set.SMPNM2 + "\n" + kind + KeyOfNumber(held->value));
    if (!known.curve.set) {
        known.curve.set = &set;
        known.curve.held = held->what;
        known.curve.constant = held->value;
    }
    TakeRows(set, known, *ofProperty, *ofVariable);
}

/// (level, fraction) of (fraction, level).
Pairs Turned(Pairs pairs) {
    for (auto& pair : pairs)
        std::swap(pair[0], pair[1]);
    return pairs;
}

std::vector<PartialState> Join(const Gathered& known) {
    std::vector<PartialState> states;
    if (known.liquidGas.empty()) {
        Partners gas(Turned(known.gasLevel));
        for (const auto& [x, level] : known.liquidLevel)
            if (const auto y = gas.Next(level)) states.push_back({x, *y, level});
        return states;
    }
    Partners byLiquid(known.liquidLevel), byGas(known.gasLevel);
    for (const auto& [x, y] : known.liquidGas) {
        std::optional<double> level = byLiquid.Next(x);
        if (!level) level = byGas.Next(y);
        states.push_back({x, y, level});
    }
    return states;
}

bool IsBoiling(const clsMV& set) {
    return set.MixType == 2 && set.nVar == 1 && set.Relation() == "A" && set.nPhases() == 2 &&
           set.iLiquid() != 0 && set.iGas() != 0;
}

/// Boiling points of one sample.
void Append(const clsS& sample, std::vector<VaporPressurePoint>& points) {
    for (const char* code : {"PV", "TB"})
        for (const PureValue& value : ValuesOf(sample, code)) {
            const bool isPressure = std::string_view(code) == "PV";
            const auto& other = isPressure ? value.state.t : value.state.p;
            if (!other || !value.kind->isBoiling) continue;
            points.push_back(isPressure ? VaporPressurePoint{*other, value.value}
                                        : VaporPressurePoint{value.value, *other});
        }
}

} // namespace

std::vector<BoilingState> BoilingCurve::States() const {
    std::vector<BoilingState> known;
    for (const PartialState& state : states)
        if (state.level) known.push_back({state.x, state.y, *state.level});
    const auto has = [&known](double x) {
        return std::ranges::find(known, x, &BoilingState::x) != known.end();
    };
    if (pure1 && !has(1)) known.push_back({1, 1, *pure1});
    if (pure2 && !has(0)) known.push_back({0, 0, *pure2});
    return known;
}

std::vector<BoilingCurve> BoilingCurvesOf(const clsM& mixture) {
    Groups groups;
    for (const auto& set : mixture.recMV)
        if (IsBoiling(*set)) Take(*set, groups);
    std::vector<BoilingCurve> curves;
    for (Gathered& known : groups.all) {
        known.curve.states = Join(known);
        if (!known.curve.states.empty()) curves.push_back(std::move(known.curve));
    }
    return curves;
}

std::vector<VaporPressurePoint> BoilingPointsOf(const clsM& mixture, int n) {
    std::vector<VaporPressurePoint> points;
    if (const auto compound = mixture.Component(n))
        for (const auto& sample : compound->recS)
            Append(*sample, points);
    return points;
}

VaporPressureCurve VaporPressuresAt(const BoilingCurve& curve, int n,
                                    std::vector<VaporPressurePoint> points) {
    const auto& end = n == 1 ? curve.pure1 : curve.pure2;
    const bool isIsobar = curve.held == HeldInBoiling::Pressure;
    if (end)
        points.push_back(isIsobar ? VaporPressurePoint{*end, curve.constant}
                                  : VaporPressurePoint{curve.constant, *end});
    return VaporPressureCurve(std::move(points));
}

} // namespace vexora
