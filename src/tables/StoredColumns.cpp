#include "tables/StoredColumns.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "records/clsMV.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

using Role = ProcessColumn::Role;

constexpr std::string_view Air = "air";

bool IsState(std::string_view code) {
    return code == "T" || code == "P";
}

/// The factor that a unit comes to, 0 for one with a letter.
double FactorOf(const UnitConversion& unit) {
    if (unit.factor > 0) return unit.factor;
    return IsUnitLong(unit.code) ? ConversionFactor(unit.code, unit.unit) : 0;
}

/// What a column says of its unit: a code that is listed, else the factor.
void NameUnit(ProcessColumn& head, const UnitConversion& unit) {
    const double factor = FactorOf(unit);
    if (factor <= 0) {
        head.unit = unit.code.empty() || unit.code == "*" || unit.code == "&" ? "S" : unit.code;
        return;
    }
    const std::string listed = UnitOfFactor(factor, unit.unit);
    head.unit =
        listed.empty() ? std::string(ProcessColumn::ByFactor) : ConversionCodeOf(listed, unit.unit);
    if (listed.empty()) head.factor = NumberText(factor);
}

/// Where a set and the column that it needs come together: the best reason for a unit wins.
struct Wish {
    int rank = 0; // 3 a property as typed, 2 a variable or constant as typed, 1 in system units
    UnitConversion unit;
    Role role = Role::Free;
};

/// Code and phase of a column; states have no phase.
using Place = std::pair<std::string, std::string>;

Place PlaceOf(const std::string& code, const std::string& phase) {
    return {code, IsState(code) ? std::string() : phase};
}

bool HasTypedRows(const clsMV& set) {
    return set.recData.IsEmpty() ||
           std::ranges::any_of(set.recData, [](const clsData& row) { return row.inOriginalUnits; });
}

std::vector<HeldConstant> StatedConstants(const clsMV& set) {
    std::vector<HeldConstant> stated = set.Constants();
    std::erase_if(stated, [](const HeldConstant& one) { return one.value.empty(); });
    return stated;
}

void Take(std::map<Place, Wish>& wishes, const Place& place, const Wish& wish) {
    Wish& present = wishes[place];
    const Role role = present.role == Role::Free ? wish.role : present.role;
    if (wish.rank > present.rank) present = wish;
    present.role = role;
}

std::map<Place, Wish> WishesOf(const std::vector<std::shared_ptr<clsMV>>& sets) {
    std::map<Place, Wish> wishes;
    for (const auto& set : sets) {
        const bool typed = HasTypedRows(*set);
        for (int n = 0; n <= set->nVar; ++n) {
            UnitConversion unit = set->Conversion(n);
            if (!typed) unit = {"S", 0, 0, unit.unit};
            Take(wishes, PlaceOf(set->VARIABLE(n), set->PhaseFor(n)),
                 {typed ? (n == 0 ? 3 : 2) : 1, unit, n == 0 ? Role::Free : Role::Variable});
        }
        for (const HeldConstant& one : StatedConstants(*set))
            Take(wishes, PlaceOf(one.code, {}),
                 {2, DataSet::ConversionOf(one.code, one.unit), Role::Constant});
    }
    return wishes;
}

/// Phases in an order that agrees with the slots of all sets, as far as there is one. In front
/// stands that of the variables, for to it the variables of a table belong.
std::vector<std::string> OrderOfPhases(const std::vector<std::shared_ptr<clsMV>>& sets) {
    std::vector<std::string> open;
    std::vector<Place> inFront; // the first stands in front of the second
    const auto add = [&open](const std::string& phase) {
        if (std::ranges::find(open, phase) == open.end()) open.push_back(phase);
    };
    for (const auto& set : sets)
        for (int n = 1; n <= set->nVar; ++n)
            if (!IsState(set->VARIABLE(n))) add(set->PhaseFor(n));
    for (const auto& set : sets) {
        const std::vector<std::string> phases = TablePhases(*set);
        for (const std::string& phase : phases)
            add(phase);
        for (std::size_t i = 2; i < phases.size(); ++i)
            inFront.emplace_back(phases[i - 1], phases[i]);
    }
    std::vector<std::string> order;
    while (!open.empty()) {
        auto next = std::ranges::find_if(open, [&](const std::string& phase) {
            return std::ranges::none_of(inFront, [&](const Place& pair) {
                return pair.second == phase && std::ranges::find(open, pair.first) != open.end();
            });
        });
        if (next == open.end()) next = open.begin();
        order.push_back(*next);
        open.erase(next);
    }
    return order;
}

