#include "records/PureValues.h"

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

#include "chem/CommentTags.h"
#include "records/StatedUncertainty.h"
#include "records/clsMV.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr double NormalPressure = 101.325; // [kPa], of a normal boiling temperature
// States are rounded to these steps, and alike when they are less than one step apart, or half of
// one along a curve of boiling.
constexpr double TemperatureStep = 0.01; // [K]
constexpr double PressureStep = 0.01;    // of the logarithm: 1 per cent
constexpr double BoilingStep = 1e-4;     // of the logarithm
// A bucket of more alike says no more than its first ones, and none is walked at length.
constexpr std::size_t MostAlike = 8;

// In the place of a rounded pressure.
constexpr long long AnyPressure = std::numeric_limits<long long>::max();
constexpr long long NoPressure = std::numeric_limits<long long>::min();

/// Where a value stands along the quantity that has to be the same; nothing when it is not stated.
std::optional<double> PlaceOf(const PureKind& kind, const StateOfRow& state) {
    if (kind.code != "TB")
        return state.t ? std::optional(*state.t / TemperatureStep) : std::nullopt;
    if (!state.p || *state.p <= 0) return std::nullopt;
    return std::log(*state.p) / BoilingStep;
}

/// The same for the pressure beside a temperature.
std::optional<double> PressurePlaceOf(const PureKind& kind, const StateOfRow& state) {
    if (kind.isBoiling || !state.p || *state.p <= 0) return std::nullopt;
    return std::log(*state.p) / PressureStep;
}

bool IsBoilingOf(std::string_view code, const std::vector<std::string>& phases) {
    if (!IsOneOf(code, {"PV", "TB", "TBN"})) return false;
    for (const std::string& phase : phases)
        if (IsCrystalPhase(phase)) return false;
    return true;
}

/// The code that a boiling curve of a mixture has among pure data.
std::string PureCodeOf(const clsMV& set) {
    if (!IsOneOf(set.PRPCODE, {"T", "P"})) return set.PRPCODE;
    if (set.Context() != "vle") return {};
    return set.PRPCODE == "T" ? "TB" : "PV";
}

/// What is constant beside temperature and pressure, by the constants that `constantOf` knows.
template <class ConstantOf>
std::string OthersOf(ConstantOf constantOf) {
    std::string others;
    for (const QuantityText& quantity : StateVariables) {
        if (IsOneOf(quantity.code, {"T", "P"})) continue;
        const std::string constant = constantOf(quantity.code);
        if (IsNumeric(constant)) others += std::string(quantity.code) + KeyOfNumber(Val(constant));
    }
    return others;
}

} // namespace

StateOfRows::Coordinate::Coordinate(const DataSet& set, std::string_view code) {
    for (int n = 1; n <= set.nVar; ++n)
        if (set.VARIABLE(n) == code) column.emplace(set, n);
    if (column) return;
    for (const HeldConstant& held : set.Constants()) {
        const UnitConversion unit = set.Conversion(held.item);
        if (held.code == code && IsNumeric(held.value) && unit.IsPossible())
            constant = unit.Absolute(Val(held.value));
    }
    const std::string stated = constant ? std::string() : set.ConstantOf(code);
    if (IsNumeric(stated)) constant = Val(stated);
}

std::optional<double> StateOfRows::Coordinate::Of(const clsData& row) const {
    if (!column) return constant;
    return column->Converts(row) ? column->Of(row) : std::nullopt;
}

std::optional<PureKind> PureKind::Of(const DataSet& set) {
    PureKind kind;
    const auto* const ofMixture = dynamic_cast<const clsMV*>(&set);
    kind.code = ofMixture ? PureCodeOf(*ofMixture) : set.PRPCODE;
    if (kind.code.empty() || set.Relation() != "A") return std::nullopt;
    for (const QuantityText& quantity : StateVariables)
        if (!IsOneOf(quantity.code, {"T", "P"}) && set.HasVariable(quantity.code))
            return std::nullopt;
    kind.isBoiling = IsBoilingOf(kind.code, set.Phases());
    if (!kind.isBoiling) kind.phase = set.PhaseFor(0);
    kind.others = OthersOf([&set](std::string_view code) { return set.ConstantOf(code); });
    return kind;
}

