// The pages of property, variables and constraints: what they show and say.
#include <algorithm>
#include <utility>

#include "entry/BioPages.h"
#include "entry/PhaseLists.h"
#include "reference/Conversions.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr const char* None = "None";
constexpr const char* ByRow = "*"; // the uncertainty stands in the rows
constexpr const char* NoUnit = "1";

/// The unit as the form shows it, and back.
std::string UnitShown(const std::string& unit) {
    return unit == NoUnit || unit.empty() ? FixedUnitList(NoUnit).front() : unit;
}
std::string UnitStored(const std::string& shown) {
    return shown == FixedUnitList(NoUnit).front() ? NoUnit : shown;
}

std::vector<std::string> UnitsShown(const BioQuantityText& entry) {
    std::vector<std::string> units = BioUnits(entry);
    for (std::string& unit : units)
        unit = UnitShown(unit);
    return units;
}

} // namespace

BioQuantity AtmosphericPressure() {
    return {BioRole::Constraint, "P", "kPa", {}, {}, {}, "101.325"};
}

BioQuantityPage::BioQuantityPage(ui::Form& form, BioRole role, const Controls& controls)
    : form_(form), role_(role), on_(controls), rows_(static_cast<std::size_t>(Count())) {
    for (int i = 0; i < Count(); ++i) {
        on_.quantities(i).OnClick = [this, i] { QuantityClick(i); };
        on_.components(i).OnClick = [this, i] { SubjectClick(i); };
        on_.states(i).OnClick = [this, i] { Enable(i); };
    }
}

ui::Layout BioQuantityPage::Arrangement() const {
    using namespace ui;
    std::vector<Layout> rows = {
        Note(role_ == BioRole::Constraint
                 ? "An uncertainty with % is per cent of the value."
                 : "An uncertainty holds for all rows, with % as per cent of the value; left empty "
                   "it is given row by row.")};
    for (int i = 0; i < Count(); ++i)
        rows.push_back(RowArrangement(i));
    rows.push_back(Stretch());
    return Column(std::move(rows));
}

ui::Layout BioQuantityPage::RowArrangement(int i) const {
    using namespace ui;
    std::vector<Layout> parts = {on_.quantities(i),
                                 Field("Component:", Narrow(on_.components(i), 20))};
    if (on_.phases) parts.push_back(Field("Phase:", Narrow((*on_.phases)(i), 12)));
    if (on_.values) parts.push_back(Field("Value:", Narrow((*on_.values)(i), 10)));
    parts.push_back(Field("Unit:", Narrow(on_.units(i), 13)));
    parts.push_back(
        Field("Uncertainty:", ui::Row({on_.states(i), Narrow(on_.uncertainties(i), 8)})));
    return Field(std::to_string(i + 1) + ":", ui::Row(std::move(parts)));
}

void BioQuantityPage::Offer(const BioSet& set, std::string_view kind) {
    isReaction_ = set.IsReaction();
    offered_.clear();
    const bool isVariables = role_ == BioRole::Variable;
    const auto add = [&](BioRole role, std::string_view wanted, const std::string& prefix) {
        for (const BioQuantityText& entry : set.TableOf(role))
            if (entry.kind == wanted)
                offered_.push_back(
                    {role, std::string(entry.code), prefix + std::string(entry.text), &entry});
    };
    if (role_ != BioRole::Property) add(role_, {}, isVariables ? "Var. " : "");
    if (role_ != BioRole::Constraint) add(BioRole::Property, kind, isVariables ? "Prop. " : "");
    std::vector<std::string> texts = {None};
    for (const Offered& one : offered_)
        texts.push_back(one.text);
    const ui::FillingScope filling(form_);
    for (const auto& list : on_.quantities)
        list->Assign(texts);
}

void BioQuantityPage::OfferSubjects(const std::vector<BioSubject>& subjects) {
    const ui::FillingScope filling(form_);
    for (Row& row : rows_) {
        if (row.subject.key.empty()) continue;
        const std::string rn = BioSet::RNOfKey(row.subject.key);
        const auto follows = [&](const BioSubject& one) {
            return one.row == row.subject.row && BioSet::RNOfKey(one.key) == rn;
        };
        auto found = std::ranges::find_if(subjects, follows);
        // It may have moved to another row.
        if (found == subjects.end())
            found = std::ranges::find_if(
                subjects, [&](const BioSubject& one) { return BioSet::RNOfKey(one.key) == rn; });
        if (found != subjects.end()) row.subject = *found;
        // One that never stood on the form, as a file may have it, stays until another is chosen.
        else if (row.subject.row >= 0)
            row.subject = {};
    }
    subjects_ = subjects;
    for (int i = 0; i < Count(); ++i) {
        FillSubjects(i);
        Enable(i);
    }
}

