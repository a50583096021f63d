#include "entry/PureEnds.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "chem/CommentTags.h"
#include "entry/SetStates.h"
#include "records/FractionCode.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using MaybeValue = std::optional<double>;
using Conditions = std::pair<MaybeValue, MaybeValue>; // temperature [K], pressure [kPa]

// Values at conditions as near as this count as measured at the same ones.
constexpr double NearTemperature = 0.01; // [K]
constexpr double NearPressure = 0.01;    // of the pressure; it matters little to condensed phases
constexpr double Atmosphere = 101.325;   // [kPa], that a normal boiling point stands under
constexpr double NearBoiling = 0.001;    // of the pressure, where it is what boils

bool AreNear(const MaybeValue& a, const MaybeValue& b, double share) {
    return !a || !b || std::abs(*a - *b) <= share * std::abs(*b);
}

/// The values of one pure component by the condition that they depend on.
class PureValues {
public:
    PureValues(std::string_view code, std::string phase)
        : code_(StateCode(code)), phase_(std::move(phase)),
          isBoiling_(code_ == "T" || code_ == "P") {}

    void Take(const DataSet& set) {
        if (set.PROPERTY_FUNCT != "DIR" || !IsAsked(set.PRPCODE, set.PhaseFor(0))) return;
        SetStates states;
        states.Add(set, false);
        for (const SystemState& state : states.All())
            Take({state.Value("T"), state.Value("P")}, state.Value(code_));
    }

    void Take(const clsZ& single) {
        if (!IsAsked(single.PRPCODE, single.PHASE1) || !single.PropertyConversion().IsPossible())
            return;
        Conditions at{ConditionOf(single, "T"), ConditionOf(single, "P")};
        const double value = single.SystemValue();
        if (single.PRPCODE == "TBN") at.second = Atmosphere;
        if (single.PRPCODE == "TBN" || single.PRPCODE == "TB") at.first = value;
        if (single.PRPCODE == "PV") at.second = value;
        Take(at, code_ == "T" ? at.first : code_ == "P" ? at.second : value);
    }

    MaybeValue At(const Conditions& at) const {
        const MaybeValue& key = code_ == "T" ? at.second : at.first;
        if (!key) return std::nullopt;
        const double room = code_ == "T" ? NearBoiling * *key : NearTemperature;
        MaybeValue nearest;
        double least = room;
        for (auto one = byKey_.lower_bound(*key - room);
             one != byKey_.end() && one->first <= *key + room; ++one) {
            const double distance = std::abs(one->first - *key);
            if (!isBoiling_ && !AreNear(one->second.second, at.second, NearPressure)) continue;
            if (nearest && distance >= least) continue;
            nearest = one->second.first;
            least = distance;
        }
        return nearest;
    }

private:
    /// Boiling states are told by vapor pressures as well as by boiling temperatures.
    bool IsAsked(std::string_view code, std::string_view phase) const {
        if (isBoiling_) return code == "TB" || code == "TBN" || code == "PV";
        return code == code_ && (IsBlankField(phase) || phase == phase_);
    }

    /// The temperature or pressure at which a single value holds: its variable, else what its
    /// comment states.
    static MaybeValue ConditionOf(const clsZ& single, std::string_view code) {
        if (single.Variable() == code && IsNumeric(single.INDVARIABLE)) {
            const double value = Val(single.INDVARIABLE);
            const UnitConversion entered = single.VariableConversion(1);
            return entered.ChangesValues() ? entered.Absolute(value) : value;
        }
        const std::string stated = CommentTags(single.Header.DATACOMMENT).Constant(code);
        return IsNumeric(stated) ? MaybeValue(Val(stated)) : std::nullopt;
    }

    void Take(const Conditions& at, const MaybeValue& value) {
        const MaybeValue& key = code_ == "T" ? at.second : at.first;
        if (key && value) byKey_.emplace(*key, std::pair{*value, at.second});
    }

