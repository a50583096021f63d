#include "tables/PhaseHeads.h"

#include <algorithm>
#include <map>
#include <utility>

#include "reference/Numbers.h"
#include "reference/Vocabulary.h"
#include "tables/ColumnValues.h"

namespace vexora {

namespace {

/// A mole, mass or volume fraction or a molarity of one of the components.
bool IsComposition(std::string_view code, int mixType) {
    return code.size() == 2 && std::string_view("XWVJ").find(code[0]) != code.npos &&
           code[1] >= '1' && code[1] <= '0' + mixType;
}

bool IsFraction(std::string_view code) {
    return code.front() != 'J';
}

/// The crystal of a pure component needs no composition: its cells are empty, or all say that it is
/// pure.
bool OnlyNamesPhase(const ProcessTable& table, int column) {
    const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
    if (!head.phase.starts_with("Cp")) return false;
    const ColumnValues values(table, column);
    bool areZeros = true, areOnes = true;
    for (int row = 0; row < static_cast<int>(table.rows.size()); ++row) {
        if (!values.Has(row)) continue;
        const std::optional<double> value = values.Value(row);
        areZeros = areZeros && value && *value == 0;
        areOnes = areOnes && value && Equal(*value, 1);
        if (!areZeros && !areOnes) return false;
    }
    return true;
}

/// Reads the heads from left to right.
class HeadReader {
public:
    explicit HeadReader(const ProcessTable& table) : table_(table) {}

    PhaseHeads Read() {
        for (int column = 0; column < static_cast<int>(table_.columns.size()); ++column)
            ReadColumn(column);
        std::string fault;
        heads_.uncertainty = UncertaintyColumns(table_, fault);
        Fault(fault);
        for (const int state : {heads_.PColumn, heads_.TColumn})
            if (state >= 0) heads_.VarNames.insert(heads_.VarNames.begin(), Head(state).quantity);
        CheckPhases();
        return std::move(heads_);
    }

private:
    const ProcessColumn& Head(int column) const {
        return table_.columns[static_cast<std::size_t>(column)];
    }
    void Fault(const std::string& hint) {
        if (heads_.hint.empty()) heads_.hint = hint;
    }

    void ReadColumn(int column) {
        const ProcessColumn& head = Head(column);
        if (head.IsUncertainty()) return;
        if (head.IsState()) return ReadState(column);
        if (head.phase.empty()) {
            if (head.IsDescribed()) Fault("A phase for " + ColumnText(column));
            return;
        }
        PhaseColumns& phase = PhaseOf(head.phase);
        if (!head.IsDescribed() || OnlyNamesPhase(table_, column)) return;
        if (!IsComposition(head.quantity, table_.MixType))
            return Fault("Another quantity for " + ColumnText(column));
        Fault(HeadFault(table_, column));
        for (const int other : phase.compositions)
            if (Head(other).quantity == head.quantity) return Repeats(column, other);
        phase.compositions.push_back(column);
        if (std::ranges::find(heads_.VarNames, head.quantity) == heads_.VarNames.end())
            heads_.VarNames.push_back(head.quantity);
    }
    void ReadState(int column) {
        int& state = Head(column).quantity == "T" ? heads_.TColumn : heads_.PColumn;
        if (state >= 0) return Repeats(column, state);
        state = column;
        Fault(HeadFault(table_, column));
    }
    void Repeats(int column, int first) {
        Fault("Another quantity or phase for " + ColumnText(column) + ", which repeats " +
              ColumnText(first));
    }
    PhaseColumns& PhaseOf(const std::string& code) {
        const auto at = std::ranges::find(heads_.phases, code, &PhaseColumns::phase);
        if (at != heads_.phases.end()) return *at;
        PhaseColumns& added = heads_.phases.emplace_back();
        added.phase = code;
        return added;
    }