void BioQuantityPage::FillSubjects(int i) {
    std::vector<std::string> names = {None};
    for (const BioSubject& one : subjects_)
        names.push_back(one.name);
    const BioSubject& chosen = At(i).subject;
    const auto place = static_cast<int>(std::ranges::find(subjects_, chosen.key, &BioSubject::key) -
                                        subjects_.begin());
    const bool isStranger = !chosen.key.empty() && place == static_cast<int>(subjects_.size());
    if (isStranger) names.push_back(chosen.name);
    if (names != on_.components(i).Items()) on_.components(i).Assign(std::move(names));
    on_.components(i).Index(chosen.key.empty() ? 0 : place + 1);
}

void BioQuantityPage::OfferPhases(const std::vector<std::string>& codes) {
    if (!on_.phases) return;
    const ui::FillingScope filling(form_);
    for (const auto& list : *on_.phases) {
        const std::string chosen = BioPhaseChosen(*list);
        FillBioPhases(*list, codes);
        // What was on offer and is so no more is gone; what never was came from a file.
        const bool isGone = std::ranges::find(phases_, chosen) != phases_.end() &&
                            std::ranges::find(codes, chosen) == codes.end();
        if (!isGone) ChoosePhase(*list, chosen);
    }
    phases_ = codes;
}

void BioQuantityPage::Fill(const std::vector<BioQuantity>& quantities) {
    const ui::FillingScope filling(form_);
    int i = 0;
    for (std::size_t n = 0; n < quantities.size(); ++n) {
        if (quantities[n].role != role_ || i == Count()) continue;
        At(i).origin = n;
        FillRow(i++, quantities[n]);
    }
    for (; i < Count(); ++i) {
        At(i).origin.reset();
        FillRow(i, {});
    }
}

void BioQuantityPage::FillRow(int i, const BioQuantity& quantity) {
    Row& row = At(i);
    row.before = quantity;
    row.phase = quantity.phase;
    row.chosen = quantity.code.empty() ? -1 : PlaceOf(quantity);
    on_.quantities(i).Index(row.chosen + 1);
    row.subject = {};
    if (!quantity.component.empty()) {
        const auto found = std::ranges::find(subjects_, quantity.component, &BioSubject::key);
        row.subject = found != subjects_.end()
                          ? *found
                          : BioSubject{quantity.component, quantity.component, -1};
    }
    row.subjectBefore = row.subject;
    FillSubjects(i);
    FillUnits(i, quantity.unit);
    if (on_.phases) {
        (*on_.phases)(i).Index(0);
        ChoosePhase((*on_.phases)(i), quantity.phase);
    }
    if (on_.values) (*on_.values)(i).Text(quantity.value);
    on_.states(i).Value(!quantity.uncertainty.empty());
    const bool isByRow = quantity.uncertainty == ByRow && role_ != BioRole::Constraint;
    on_.uncertainties(i).Text(isByRow ? "" : quantity.uncertainty);
    Enable(i);
}

/// A code that no table has, as a file may have it, joins the list and is its own text.
int BioQuantityPage::PlaceOf(const BioQuantity& quantity) {
    const auto found = std::ranges::find_if(offered_, [&](const Offered& one) {
        return one.role == quantity.role && one.code == quantity.code;
    });
    if (found != offered_.end()) return static_cast<int>(found - offered_.begin());
    offered_.push_back({quantity.role, quantity.code, quantity.code});
    for (const auto& list : on_.quantities)
        list->Add(quantity.code);
    return static_cast<int>(offered_.size()) - 1;
}

const BioQuantityPage::Offered* BioQuantityPage::Chosen(int i) const {
    const int chosen = At(i).chosen;
    return chosen < 0 ? nullptr : &offered_[static_cast<std::size_t>(chosen)];
}

/// The system unit is chosen by itself; one that is not offered, as a file may have it, joins.
void BioQuantityPage::FillUnits(int i, const std::string& unit) {
    const Offered* const chosen = Chosen(i);
    std::vector<std::string> units;
    if (chosen && chosen->entry) units = UnitsShown(*chosen->entry);
    const std::string own =
        unit.empty() ? (units.empty() ? std::string() : units.front()) : UnitShown(unit);
    if (!own.empty() && std::ranges::find(units, own) == units.end()) units.push_back(own);
    on_.units(i).Assign(std::move(units));
    on_.units(i).Choose(own);
}

