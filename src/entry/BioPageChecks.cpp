// What is wrong with the quantities of a bio set, and what goes when they become others.
#include "entry/BioPages.h"
#include "entry/PropertyContext.h"
#include "records/clsA.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"
#include "ui/OneLine.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr const char* NoNumber = "Enter a numerical value";
constexpr const char* OfConcern = "B"; // the set is why the work was done

/// A number, and for an uncertainty that is no less than 0 the sign of per cent behind it.
std::string NormalizedUncertainty(std::string_view typed) {
    std::string_view text = TrimBlanks(typed);
    const bool isPerCent = text.ends_with('%');
    if (isPerCent) text = TrimBlanks(text.substr(0, text.size() - 1));
    return NormalizeNumber(text) + (isPerCent ? "%" : "");
}

bool IsUncertainty(std::string_view text) {
    if (text == "*") return true;
    if (text.ends_with('%')) text.remove_suffix(1);
    return IsNumeric(text) && Val(text) >= 0;
}

bool IsRepeat(const BioEntries& entries, std::size_t n) {
    return std::any_of(entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(n),
                       [&](const BioEntry& one) {
                           return one.quantity.IsSameAs(entries[n].quantity) &&
                                  one.quantity.role == entries[n].quantity.role;
                       });
}

} // namespace

BioFaults BioQuantityPage::Check(bool hasPropertyElsewhere) {
    BioFaults faults;
    CheckSubjects(faults);
    const bool isProperty = role_ == BioRole::Property;
    if (isProperty && !hasPropertyElsewhere && Entries().empty())
        faults.push_back({&on_.quantities(0), "No property defined"});
    CheckNumbers(faults);
    CheckRepeats(faults);
    return faults;
}

void BioQuantityPage::CheckSubjects(BioFaults& faults) const {
    for (int i = 0; i < Count(); ++i) {
        const Offered* const chosen = Chosen(i);
        if (chosen && chosen->entry && chosen->entry->needsComponent && At(i).subject.key.empty())
            faults.push_back({&on_.components(i), "Select the component"});
    }
    for (int i = 0; on_.phases && i < Count(); ++i)
        if (Chosen(i) && BioPhaseChosen((*on_.phases)(i)).empty())
            faults.push_back({&(*on_.phases)(i), "Select the phase"});
}

void BioQuantityPage::CheckNumbers(BioFaults& faults) {
    for (int i = 0; i < Count(); ++i) {
        if (!Chosen(i)) continue;
        if (on_.values) {
            ui::TextBox& value = (*on_.values)(i);
            value.Text(NormalizeNumber(value.Text()));
            if (!IsNumeric(value.Text())) faults.push_back({&value, NoNumber});
        }
        if (!on_.states(i).Value()) continue;
        ui::TextBox& uncertainty = on_.uncertainties(i);
        uncertainty.Text(NormalizedUncertainty(uncertainty.Text()));
        const std::string stated = StatedUncertainty(i);
        // A constant stands in no row; what a file says of one is left to the check.
        const bool isByNoRow = on_.values && stated == "*" && At(i).before.uncertainty != stated;
        if (isByNoRow || !IsUncertainty(stated)) faults.push_back({&uncertainty, NoNumber});
    }
}

void BioQuantityPage::CheckRepeats(BioFaults& faults) const {
    const BioEntries entries = Entries();
    for (std::size_t n = 1; n < entries.size(); ++n)
        if (IsRepeat(entries, n))
            faults.push_back({entries[n].field, role_ == BioRole::Constraint
                                                    ? "Duplicate constraint"
                                                : role_ == BioRole::Variable ? "Duplicate varible"
                                                : isReaction_                ? "Duplicate propible"
                                                              : "Duplicate property"});
}

/// A property and a variable of one code are two quantities where their tables differ; what varies
/// cannot be held constant as well.
BioFaults CheckAcross(const BioEntries& entries) {
    BioFaults faults;
    for (std::size_t n = 0; n < entries.size(); ++n) {
        const BioQuantity& one = entries[n].quantity;
        const bool isTwice =
            std::any_of(entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(n),
                        [&](const BioEntry& other) { return other.quantity.IsSameAs(one); });
        if (isTwice) faults.push_back({entries[n].field, "Duplicate varible"});
    }
    return faults;
}

namespace {

bool HasFigures(const BioSet& set, std::size_t place) {
    if (place < set.recU.size() && set.recU[place].IsKept()) return true;
    return place < set.Columns() && std::ranges::any_of(set.recD, [place](const clsBD& row) {
               return place < row.Cells.size() && (!IsBlankField(row.Cells[place].value) ||
                                                   !IsBlankField(row.Cells[place].uncertainty));
           });
}

bool HasRowUncertainties(const BioSet& set, std::size_t place) {
    return place < set.Columns() && std::ranges::any_of(set.recD, [place](const clsBD& row) {
               return place < row.Cells.size() && !IsBlankField(row.Cells[place].uncertainty);
           });
}

/// How what stood in a set becomes what its pages say.
class Revision {
public:
    Revision(BioSet& draft, const BioEntries& entries) : draft_(draft), entries_(entries) {}