    void CheckPhases() {
        for (const PhaseColumns& phase : heads_.phases)
            CheckKinds(phase);
        if (heads_.phases.size() > PhaseHeads::MostPhases) Fault("At most four phases");
        if (heads_.VarNames.size() > PhaseHeads::MostQuantities) Fault("At most five quantities");
        if (heads_.phases.size() < 2) Fault("Compositions, or the name, of a second phase");
    }
    /// Only fractions of one kind imply each other, so that one of them need not be stored.
    void CheckKinds(const PhaseColumns& phase) {
        if (phase.compositions.size() < 2) return;
        const std::string& first = Head(phase.compositions.front()).quantity;
        for (const int column : phase.compositions)
            if (Head(column).quantity.front() != first.front())
                Fault("One kind of composition in " + PhaseName(phase.phase) + ", as in " +
                      ColumnText(phase.compositions.front()));
        const bool isWhole = static_cast<int>(phase.compositions.size()) == table_.MixType;
        if (isWhole && !IsFraction(first))
            Fault("Molarities of all components but one in " + PhaseName(phase.phase));
    }

    const ProcessTable& table_;
    PhaseHeads heads_;
};

double RangeOf(const ProcessTable& table, const std::vector<int>& rows, int column) {
    const ColumnValues values(table, column);
    std::optional<double> least, most;
    for (const int row : rows) {
        const std::optional<double> value = values.Value(row);
        if (!value) continue;
        least = least ? std::min(*least, *value) : *value;
        most = most ? std::max(*most, *value) : *value;
    }
    return least ? *most - *least : 0;
}

} // namespace

bool PhaseHeads::HasGas() const {
    return std::ranges::find(phases, "G", &PhaseColumns::phase) != phases.end();
}

PhaseHeads ReadHeads(const ProcessTable& table) {
    return HeadReader(table).Read();
}

std::string ContextOf(const std::vector<PhaseColumns>& phases) {
    std::string context = "lle";
    for (const PhaseColumns& one : phases) {
        if (one.phase.starts_with('G')) context = "vle";
        if (one.phase.starts_with('C')) context = "sle";
    }
    return context;
}

KeptColumns KeepCompositions(const ProcessTable& table, const std::vector<int>& rows,
                             const std::vector<int>& compositions) {
    constexpr double farWider = 1.5;
    KeptColumns columns;
    columns.kept = compositions;
    if (compositions.empty()) return columns;
    if (table.MixType == 2) {
        columns.implied.assign(compositions.begin() + 1, compositions.end());
        columns.kept.resize(1);
        columns.variable = compositions.front();
        return columns;
    }
    struct Ranged {
        int column;
        double range;
    };
    std::vector<Ranged> ranged; // by component
    for (const int column : compositions)
        ranged.push_back({column, RangeOf(table, rows, column)});
    std::ranges::sort(ranged, {}, [&table](const Ranged& one) {
        return table.columns[static_cast<std::size_t>(one.column)].quantity;
    });
    if (ranged.size() == 3) {
        auto least = ranged.begin();
        for (auto one = ranged.begin() + 1; one != ranged.end(); ++one)
            if (one->range < least->range || Equal(one->range, least->range)) least = one;
        columns.implied = {least->column};
        std::erase(columns.kept, least->column);
        ranged.erase(least);
    }
    columns.variable = ranged.front().column;
    if (ranged.size() < 2) return columns;
    columns.other = ranged.back().column;
    const auto wasVariable = [&table](int column) {
        return table.columns[static_cast<std::size_t>(column)].role ==
               ProcessColumn::Role::Variable;
    };
    // What stored sets are told against stays so, whatever an edit does to the ranges.
    const bool isTurned = wasVariable(columns.variable) == wasVariable(columns.other)
                              ? ranged.back().range > farWider * ranged.front().range
                              : wasVariable(columns.other);
    if (isTurned) std::swap(columns.variable, columns.other);
    return columns;
}

} // namespace vexora