/// A phase without any composition is shown by a column without values.
void AddMissingPhases(std::map<Place, Wish>& wishes, const std::vector<std::string>& phases) {
    const auto pattern = std::ranges::find_if(
        wishes, [](const auto& one) { return IsTableComposition(one.first.first); });
    char kind = 'X';
    Wish wish{0, {"D"}, Role::Free};
    if (pattern != wishes.end()) {
        kind = pattern->first.first.front();
        wish.unit = pattern->second.unit;
    }
    for (const std::string& phase : phases) {
        if (std::ranges::any_of(wishes, [&](const auto& one) { return one.first.second == phase; }))
            continue;
        const bool isOfOne = IsCrystalPhase(phase) && phase.back() >= '1' && phase.back() <= '3';
        wishes[{std::string{kind, isOfOne ? phase.back() : '1'}, phase}] = wish;
    }
}

/// A state that is neither named nor held constant varies without being known; where an empty slot
/// is left for it, it is a constant that is not stated.
void AddMissingStates(std::map<Place, Wish>& wishes, const clsMV& set,
                      std::vector<std::string>& notStated) {
    int empty = 0;
    for (int n = 1; n <= set.ConstraintCount(); ++n) {
        if (IsBlankField(set.CONSTRAINT(n)) || set.CONSTRAINT(n) == Air) ++empty;
        if (IsState(set.CONSTRAINT(n)) && set.CNVALUE(n).empty())
            notStated.push_back(set.CONSTRAINT(n));
    }
    const bool phasesDetermine = static_cast<int>(TablePhases(set).size()) == set.MixType + 1;
    for (const char* code : {"P", "T"}) {
        if (wishes.contains({code, {}}) || std::ranges::find(notStated, code) != notStated.end())
            continue;
        if (empty-- > 0)
            notStated.emplace_back(code);
        else if (!phasesDetermine)
            wishes[{code, {}}] = {0, {"S", 0, 0, UnitOfVariable(code)}, Role::Free};
    }
}

/// T, P, then phase by phase; in a phase by component.
std::vector<Place> Ordered(const std::map<Place, Wish>& wishes,
                           const std::vector<std::string>& phases) {
    const auto rank = [&phases](const Place& place) {
        const auto& [code, phase] = place;
        const auto at = std::ranges::find(phases, phase) - phases.begin();
        return IsState(code) ? std::tuple{code == "T" ? -2L : -1L, ' ', ' '}
                             : std::tuple{static_cast<long>(at), code[1], code[0]};
    };
    std::vector<Place> places;
    for (const auto& wish : wishes)
        places.push_back(wish.first);
    std::ranges::sort(places, {}, rank);
    return places;
}

bool HasCombinedUncertainty(const clsMV& set) {
    return std::ranges::any_of(
        set.recData, [](const clsData& row) { return row.Extras && !row.Extras->userCU.empty(); });
}

} // namespace

std::vector<std::string> TablePhases(const clsMV& set) {
    std::vector<std::string> phases = set.Phases();
    std::erase(phases, Air);
    return phases;
}

bool IsTableComposition(std::string_view code) {
    return code.size() == 2 && std::string_view("XWJV").find(code[0]) != std::string_view::npos &&
           code[1] >= '1' && code[1] <= '3';
}