namespace {

void AppendSet(const clsTwo& set, std::vector<PureValue>& values) {
    const auto kind = PureKind::Of(set);
    if (!kind) return;
    const auto shared = std::make_shared<const PureKind>(*kind);
    const SystemColumn column(set, 0);
    const StateOfRows state(set);
    const UncertaintyOfRows uncertainties(set);
    for (const clsData& row : set.recData)
        if (const auto value = column.Converts(row) ? column.Of(row) : std::nullopt)
            values.push_back({*value, uncertainties.Of(row), state.Of(row), set.PRPSETNO, shared});
}

/// Temperature and pressure that a single value states; nothing when it has another variable.
std::optional<StateOfRow> StateOf(const clsZ& value, const CommentTags& tags) {
    StateOfRow state;
    const auto take = [](std::optional<double>& coordinate, const std::string& stated) {
        if (IsNumeric(stated)) coordinate = Val(stated);
    };
    take(state.t, tags.Constant("T"));
    take(state.p, tags.Constant("P"));
    if (value.PRPCODE == "TBN") state.p = NormalPressure;
    if (value.nVar != 1) return state;
    const UnitConversion unit = value.VariableConversion(1);
    const std::string variable = value.Variable();
    if (!IsOneOf(variable, {"T", "P"}) || !IsNumeric(value.INDVARIABLE) || !unit.IsPossible())
        return std::nullopt;
    (variable == "T" ? state.t : state.p) = unit.Absolute(Val(value.INDVARIABLE));
    return state;
}

void AppendSingle(const clsZ& value, std::vector<PureValue>& values) {
    const CommentTags tags(value.Header.DATACOMMENT);
    const auto state = StateOf(value, tags);
    if (!state || !IsNumeric(value.PRPVALUE) || !value.PropertyConversion().IsPossible()) return;
    PureKind kind{value.PRPCODE, value.PHASE1, {}};
    kind.isBoiling = IsBoilingOf(kind.code, {value.PHASE1, value.PHASE2});
    if (kind.isBoiling) kind.phase.clear();
    if (kind.code == "TBN") kind.code = "TB";
    kind.others = OthersOf([&tags](std::string_view code) { return tags.Constant(code); });
    values.push_back({value.SystemValue(), UncertaintyOf(value), *state, value.PRPSETNO,
                      std::make_shared<const PureKind>(kind)});
}

} // namespace

std::vector<PureValue> ValuesOf(const clsS& sample, std::string_view code) {
    std::vector<PureValue> values;
    for (const auto& set : sample.recTwo)
        if (set->PRPCODE == code) AppendSet(*set, values);
    for (const auto& value : sample.recZ)
        if (value->PRPCODE == code || (code == "TB" && value->PRPCODE == "TBN"))
            AppendSingle(*value, values);
    return values;
}

PureValues::PureValues(const clsS& sample, std::string_view code) {
    for (const PureValue& value : ValuesOf(sample, code))
        Add(value);
}

void PureValues::Add(const PureValue& value) {
    const auto place = PlaceOf(*value.kind, value.state);
    if (!place) return;
    const auto pressure = PressurePlaceOf(*value.kind, value.state);
    const long long own = pressure ? std::llround(*pressure) : NoPressure;
    Cells& cells = byKind_[value.kind->Key()];
    for (const long long cell : {own, AnyPressure}) {
        auto& alike = cells[{std::llround(*place), cell}];
        if (alike.size() < MostAlike) alike.push_back(value);
    }
}

std::size_t PureValues::CellHash::operator()(const Cell& cell) const {
    const std::hash<long long> hash;
    return hash(cell.place) * 1000003U ^ hash(cell.pressure);
}

std::vector<const PureValue*> PureValues::At(const PureKind& kind, const StateOfRow& state) const {
    const auto place = PlaceOf(kind, state);
    const auto pressure = PressurePlaceOf(kind, state);
    if (!place || (kind.NeedsPressure() && !pressure)) return {};
    const auto cells = byKind_.find(kind.Key());
    if (cells == byKind_.end()) return {};
    std::vector<long long> pressures;
    if (!pressure) pressures.push_back(AnyPressure);
    if (pressure && !kind.NeedsPressure()) pressures.push_back(NoPressure);
    for (const int beside : {-1, 0, 1})
        if (pressure) pressures.push_back(std::llround(*pressure) + beside);
    constexpr double same = 0.5;
    std::vector<const PureValue*> found;
    for (const int beside : {-1, 0, 1})
        for (const long long cell : pressures) {
            const auto alike = cells->second.find({std::llround(*place) + beside, cell});
            if (alike == cells->second.end()) continue;
            for (const PureValue& value : alike->second) {
                const auto its = PressurePlaceOf(kind, value.state);
                const bool isThere = std::abs(*PlaceOf(kind, value.state) - *place) <= same;
                if (isThere && (!its || !pressure || std::abs(*its - *pressure) <= 1))
                    found.push_back(&value);
            }
        }
    return found;
}

} // namespace vexora