    std::string code_, phase_;
    bool isBoiling_;
    std::multimap<double, std::pair<double, MaybeValue>> byKey_; // with the pressure
};

MaybeValue ConstantOf(const DataSet& set, std::string_view code) {
    for (const SetConstant& constant : set.SystemConstants())
        if (StateCode(constant.code) == code) return constant.value;
    return std::nullopt;
}

/// The temperatures and pressures at which the points of the plot stand, each once.
std::set<Conditions> ConditionsOf(const PlotTable& table, const PlotColumns& columns,
                                  const DataSet& set) {
    const auto reader = [&](std::string_view code) {
        const int column = columns.Find(code);
        const MaybeValue constant = ConstantOf(set, code);
        return [&columns, column, constant](const PlotTable::Row& row) -> MaybeValue {
            if (column < 0) return constant;
            if (column == 0) return std::nullopt; // it is what is asked for
            const auto at = static_cast<std::size_t>(column);
            const UnitConversion& unit = columns.units[at];
            return unit.ChangesValues() ? unit.Absolute(row[at]) : row[at];
        };
    };
    const auto temperature = reader("T");
    const auto pressure = reader("P");
    std::set<Conditions> conditions;
    for (const PlotTable::Row& row : table.PointTable)
        conditions.emplace(temperature(row), pressure(row));
    return conditions;
}

/// A property whose values pure components have too, against nothing but composition and state.
bool HasEnds(const PlotColumns& columns, const DataSet& set, const SetSurroundings& around) {
    if (set.DataContext() != "Bin" || around.pure.size() != 2 || columns.FractionColumn() == 0)
        return false;
    if (FractionCode::Of(columns.codes[0]) || IsMassBased(columns.units[0].code)) return false;
    const std::string_view asked = StateCode(columns.codes[0]);
    const std::vector<std::string> phases = set.Phases();
    if ((asked == "T" || asked == "P") && std::ranges::find(phases, "G") == phases.end())
        return false;
    int fractions = 0;
    for (std::size_t n = 1; n < columns.codes.size(); ++n) {
        const std::string_view code = columns.codes[n];
        if (FractionCode::Of(code))
            ++fractions;
        else if (!code.empty() && code != "T" && code != "P")
            return false;
    }
    return fractions == 1;
}

PlotTable::End EndAt(const PlotColumns& columns, int component, double value,
                     const Conditions& at) {
    PlotTable::End end;
    for (int n = 0; n < static_cast<int>(columns.codes.size()); ++n) {
        const std::string_view code = columns.codes[static_cast<std::size_t>(n)];
        double& cell = end.at[static_cast<std::size_t>(n)];
        if (n == 0)
            cell = columns.InTable(n, value);
        else if (const auto fraction = FractionCode::Of(code))
            cell = columns.InTable(n, fraction->component == component ? 1 : 0);
        else if (!code.empty())
            cell = columns.InTable(n, (code == "T" ? at.first : at.second).value_or(0));
    }
    return end;
}

} // namespace

void AddPureEnds(PlotTable& table, const PlotColumns& columns, const DataSet& set,
                 const SetSurroundings& around) {
    constexpr std::size_t longestName = 24; // that leaves room for the curves
    if (!HasEnds(columns, set, around)) return;
    const std::set<Conditions> conditions = ConditionsOf(table, columns, set);
    for (std::size_t n = 0; n < around.pure.size(); ++n) {
        PureValues values(columns.codes[0], set.PhaseFor(0));
        for (const DataSet* one : around.pure[n])
            values.Take(*one);
        if (n < around.pureValues.size())
            for (const clsZ* one : around.pureValues[n])
                values.Take(*one);
        const int component = static_cast<int>(n) + 1;
        for (const Conditions& at : conditions) {
            const MaybeValue value = values.At(at);
            if (!value) continue;
            PlotTable::End end = EndAt(columns, component, *value, at);
            end.name = ShortName(around.NameOf(component), longestName);
            table.Ends.push_back(end);
        }
    }
}

} // namespace vexora
