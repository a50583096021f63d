// The kind of equilibrium that a table shows, and the sets that come of it.
#include <algorithm>
#include <array>

#include "reference/Numbers.h"
#include "reference/Vocabulary.h"
#include "tables/ColumnValues.h"
#include "tables/PhaseEquilibria.h"
#include "tables/PhaseHeads.h"

namespace vexora {

namespace {

using Role = ProcessColumn::Role;

constexpr std::size_t MostTiedRows = 4096, MostRows = 16384;
constexpr const char* NoState =
    "Properties and/or phases are not completely defined in a consistent way\n"
    "Try to add T or P as a state variable";
constexpr const char* DataErrors = "Data errors detected";

/// Temperature or pressure: a column of values, or a constant.
struct State {
    std::string code;
    int column = -1;
    bool varies = false;  // a column whose values differ, or that counts as if they did
    std::string constant; // [system unit], empty for one that is not known
};

/// The values that a state variable has in the table, each once.
std::vector<double> StateValues(const ProcessTable& table, const std::vector<int>& rows,
                                int column) {
    const ColumnValues values(table, column);
    std::vector<double> distinct;
    for (const int row : rows)
        if (const auto value = values.Value(row)) distinct.push_back(*value);
    std::ranges::sort(distinct);
    distinct.erase(std::unique(distinct.begin(), distinct.end(), Equal), distinct.end());
    return distinct;
}

class Analyser {
public:
    Analyser(const ProcessTable& table, const AskedConstants& constants)
        : table_(table), constants_(constants), heads_(ReadHeads(table)) {}

    PhaseAnalysis Analyse() {
        TakeHeads();
        Refuse(heads_.hint);
        if (IsRefused()) return std::move(result_);
        TakeRows();
        CountVariables();
        AskForConstants();
        KeepColumns();
        ChooseIndependents();
        if (!IsRefused()) PlanSets();
        if (!IsRefused()) CheckSets();
        result_.Ok = !IsRefused();
        return std::move(result_);
    }

private:
    const ProcessColumn& Head(int column) const {
        return table_.columns[static_cast<std::size_t>(column)];
    }
    bool IsRefused() const { return !result_.message.empty(); }
    bool IsBinary() const { return table_.MixType == 2; }
    /// The phases alone determine the system but for one variable.
    bool IsFull() const { return result_.PhaseCount() == table_.MixType + 1; }
    bool Has(int row, int column) const { return !table_.Cell(row, column).empty(); }

    void Refuse(const std::string& hint, bool isOfState = true) {
        if (hint.empty() || IsRefused()) return;
        const bool isKnown = heads_.TColumn >= 0 || heads_.PColumn >= 0 || !constants_.T.empty() ||
                             !constants_.P.empty();
        result_.message = isKnown || !isOfState ? DataErrors : NoState;
        result_.hint = hint;
        result_.sets.clear();
        result_.asksT = result_.asksP = false;
    }

    void TakeHeads() {
        for (const PhaseColumns& one : heads_.phases)
            result_.PhaseList.push_back(one.phase);
        result_.Context = ContextOf(heads_.phases);
        states_ = {State{"T", heads_.TColumn, heads_.TColumn >= 0, NormalizeNumber(constants_.T)},
                   State{"P", heads_.PColumn, heads_.PColumn >= 0, NormalizeNumber(constants_.P)}};
        if (heads_.phases.size() > PhaseHeads::MostPhases ||
            heads_.VarNames.size() > PhaseHeads::MostQuantities)
            Refuse(heads_.hint, false);
    }

    void TakeRows() {
        for (int row = 0; row < static_cast<int>(table_.rows.size()); ++row)
            if (table_.IsUsed(row)) rows_.push_back(row);
        isTied_ = !IsBinary() || result_.PhaseCount() > 2;
        const std::size_t most = isTied_ ? MostTiedRows : MostRows;
        if (rows_.size() > most)
            Refuse("At most " + std::to_string(most) + (isTied_ ? " rows of ties" : " rows"),
                   false);
    }