/// Unit, value, phase and uncertainty were those of another quantity.
void BioQuantityPage::QuantityClick(int i) {
    if (form_.Filling) return;
    Row& row = At(i);
    const int chosen = on_.quantities(i).Index() - 1;
    if (std::exchange(row.chosen, chosen) != chosen) {
        const ui::FillingScope filling(form_);
        const Offered* const now = Chosen(i);
        if (!now || (now->entry && !now->entry->needsComponent)) {
            row.subject = {};
            FillSubjects(i);
        }
        FillUnits(i, {});
        const bool isBefore = now && row.origin && now->code == row.before.code;
        row.phase = isBefore ? row.before.phase : std::string();
        if (!now && on_.phases) (*on_.phases)(i).Index(0);
        if (on_.values) (*on_.values)(i).Text("");
        on_.states(i).Value(false);
        on_.uncertainties(i).Text("");
    }
    Enable(i);
}

void BioQuantityPage::SubjectClick(int i) {
    if (form_.Filling) return;
    const int place = on_.components(i).Index() - 1;
    if (place < 0)
        At(i).subject = {};
    else if (place < static_cast<int>(subjects_.size()))
        At(i).subject = subjects_[static_cast<std::size_t>(place)];
}

void BioQuantityPage::Enable(int i) {
    const Offered* const chosen = Chosen(i);
    const bool isUsed = chosen != nullptr;
    // A temperature is nobody's, but a property may be one of the components.
    const bool mayBeOfOne = chosen && (!chosen->entry || chosen->entry->needsComponent ||
                                       chosen->role == BioRole::Property);
    on_.components(i).Enabled(mayBeOfOne || !At(i).subject.key.empty());
    on_.units(i).Enabled(isUsed && on_.units(i).Count() > 1);
    if (on_.phases) (*on_.phases)(i).Enabled(isUsed);
    if (on_.values) (*on_.values)(i).Enabled(isUsed);
    on_.states(i).Enabled(isUsed);
    on_.uncertainties(i).Enabled(isUsed && on_.states(i).Value());
}

std::string BioQuantityPage::StatedUncertainty(int i) const {
    if (!on_.states(i).Value()) return {};
    const std::string text(TrimBlanks(on_.uncertainties(i).Text()));
    return text.empty() && role_ != BioRole::Constraint ? ByRow : text;
}

BioQuantity BioQuantityPage::QuantityIn(int i) const {
    BioQuantity quantity;
    const Offered* const chosen = Chosen(i);
    if (!chosen) return quantity;
    quantity.role = chosen->role;
    quantity.code = chosen->code;
    quantity.unit = UnitStored(on_.units(i).Chosen());
    // A file may leave the system unit open, and so does who looks at it.
    const BioQuantity& before = At(i).before;
    const bool isOpen = before.code == chosen->code && before.unit.empty();
    if (isOpen && chosen->entry && quantity.unit == chosen->entry->unit) quantity.unit.clear();
    quantity.phase = on_.phases ? BioPhaseChosen((*on_.phases)(i)) : At(i).phase;
    quantity.component = At(i).subject.key;
    quantity.uncertainty = StatedUncertainty(i);
    if (on_.values) quantity.value = TrimBlanks((*on_.values)(i).Text());
    return quantity;
}

/// A compound that has moved to another row is the same, but not the other of two.
bool BioQuantityPage::IsOtherSubject(const Row& row) const {
    const BioSubject& before = row.subjectBefore;
    const std::string rn = BioSet::RNOfKey(before.key);
    if (BioSet::RNOfKey(row.subject.key) != rn) return true;
    return row.subject.row != before.row &&
           std::ranges::any_of(subjects_, [&](const BioSubject& one) {
               return one.row == before.row && BioSet::RNOfKey(one.key) == rn;
           });
}

BioEntries BioQuantityPage::Entries() const {
    BioEntries entries;
    for (int i = 0; i < Count(); ++i) {
        const Row& row = At(i);
        if (row.chosen < 0) continue;
        BioEntry entry{QuantityIn(i), std::nullopt, false, &on_.quantities(i)};
        const bool isSame =
            entry.quantity.code == row.before.code && entry.quantity.role == row.before.role;
        if (isSame) entry.origin = row.origin;
        entry.isOther = entry.quantity.phase != row.before.phase || IsOtherSubject(row);
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace vexora
