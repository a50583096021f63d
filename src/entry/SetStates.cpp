#include "entry/SetStates.h"

#include <algorithm>

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr int KeyDigits = 9; // what conversions from different units agree in

/// The phase by which a quantity is told apart: temperature and pressure are those of all phases,
/// whichever of them the set leads with.
std::string PhaseKept(std::string_view code, const std::string& phase) {
    const std::string_view state = StateCode(code);
    return IsBlankField(phase) || state == "T" || state == "P" ? std::string() : phase;
}

std::string CellText(const SystemState::Cell& cell) {
    return cell.code + "/" + cell.phase + "=" + FormatValue(cell.value, KeyDigits);
}

/// The same cells give the same text, in whatever order they stand.
std::string TextOfCells(const SystemState::Cell* from, const SystemState::Cell* to) {
    std::vector<std::string> texts;
    std::transform(from, to, std::back_inserter(texts), CellText);
    std::ranges::sort(texts);
    std::string text;
    for (const std::string& one : texts)
        text += one + ";";
    return text;
}

/// The cells that all rows of the set have in common.
std::vector<SystemState::Cell> ConstantCells(const DataSet& set) {
    std::vector<SystemState::Cell> cells;
    for (const SetConstant& constant : set.SystemConstants())
        cells.push_back({std::string(StateCode(constant.code)),
                         PhaseKept(constant.code, constant.phase), constant.value});
    return cells;
}

bool IsWhole(const clsData& row, int variables) {
    for (int n = 0; n <= variables; ++n)
        if (!IsNumeric(row.Values[static_cast<std::size_t>(n)])) return false;
    return true;
}

const std::string& CodeOf(const DataSet& set, int n) {
    return n == 0 ? set.PRPCODE : set.VARIABLE(n);
}

} // namespace

std::string_view StateCode(std::string_view code) {
    return code == "TB" ? "T" : code == "PV" ? "P" : code;
}

double SystemValueOf(const clsData& row, int n, const UnitConversion& entered) {
    const double value = Val(row.Values[static_cast<std::size_t>(n)]);
    return row.inOriginalUnits && entered.ChangesValues() ? entered.Absolute(value) : value;
}

std::optional<double> SystemState::Value(std::string_view code) const {
    const auto at = std::ranges::find(cells, code, &Cell::code);
    return at == cells.end() ? std::nullopt : std::optional(at->value);
}

std::string PhasesKey(const DataSet& set) {
    std::vector<std::string> phases = set.Phases();
    std::ranges::sort(phases);
    std::string text;
    for (const std::string& phase : phases)
        text += phase + " ";
    return text;
}

/// The cells of a state stand in the order of Add: constants, variables, property.
std::string SetStates::KeyOf(const DataSet& set, const SystemState& state, const clsData& row,
                             const std::string& frame, bool hasTies) const {
    if (hasTies && !IsBlankField(row.TIELINE)) return frame + "tie " + std::string(row.TIELINE);
    const SystemState::Cell* const end = state.cells.data() + state.cells.size() - 1;
    return frame + TextOfCells(end - set.nVar, end);
}

void SetStates::Add(const DataSet& set, bool isInHand) {
    const std::vector<SystemState::Cell> constants = ConstantCells(set);
    std::string frame =
        PhasesKey(set) + TextOfCells(constants.data(), constants.data() + constants.size()) + "|";
    std::string quantity = frame;
    for (int n = 0; n <= set.nVar; ++n)
        quantity += CodeOf(set, n) + "/" + PhaseKept(CodeOf(set, n), set.PhaseFor(n)) + ";";
    frame += std::to_string(layers_[quantity]++) + "|";
    std::vector<UnitConversion> conversions;
    for (int n = 0; n <= set.nVar; ++n)
        conversions.push_back(set.Conversion(n));
    std::unordered_map<std::string, int> repeated;
    int point = 0;
    const bool hasTies = set.HasTies(); // looks at all rows
    for (const clsData& row : set.recData) {
        SystemState state{constants, isInHand ? point++ : -1};
        if (!IsWhole(row, set.nVar)) continue;
        const auto add = [&](int n) {
            state.cells.push_back(
                {std::string(StateCode(CodeOf(set, n))), PhaseKept(CodeOf(set, n), set.PhaseFor(n)),
                 SystemValueOf(row, n, conversions[static_cast<std::size_t>(n)])});
        };
        for (int n = 1; n <= set.nVar; ++n)
            add(n);
        add(0);
        std::string key = KeyOf(set, state, row, frame, hasTies);
        key += "#" + std::to_string(repeated[key]++);
        const auto [at, isNew] = byKey_.try_emplace(key, states_.size());
        if (isNew) {
            states_.push_back(std::move(state));
            continue;
        }
        SystemState& known = states_[at->second];
        known.cells.insert(known.cells.end(), state.cells.begin(), state.cells.end());
        known.point = std::max(known.point, state.point);
    }
}

} // namespace vexora