    /// Each further phase is a constraint, and so is each state variable that does not vary.
    void CountVariables() {
        result_.FreeVars = result_.PhaseCount() - 1;
        if (!IsFull())
            for (const State& state : states_)
                if (!state.varies) ++result_.FreeVars;
        result_.nVar = table_.MixType + 1 - result_.FreeVars;
        if (result_.nVar < 1)
            return Refuse(result_.PhaseCount() > table_.MixType + 1
                              ? "Fewer phases"
                              : "A column of temperatures or of pressures");
        if (IsFull()) return;
        std::array<State*, 2> candidates = {&states_[1], &states_[0]};
        // What stored sets hold constant goes first: their property may be of equal values too.
        const auto isConstant = [this](const State* state) {
            return state->varies && Head(state->column).role == Role::Constant;
        };
        std::stable_partition(candidates.begin(), candidates.end(), isConstant);
        for (State* const state : candidates)
            if (result_.nVar > 1) TakeConstant(*state);
    }
    /// A column of equal values is a constraint.
    void TakeConstant(State& state) {
        if (!state.varies || Head(state.column).role == Role::Variable) return;
        const std::size_t least = Head(state.column).role == Role::Constant ? 1 : 2;
        if (rows_.size() < least || StateValues(table_, rows_, state.column).size() != 1) return;
        const ColumnValues values(table_, state.column);
        const auto first =
            std::ranges::find_if(rows_, [&](int row) { return values.Value(row).has_value(); });
        // A cell that is no number is no constant; it is told of with the others.
        if (std::ranges::any_of(rows_,
                                [&](int row) { return values.Has(row) && !values.Value(row); }))
            return;
        state.varies = false;
        state.constant =
            values.Conversion().Converted(NormalizeNumber(table_.Cell(*first, state.column))).text;
        ++result_.FreeVars;
        --result_.nVar;
    }

    void AskForConstants() {
        if (IsFull() || IsRefused()) return;
        bool isKnown = false; // a state, or that stored sets do not state it
        for (const State& state : states_) {
            const bool isStored =
                std::ranges::find(table_.notStated, state.code) != table_.notStated.end();
            isKnown = isKnown || isStored || state.varies || !state.constant.empty();
            const bool asks =
                state.column < 0 && state.constant.empty() && !isStored && !constants_.isAsked;
            (state.code == "T" ? result_.asksT : result_.asksP) = asks;
        }
        if (!isKnown && constants_.isAsked) Refuse("A temperature or a pressure");
    }

    void KeepColumns() {
        for (const PhaseColumns& one : heads_.phases) {
            kept_.push_back(KeepCompositions(table_, rows_, one.compositions));
            const std::vector<int>& implied = kept_.back().implied;
            result_.implied.insert(result_.implied.end(), implied.begin(), implied.end());
        }
        const auto first =
            std::ranges::find_if(kept_, [](const KeptColumns& one) { return one.variable >= 0; });
        first_ = first == kept_.end() ? -1 : static_cast<int>(first - kept_.begin());
    }

    /// State variables that vary, that of more values in front where it matters.
    std::vector<int> VaryingStates(bool byValues) const {
        std::vector<int> columns;
        for (const State& state : states_)
            if (state.varies) columns.push_back(state.column);
        const auto count = [this](int column) { return StateValues(table_, rows_, column).size(); };
        if (byValues && columns.size() == 2 && count(columns[1]) > count(columns[0]))
            std::swap(columns[0], columns[1]);
        return columns;
    }
    /// The columns that are variables of the stored sets that filled the table.
    std::vector<int> StoredVariables() const {
        std::vector<int> columns;
        for (const State& state : states_)
            if (state.varies && Head(state.column).role == Role::Variable)
                columns.push_back(state.column);
        for (const KeptColumns& phase : kept_)
            for (const int column : phase.kept)
                if (Head(column).role == Role::Variable) columns.push_back(column);
        return columns;
    }
    void ChooseIndependents() {
        if (IsRefused()) return;
        const std::vector<int> stored = StoredVariables();
        if (static_cast<int>(stored.size()) == result_.nVar) {
            independents_ = stored;
            return;
        }
        const bool byComposition = IsBinary() && heads_.HasGas();
        const bool isLayered = !IsBinary() && result_.PhaseCount() == 2;
        std::vector<int> columns = VaryingStates(byComposition);
        const int composition = first_ < 0 ? -1 : kept_[static_cast<std::size_t>(first_)].variable;
        if (composition >= 0 && byComposition) columns.insert(columns.begin(), composition);
        if (composition >= 0 && isLayered) columns.push_back(composition);
        const auto count = static_cast<std::size_t>(result_.nVar);
        if (columns.size() < count)
            return Refuse(byComposition || isLayered ? "A column of compositions"
                                                     : "A column of temperatures or of pressures");
        columns.resize(count);
        independents_ = std::move(columns);
    }

