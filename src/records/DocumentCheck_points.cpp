#include "records/RecordChecks.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <map>
#include <unordered_map>

#include "chem/CommentTags.h"
#include "records/PropertyLabels.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// The points of a set as texts that are equal when the points are: the value, and each quantity of
/// the state by its code, one that is constant among them.
class PointKeys {
public:
    explicit PointKeys(const DataSet& set) : value_(set, 0) {
        for (const QuantityText& quantity : StateVariables) {
            const std::string constant = set.ConstantOf(quantity.code);
            if (IsNumeric(constant))
                state_[std::string(quantity.code)].constant = KeyOfNumber(Val(constant));
        }
        // In a mixture a content of the liquid is not one of the gas.
        for (const HeldConstant& constant : set.Constants()) {
            const UnitConversion entered{constant.unit, 0, 0, UnitOfVariable(constant.code)};
            if (IsNumeric(constant.value))
                state_[constant.code + " " + constant.phase].constant =
                    KeyOfNumber(entered.Absolute(Val(constant.value)));
            else
                state_[constant.code].constant = "-"; // a critical curve
        }
        const bool namesPhases = set.DataContext() != "Pure";
        for (int n = 1; n <= set.nVar; ++n) {
            const std::string phase = namesPhases ? " " + set.PhaseFor(n) : std::string();
            state_[set.VARIABLE(n) + phase].variable.emplace(set, n);
        }
    }
    /// Empty for a row with a value that is no number or cannot be converted.
    std::string Of(const clsData& row) const {
        std::string key = KeyOf(value_, row);
        for (const auto& [code, coordinate] : state_) {
            const std::string one =
                coordinate.variable ? KeyOf(*coordinate.variable, row) : coordinate.constant;
            if (key.empty() || one.empty()) return {};
            key += code;
            key += '=';
            key += one;
        }
        return key;
    }

private:
    struct Coordinate {
        std::string constant;
        std::optional<SystemColumn> variable;
    };
    static std::string KeyOf(const SystemColumn& column, const clsData& row) {
        const std::optional<double> value = column.Of(row);
        return value && column.Converts(row) ? KeyOfNumber(*value) : std::string();
    }

    SystemColumn value_;
    std::map<std::string, Coordinate> state_;
};

struct Place {
    const DataSet* set;
    std::size_t row;
};
using Points = std::unordered_map<std::string, Place>;

/// What two points have in common before they are compared.
std::string KindOf(const DataSet& set) {
    std::string kind = set.PRPCODE + "\n" + set.PROPERTY_FUNCT;
    for (const std::string& phase : set.Phases())
        kind += "\n" + phase;
    return kind;
}

void CheckSetAmong(const DataSet& set, Points& known, Findings& findings) {
    const PointKeys keys(set);
    RowTally repeated;
    std::size_t row = 0;
    for (const clsData& data : set.recData) {
        ++row;
        std::string key = keys.Of(data);
        if (key.empty()) continue;
        const auto [entry, isFirst] = known.try_emplace(std::move(key), Place{&set, row});
        const Place& place = entry->second;
        if (!isFirst && place.set != &set)
            repeated.Add(row, "this point stands in row " + std::to_string(place.row) + " of set " +
                                  place.set->PRPSETNO + " too");
    }
    if (!repeated.IsEmpty())
        Remarks(findings, set).Warn(PropertyLabels::Of(set).name + ": " + repeated.Text());
}

/// Single values of one sample as texts that are equal when the values and their states are. What
/// the tables tell of a unit is looked up once for all values in it.
class ValueKeys {
public:
    /// Empty for one that is no number or cannot be converted.
    std::string Of(const clsZ& value) {
        if (!IsNumeric(value.PRPVALUE)) return {};
        if (value.nVar == 1 && !IsNumeric(value.INDVARIABLE)) return {};
        const Units& units = UnitsOf(value);
        if (!units.arePossible) return {};
        std::string key = value.PRPCODE;
        for (const auto& phase : {value.PHASE1, value.PHASE2, value.PHASE3})
            key += "\n" + std::string(phase);
        key += "\n" + KeyOfNumber(units.property.Absolute(Val(value.PRPVALUE)));
        if (value.nVar == 1) key += KeyOfNumber(units.variable.Absolute(Val(value.INDVARIABLE)));
        return key + ConstantsOf(value.Header.DATACOMMENT);
    }

private:
    struct Units {
        UnitConversion property, variable;
        bool arePossible = false;
    };
    const Units& UnitsOf(const clsZ& value) {
        std::string kind(value.isOriginalUnit ? "1" : "0");
        kind += std::to_string(value.nVar);
        for (const auto& part : {value.PRPCODE, value.PROPERTY_UNIT, value.VARIABLE_UNIT})
            kind += "\n" + std::string(part);
        for (const double number : {value.Factor, value.FallbackMolarMass})
            kind += "\n" + NumberText(number);
        const auto [entry, isFirst] = units_.try_emplace(std::move(kind));
        Units& units = entry->second;
        if (!isFirst) return units;
        units.property = value.PropertyConversion();
        units.arePossible = units.property.IsPossible();
        if (value.nVar == 0) return units;
        units.variable = value.VariableConversion(1);
        units.arePossible = units.arePossible && units.variable.IsPossible();
        return units;
    }
    static std::string ConstantsOf(const std::string& comment) {
        std::string key;
        if (comment.find('=') == comment.npos) return key; // as of nearly all values
        const CommentTags tags(comment);
        for (const QuantityText& quantity : StateVariables) {
            const std::string constant = tags.Constant(quantity.code);
            if (IsNumeric(constant)) key += std::string(quantity.code) + KeyOfNumber(Val(constant));
        }
        return key;
    }

    std::unordered_map<std::string, Units> units_;
};

} // namespace

std::string KeyOfNumber(double value) {
    constexpr int bits = 36; // some ten digits
    int exponent = 0;
    const double rounded = std::round(std::ldexp(std::frexp(value, &exponent), bits));
    const double whole = rounded == 0 ? 0 : std::ldexp(rounded, exponent);
    const auto bytes = std::bit_cast<std::array<char, sizeof whole>>(whole);
    return {bytes.begin(), bytes.end()};
}

void CheckEqualValues(const SubstanceSample& sample, Findings& findings) {
    ValueKeys keys;
    std::unordered_map<std::string, const clsZ*> known;
    for (const auto& value : sample.recZ) {
        std::string key = keys.Of(*value);
        if (key.empty()) continue;
        const auto [entry, isFirst] = known.try_emplace(std::move(key), value.get());
        if (!isFirst)
            Remarks(findings, *value)
                .Warn(PropertyName(value->PRPCODE, value->DataContext()) +
                      ": this value stands in set " + std::string(entry->second->PRPSETNO) +
                      " too");
    }
}

void CheckEqualPoints(const Record& owner, Findings& findings) {
    std::map<std::string, std::vector<const DataSet*>> kinds;
    owner.EachChild([&kinds](Record& child) {
        if (const auto* set = dynamic_cast<const DataSet*>(&child))
            kinds[KindOf(*set)].push_back(set);
    });
    for (const auto& [kind, sets] : kinds) {
        if (sets.size() < 2) continue; // nothing to compare
        Points known;
        for (const DataSet* set : sets)
            CheckSetAmong(*set, known, findings);
    }
}

} // namespace vexora