    /// Asks what has to be asked; false when the person wants to go back.
    bool Ask() {
        for (std::size_t place = 0; place < draft_.Quantities().size(); ++place)
            if (!AskOf(place)) return false;
        return true;
    }
    void Apply() {
        for (const BioEntry& entry : entries_) {
            if (!entry.origin || IsDropped(*entry.origin)) continue;
            draft_.Change(*entry.origin, entry.quantity);
        }
        for (auto place = dropped_.rbegin(); place != dropped_.rend(); ++place)
            draft_.Erase(*place);
        std::vector<BioQuantity> quantities;
        for (const BioEntry& entry : entries_)
            quantities.push_back(entry.quantity);
        draft_.TakeQuantities(quantities);
    }

private:
    bool IsDropped(std::size_t place) const {
        return std::ranges::find(dropped_, place) != dropped_.end();
    }
    /// Where nothing on the pages says otherwise, a quantity has merely moved to another row.
    bool HasMoved(const BioQuantity& before) const {
        return std::ranges::any_of(entries_, [&](const BioEntry& one) {
            return !one.origin && one.quantity.role == before.role && one.quantity.IsSameAs(before);
        });
    }
    bool AskOf(std::size_t place) {
        const BioQuantity& before = draft_.Quantities()[place];
        const auto now = std::ranges::find(entries_, std::optional(place), &BioEntry::origin);
        if (now == entries_.end()) return HasMoved(before) || MayDrop(place);
        const bool isOther = now->isOther || now->quantity.unit != before.unit;
        return (!isOther || !HasFigures(draft_, place) || AskFate(place, *now)) &&
               (IsDropped(place) || MayDropRowUncertainties(place, *now));
    }
    bool MayDrop(std::size_t place) {
        dropped_.push_back(place);
        return !HasFigures(draft_, place) || entries_.empty() ||
               AskLoss(FieldNear(draft_.Quantities()[place]),
                       "The set has figures of " + draft_.NameOf(draft_.Quantities()[place]));
    }
    /// Where the same quantity stands now, else another one of its page.
    ui::Control& FieldNear(const BioQuantity& before) const {
        const auto find = [&](auto holds) { return std::ranges::find_if(entries_, holds); };
        auto entry = find([&](const BioEntry& one) { return one.quantity.IsSameAs(before); });
        if (entry == entries_.end())
            entry = find([&](const BioEntry& one) { return one.quantity.role == before.role; });
        return *(entry == entries_.end() ? entries_.front() : *entry).field;
    }
    /// What becomes of the figures of a quantity that is another one now, or in another unit.
    bool AskFate(std::size_t place, const BioEntry& now) {
        const auto answer =
            ui::AskYesNoCancel("The set has figures of " + FullName(draft_.Quantities()[place]) +
                               "\nDo they stand for " + FullName(now.quantity) +
                               " from now on? With No they are dropped.");
        if (answer == ui::Answer::No) dropped_.push_back(place);
        if (answer == ui::Answer::Cancel) now.field->SetFocus();
        return answer != ui::Answer::Cancel;
    }
    bool MayDropRowUncertainties(std::size_t place, const BioEntry& now) const {
        const BioQuantity& before = draft_.Quantities()[place];
        return !before.StatesByRow() || now.quantity.StatesByRow() ||
               !HasRowUncertainties(draft_, place) ||
               AskLoss(*now.field,
                       "Rows of the table state uncertainties of " + draft_.NameOf(before));
    }
    static bool AskLoss(ui::Control& field, const std::string& what) {
        return field.Owner().Confirm(field, what + ", which go with it\nGo on?");
    }
    /// The name with its unit, as it tells what changes.
    std::string FullName(const BioQuantity& quantity) const {
        const std::string unit = draft_.UnitOf(quantity);
        return draft_.NameOf(quantity) + (unit.empty() ? "" : " in " + unit);
    }
    BioSet& draft_;
    const BioEntries& entries_;
    std::vector<std::size_t> dropped_;
};

} // namespace

bool TakeEntries(BioSet& draft, const BioEntries& entries) {
    Revision revision(draft, entries);
    if (!revision.Ask()) return false;
    revision.Apply();
    return true;
}

void FillBioHeader(clsA& header, bool isNew, const std::string& comment) {
    if (isNew) {
        SignHeader(header);
        header.EXPPURPOSE = OfConcern;
    }
    header.DATACOMMENT = ui::OneLine(comment);
}

} // namespace vexora