    bool IsIndependent(int column) const {
        return std::ranges::find(independents_, column) != independents_.end();
    }
    /// The phase that stands for all where a temperature or a pressure is told: no gas.
    std::string MainPhase() const {
        const auto found = std::ranges::find_if(
            result_.PhaseList, [](const std::string& code) { return code != "G"; });
        return found == result_.PhaseList.end() ? result_.PhaseList.front() : *found;
    }

    void PlanSets() {
        for (std::size_t i = 0; i < heads_.phases.size(); ++i) {
            const std::string& phase = heads_.phases[i].phase;
            for (const State& state : states_)
                if (state.varies && !IsIndependent(state.column) && phase == MainPhase())
                    Plan(state.column, phase, independents_);
            for (const int column : kept_[i].kept)
                if (!IsIndependent(column)) Plan(column, phase, independents_);
            PlanOwn(i);
        }
    }
    void Plan(int property, const std::string& phase, const std::vector<int>& variables) {
        PlannedSet set;
        set.property = property;
        set.uncertainty = heads_.uncertainty[static_cast<std::size_t>(property)];
        set.variables = variables;
        set.PRPCODE = Head(property).quantity;
        set.PHASE1 = phase;
        set.slots = SlotsOf(phase);
        set.isTied = isTied_;
        for (const int row : rows_)
            if (Has(row, property) &&
                std::ranges::all_of(variables, [&](int column) { return Has(row, column); }))
                set.rows.push_back(row);
        result_.sets.push_back(std::move(set));
    }
    std::vector<ConstraintSlot> SlotsOf(const std::string& phase) const {
        std::vector<ConstraintSlot> slots;
        for (const std::string& other : result_.PhaseList)
            if (other != phase) slots.push_back({other, "", "", "S"});
        if (IsFull()) return slots;
        for (const State& state : states_) {
            if (state.varies) continue;
            slots.push_back(state.constant.empty()
                                ? ConstraintSlot()
                                : ConstraintSlot{state.code, state.constant, phase, "S"});
        }
        return slots;
    }

    /// Rows that tell of a phase alone, though the sets go by the composition of another one, make
    /// a set of their own.
    void PlanOwn(std::size_t phase) {
        if (first_ < 0 || static_cast<int>(phase) == first_) return;
        const KeptColumns& first = kept_[static_cast<std::size_t>(first_)];
        const KeptColumns& own = kept_[phase];
        if (!IsIndependent(first.variable) || own.other < 0) return;
        std::vector<int> variables = independents_;
        std::ranges::replace(variables, first.variable, own.variable);
        Plan(own.other, heads_.phases[phase].phase, variables);
        PlannedSet& set = result_.sets.back();
        set.isTied = false;
        const std::vector<int>& others =
            heads_.phases[static_cast<std::size_t>(first_)].compositions;
        std::erase_if(set.rows, [&](int row) {
            return std::ranges::any_of(others, [&](int column) { return Has(row, column); });
        });
        if (set.rows.empty()) result_.sets.pop_back();
    }

    void CheckSets() {
        for (std::size_t column = 0; column < heads_.uncertainty.size(); ++column) {
            const int own = heads_.uncertainty[column];
            const bool isKept = std::ranges::find(result_.sets, static_cast<int>(column),
                                                  &PlannedSet::property) != result_.sets.end();
            if (own >= 0 && !isKept)
                return Refuse("No uncertainties of " + ColumnText(static_cast<int>(column)) +
                              ", which is no property: " + ColumnText(own) +
                              " has no place in the sets");
        }
        if (result_.sets.empty()) return Refuse("A column of a property");
        // The sets stay, for they show what the heads will give.
        if (std::ranges::all_of(result_.sets,
                                [](const PlannedSet& set) { return set.rows.empty(); })) {
            result_.message = DataErrors;
            result_.hint = "A row with a property and all variables";
        }
    }

    const ProcessTable& table_;
    const AskedConstants& constants_;
    const PhaseHeads heads_;
    PhaseAnalysis result_;
    std::vector<int> rows_; // used ones
    bool isTied_ = false;
    std::array<State, 2> states_;
    std::vector<KeptColumns> kept_; // by phase
    int first_ = -1;                // the first phase with compositions
    std::vector<int> independents_;
};

} // namespace

PhaseAnalysis AnalyseVLE(const ProcessTable& table, const AskedConstants& constants) {
    return Analyser(table, constants).Analyse();
}

} // namespace vexora