bool ColumnUnit::operator==(const ColumnUnit& other) const {
    const double mine = FactorOf(conversion), its = FactorOf(other.conversion);
    if (mine > 0 || its > 0) return NumberText(mine) == NumberText(its);
    if (!conversion.ChangesValues()) return !other.conversion.ChangesValues();
    return conversion.code == other.conversion.code;
}

ColumnUnit ColumnUnit::Of(const ProcessColumn& head) {
    if (head.unit == ProcessColumn::ByFactor)
        return {{"*", Val(head.factor), 0, UnitOfVariable(head.quantity)}};
    return {DataSet::ConversionOf(head.quantity, head.unit)};
}

std::string StoredItem::Shown(std::string_view figure, bool inOriginalUnits,
                              const ColumnUnit& columnUnit) const {
    if (inOriginalUnits ? isAsTyped : isAsSystem) return std::string(figure);
    return columnUnit.conversion.EnteredText(inOriginalUnits ? unit.Converted(figure).text
                                                             : std::string(figure));
}

std::string StoredItem::ShownDifference(const std::string& figure, bool inOriginalUnits,
                                        const ColumnUnit& columnUnit) const {
    if (inOriginalUnits ? isAsTyped : isAsSystem) return figure;
    return columnUnit.conversion.EnteredDifferenceText(inOriginalUnits ? unit.DifferenceText(figure)
                                                                       : figure);
}

namespace {

void AddColumn(StoredColumns& columns, const Place& place, const Wish& wish, bool isUncertain) {
    ProcessColumn head{place.first, {}, {}, place.second, wish.role};
    NameUnit(head, wish.unit);
    columns.heads.push_back(head);
    columns.units.push_back({wish.unit});
    columns.uncertainties.push_back(isUncertain ? static_cast<int>(columns.heads.size()) : -1);
    if (!isUncertain) return;
    ProcessColumn beside;
    beside.quantity = ProcessColumn::CombinedUncertainty;
    columns.heads.push_back(beside);
    columns.units.push_back({wish.unit});
    columns.uncertainties.push_back(-1);
}

void AddItem(StoredColumns& columns, StoredItem item) {
    const ColumnUnit& shown = columns.units[item.column];
    item.isAsTyped = ColumnUnit{item.unit} == shown;
    item.isAsSystem = !shown.conversion.ChangesValues();
    columns.items.push_back(std::move(item));
}

void AddItems(StoredColumns& columns, const clsMV& set, std::map<Place, std::size_t>& columnOf) {
    StoredItem item;
    item.set = &set;
    for (item.item = 0; item.item <= set.nVar; ++item.item) {
        item.column = columnOf[PlaceOf(set.VARIABLE(item.item), set.PhaseFor(item.item))];
        item.unit = set.Conversion(item.item);
        AddItem(columns, item);
    }
    item.isConstant = true;
    item.item = 0;
    for (const HeldConstant& one : set.Constants()) {
        item.column = one.value.empty() ? 0 : columnOf[PlaceOf(one.code, {})];
        item.unit = DataSet::ConversionOf(one.code, one.unit);
        if (!one.value.empty()) AddItem(columns, item);
        ++item.item;
    }
}

} // namespace

StoredColumns ColumnsOf(const std::vector<std::shared_ptr<clsMV>>& sets) {
    StoredColumns columns;
    std::map<Place, Wish> wishes = WishesOf(sets);
    const std::vector<std::string> phases = OrderOfPhases(sets);
    AddMissingPhases(wishes, phases);
    AddMissingStates(wishes, *sets.front(), columns.notStated);
    std::map<Place, std::size_t> columnOf;
    for (const Place& place : Ordered(wishes, phases)) {
        columnOf[place] = columns.heads.size();
        AddColumn(columns, place, wishes[place], std::ranges::any_of(sets, [&](const auto& set) {
                      return PlaceOf(set->PRPCODE, set->PHASE1) == place &&
                             HasCombinedUncertainty(*set);
                  }));
    }
    for (const auto& set : sets)
        AddItems(columns, *set, columnOf);
    return columns;
}

} // namespace vexora
