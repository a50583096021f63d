#include "records/BioSet.h"

#include "globals/KVOGlobal.h"
#include "records/Substance.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <unordered_map>

namespace vexora {

namespace {

template <class T>
void InsertAt(std::vector<T>& list, std::size_t place, T item) {
    // Statements and cells may be fewer than quantities where a form is about to fill them in.
    if (place > list.size()) list.resize(place);
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(place), std::move(item));
}

template <class T>
void EraseAt(std::vector<T>& list, std::size_t place) {
    if (place < list.size()) list.erase(list.begin() + static_cast<std::ptrdiff_t>(place));
}

/// A statement is about the quantity that it stands for.
void Name(clsX& statement, const BioQuantity& quantity) {
    statement.PRPCODE = quantity.code;
    statement.PHASE = quantity.phase;
    statement.Name.clear();
}

/// The source of a set, or the one in hand for a set that is being made.
const clsR* SourceOf(const BioSet& set) {
    return set.Parent ? set.Parent : Globals().CurrentR.get();
}

bool HasCells(BioRole role) {
    return role != BioRole::Constraint;
}

} // namespace

BioSet::BioSet() {
    Header.EXPPURPOSE = "B"; // measured for its own sake, until something else is said
}

const BioQuantityText* BioSet::TextOf(const BioQuantity& quantity) const {
    return QuantityByCode(TableOf(quantity.role), quantity.code);
}

std::string BioSet::NameOf(const BioQuantity& quantity) const {
    const BioQuantityText* const entry = TextOf(quantity);
    std::string name = entry ? std::string(entry->text) : quantity.code;
    if (!quantity.component.empty())
        name += " of " + CompoundName(quantity.component) + NumberAmong(quantity);
    if (quantity.phase.empty()) return name;
    const std::string phase = PhaseName(quantity.phase);
    return name + " (" + (phase.empty() ? quantity.phase : phase) + ")";
}

/// Which one of a compound is meant, where the set says the same of another one as well.
std::string BioSet::NumberAmong(const BioQuantity& quantity) const {
    const std::string& key = quantity.component;
    const std::string rn = RNOfKey(key);
    if (key == rn) return {}; // the first
    const bool isTold = std::ranges::any_of(quantities_, [&](const BioQuantity& other) {
        return other.code == quantity.code && other.phase == quantity.phase &&
               other.component != key && RNOfKey(other.component) == rn;
    });
    return isTold ? " (" + key.substr(rn.size() + 1) + ")" : std::string();
}

std::string BioSet::UnitOf(const BioQuantity& quantity) const {
    const BioQuantityText* const entry = quantity.unit.empty() ? TextOf(quantity) : nullptr;
    const std::string unit = entry ? std::string(entry->unit) : quantity.unit;
    return unit == "1" ? std::string() : unit;
}

UnitConversion BioSet::ConversionOf(const BioQuantity& quantity) const {
    const BioQuantityText* const entry = TextOf(quantity);
    UnitConversion conversion;
    conversion.unit = entry ? std::string(entry->unit) : std::string();
    if (quantity.unit.empty() || quantity.unit == conversion.unit) return conversion;
    conversion.code = ConversionCodeOf(quantity.unit, conversion.unit);
    // A text that no table knows is no system unit: the conversion is not possible then.
    if (IsSystemUnit(conversion.code)) conversion.code = quantity.unit;
    return conversion;
}

std::size_t BioSet::CountOf(BioRole role) const {
    return static_cast<std::size_t>(std::ranges::count(quantities_, role, &BioQuantity::role));
}

std::size_t BioSet::FirstOf(BioRole role) const {
    const auto first = std::ranges::lower_bound(quantities_, role, {}, &BioQuantity::role);
    return static_cast<std::size_t>(first - quantities_.begin());
}

std::size_t BioSet::Add(BioQuantity quantity) {
    const auto behind =
        std::ranges::upper_bound(quantities_, quantity.role, {}, &BioQuantity::role);
    const auto place = static_cast<std::size_t>(behind - quantities_.begin());
    clsX statement;
    Name(statement, quantity);
    InsertAt(recU, place, std::move(statement));
    if (HasCells(quantity.role))
        for (clsBD& row : recD)
            InsertAt(row.Cells, place, BioCell());
    InsertAt(quantities_, place, std::move(quantity));
    return place;
}

void BioSet::Erase(std::size_t place) {
    if (place >= quantities_.size()) return;
    if (HasCells(quantities_[place].role))
        for (clsBD& row : recD)
            EraseAt(row.Cells, place);
    EraseAt(recU, place);
    EraseAt(quantities_, place);
}

void BioSet::Change(std::size_t place, BioQuantity quantity) {
    if (place >= quantities_.size()) return;
    quantity.role = quantities_[place].role;
    // The line of a row has no room for what is stated for all of them.
    if (quantities_[place].StatesByRow() && !quantity.StatesByRow())
        for (clsBD& row : recD)
            if (place < row.Cells.size()) row.Cells[place].uncertainty.clear();
    quantities_[place] = std::move(quantity);
    if (place < recU.size()) Name(recU[place], quantities_[place]);
}

namespace {

/// Where each of the new quantities stood before; none for one that is new. Each stood at one place
/// and under one role, if it can be.
std::vector<std::size_t> PlacesBefore(const std::vector<BioQuantity>& before,
                                      const std::vector<BioQuantity>& now) {
    constexpr std::size_t none = std::string::npos;
    std::vector<std::size_t> places(now.size(), none);
    std::vector<bool> isTaken(before.size());
    for (const bool sameRole : {true, false}) {
        for (std::size_t n = 0; n < now.size(); ++n) {
            for (std::size_t b = 0; b < before.size() && places[n] == none; ++b) {
                const bool fits = !isTaken[b] && before[b].IsSameAs(now[n]) &&
                                  (before[b].role == now[n].role) == sameRole;
                if (!fits) continue;
                places[n] = b;
                isTaken[b] = true;
            }
        }
    }
    return places;
}

BioCell CellAt(const clsBD& row, std::size_t place, bool statesByRow) {
    if (place >= row.Cells.size()) return {};
    BioCell cell = row.Cells[place];
    if (!statesByRow) cell.uncertainty.clear();
    return cell;
}

} // namespace

void BioSet::TakeQuantities(const std::vector<BioQuantity>& quantities) {
    const std::vector<BioQuantity> before = std::exchange(quantities_, quantities);
    std::ranges::stable_sort(quantities_, {}, &BioQuantity::role);
    std::vector<std::size_t> places = PlacesBefore(before, quantities_);
    std::vector<clsX> statements(quantities_.size());
    for (std::size_t n = 0; n < quantities_.size(); ++n) {
        if (places[n] < recU.size()) statements[n] = recU[places[n]];
        Name(statements[n], quantities_[n]);
        // A value that stood for all rows is in none of them.
        if (places[n] < before.size() && !HasCells(before[places[n]].role))
            places[n] = std::string::npos;
    }
    recU = std::move(statements);
    const std::size_t columns = Columns();
    for (clsBD& row : recD) {
        std::vector<BioCell> cells(columns);
        for (std::size_t n = 0; n < columns; ++n)
            cells[n] = CellAt(row, places[n], quantities_[n].StatesByRow());
        row.Cells = std::move(cells);
    }
}

std::vector<std::string> BioSet::Keys() const {
    std::vector<std::string> rns;
    for (const std::string& key : ParticipantKeys())
        rns.push_back(RNOfKey(key));
    for (const BioComponent& component : Components)
        rns.push_back(component.RN);
    return NumberedKeys(std::move(rns));
}

std::vector<std::string> BioSet::NumberedKeys(std::vector<std::string> rns) {
    std::unordered_map<std::string, int> counts;
    for (std::string& rn : rns) {
        const int count = ++counts[rn];
        if (count > 1 && !rn.empty()) rn += "." + std::to_string(count);
    }
    return rns;
}

std::string BioSet::KeyOf(std::size_t component) const {
    return component < Components.size() ? Keys()[ParticipantKeys().size() + component]
                                         : std::string();
}

std::string BioSet::RNOfKey(std::string_view key) {
    return std::string(key.substr(0, key.find('.')));
}

std::vector<std::string> BioSet::Compounds() const {
    std::vector<std::string> rns;
    for (const std::string& key : Keys())
        if (RNOfKey(key) == key && !key.empty()) rns.push_back(key);
    return rns;
}

std::shared_ptr<clsL> BioSet::CompoundOf(std::string_view key) const {
    const clsR* const source = SourceOf(*this);
    return source ? source->FindL(RNOfKey(key)) : nullptr;
}

/// A phase equilibrium is one of a complex.
std::string BioSet::CompoundName(std::string_view key) const {
    const std::string rn = RNOfKey(key);
    const clsR* const source = SourceOf(*this);
    const auto substance = source ? source->FindSubstance(rn) : nullptr;
    return substance ? substance->ShowKey() : rn;
}

bool BioSet::Uses(std::string_view rn) const {
    return !rn.empty() && (std::ranges::count(Components, rn, &BioComponent::RN) != 0 ||
                           std::ranges::any_of(quantities_, [rn](const BioQuantity& quantity) {
                               return RNOfKey(quantity.component) == rn;
                           }));
}

bool BioSet::UsesSample(std::string_view rn, std::string_view sample) const {
    return std::ranges::any_of(Components, [&](const BioComponent& component) {
        return component.RN == rn && IsSameSample(component.SMPNM, sample);
    });
}

bool BioSet::IsSameSample(std::string_view a, std::string_view b) {
    // By value: "01" is sample 1.
    return !a.empty() && !b.empty() && ToInteger(Val(a)) == ToInteger(Val(b));
}

std::shared_ptr<BioSet> CurrentBioSet() {
    const KVOGlobal& globals = Globals();
    if (globals.CurrentKey == "RBR") return globals.CurrentBR;
    if (IsOneOf(globals.CurrentKey, {"RBP", "RXSP"})) return globals.CurrentBP;
    return nullptr;
}

bool StatesContent(const BioSet& set, std::string_view rn) {
    return std::ranges::any_of(set.Quantities(), [rn](const BioQuantity& quantity) {
        return quantity.role != BioRole::Property && BioSet::RNOfKey(quantity.component) == rn &&
               IsOneOf(quantity.code, {"X", "W", "M", "J", "E", "pC"});
    });
}

std::vector<std::string> BioUnits(const BioQuantityText& quantity) {
    const bool isFraction = IsOneOf(quantity.code, {"X", "W", "Xs", "Ws", "Vs"});
    std::vector<std::string> units = UnitList(quantity.unit, isFraction ? "X" : "");
    units.front() = quantity.unit;
    std::erase_if(units, [&quantity](const std::string& text) {
        return text != quantity.unit && IsMassBased(ConversionCodeOf(text, quantity.unit));
    });
    return units;
}

} // namespace vexora
