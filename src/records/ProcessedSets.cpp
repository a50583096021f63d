#include "records/ProcessedSets.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>

#include "records/LineWriter.h"
#include "records/PropertyChain.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsS.h"
#include "records/clsTwo.h"

namespace vexora {

namespace {

/// What makes a new set the same as a stored one, whatever its rows, constants and units.
std::string IdentityOf(const clsMV& set) {
    std::string text = set.PRPCODE + " " + set.PHASE1;
    for (int n = 1; n <= set.nVar; ++n)
        text += " " + set.VARIABLE(n) + " " + set.PhaseFor(n);
    return text;
}

bool IsSameConstant(const ConstraintSlot& a, const ConstraintSlot& b) {
    return a.value == b.value || DataSet::ConversionOf(a.code, a.unit).Converted(a.value).text ==
                                     DataSet::ConversionOf(b.code, b.unit).Converted(b.value).text;
}

/// A slot that a new set has no code for: a constant that is named without its value, or air, which
/// stands for a pressure that nobody states.
bool IsUnstated(const ConstraintSlot& slot) {
    return slot.code == "air" || (slot.value.empty() && !NamesPhase(slot.code));
}

/// The slots of the new set in the order of the old one. What says the same stays as it was typed.
std::array<ConstraintSlot, MixtureLine::MostSlots> Merged(const clsMV& old, const clsMV& made) {
    auto slots = old.Constraints;
    std::vector<ConstraintSlot> rest(made.Constraints.begin(),
                                     made.Constraints.begin() + made.ConstraintCount());
    std::vector<ConstraintSlot*> open;
    for (int i = 0; i < old.ConstraintCount(); ++i) {
        ConstraintSlot& slot = slots[static_cast<std::size_t>(i)];
        auto found = std::ranges::find(rest, slot.code, &ConstraintSlot::code);
        if (found == rest.end() && IsUnstated(slot))
            found = std::ranges::find(rest, std::string(), &ConstraintSlot::code);
        if (found == rest.end()) {
            open.push_back(&slot);
            continue;
        }
        if (!found->code.empty() && !IsSameConstant(slot, *found)) {
            const std::string phase = slot.phase;
            slot = *found;
            slot.phase = phase;
        }
        rest.erase(found);
    }
    for (std::size_t i = 0; i < open.size(); ++i)
        *open[i] = i < rest.size() ? rest[i] : ConstraintSlot();
    return slots;
}

/// What is stated of a constant goes where it went; of one that is gone nothing is stated.
void MoveStatementsOfConstants(const clsMV& old, clsMV& set) {
    const std::vector<HeldConstant> before = old.Constants(), now = set.Constants();
    for (const HeldConstant& constant : before)
        set.UX[static_cast<std::size_t>(constant.item)] = {};
    for (const HeldConstant& constant : now) {
        clsX& item = set.UX[static_cast<std::size_t>(constant.item)];
        const auto same = std::ranges::find_if(before, [&](const HeldConstant& one) {
            return one.code == constant.code && one.phase == constant.phase;
        });
        if (same != before.end()) item = old.UX[static_cast<std::size_t>(same->item)];
    }
    for (std::size_t n = 0; n < set.UX.size(); ++n)
        set.UX[n].N = static_cast<int>(n);
}

/// The old set with the figures of the new one.
clsMV Renewed(const clsMV& old, const clsMV& made) {
    clsMV set = old;
    set.PROPERTY_UNIT = made.PROPERTY_UNIT;
    set.Factor = made.Factor;
    set.isOriginalUnit = made.isOriginalUnit;
    set.Variables = made.Variables;
    set.Constraints = Merged(old, made);
    set.recData = made.recData;
    if (!std::ranges::equal(old.Constraints, set.Constraints, {}, &ConstraintSlot::code,
                            &ConstraintSlot::code))
        MoveStatementsOfConstants(old, set);
    if (made.UX[0].iCU && !set.UX[0].iCU) { // a column of them has come
        set.UX[0].iCU = true;
        set.UX[0].CType = made.UX[0].CType;
    }
    NameStatements(set);
    return set;
}

std::string TextOf(const Record& record) {
    LineWriter lines;
    lines.Line(record.ShowKey());
    try {
        record.Print(lines);
    } catch (const SaveRefused& refused) {
        lines.Line(refused.what());
    }
    return lines.Text();
}

/// The record stands in the collection of its owner.
bool IsThere(const Record& owner, const Record& record) {
    if (const auto* mixture = dynamic_cast<const clsM*>(&owner))
        return mixture->recMV.Position(static_cast<const clsMV*>(&record)) != 0;
    return static_cast<const clsS&>(owner).recTwo.Position(static_cast<const clsTwo*>(&record)) !=
           0;
}

} // namespace

ProcessedSets::ProcessedSets(Record& owner) : owner_(owner.As<Record>()) {}

void ProcessedSets::Replace(const std::shared_ptr<clsMV>& set, const clsMV& made) {
    replaced_.push_back({set, std::make_shared<clsMV>(*set)});
    set->Replace(Renewed(*set, made));
    set->Refresh();
    made_.push_back(set);
}

std::shared_ptr<ProcessedSets>
ProcessedSets::Attach(clsM& mixture, const std::vector<std::shared_ptr<clsMV>>& made,
                      const std::vector<std::shared_ptr<clsMV>>& shown,
                      const std::function<bool(clsMV& unused)>& deletes) {
    if (made.empty()) return nullptr;
    std::unordered_map<std::string, std::vector<std::shared_ptr<clsMV>>> present;
    for (auto set = shown.rbegin(); set != shown.rend(); ++set)
        present[IdentityOf(**set)].push_back(*set);
    std::vector<std::shared_ptr<clsMV>> places; // of each new set, null for one to be added
    for (const auto& set : made) {
        auto& alike = present[IdentityOf(*set)];
        places.push_back(alike.empty() ? nullptr : alike.back());
        if (!alike.empty()) alike.pop_back();
    }
    std::vector<std::shared_ptr<clsMV>> unused;
    for (const auto& set : shown)
        if (std::ranges::find(places, set) == places.end() && deletes && deletes(*set))
            unused.push_back(set);
    std::shared_ptr<ProcessedSets> step(new ProcessedSets(mixture));
    for (std::size_t i = 0; i < made.size(); ++i) {
        if (places[i]) {
            step->Replace(places[i], *made[i]);
            continue;
        }
        made[i]->PRPSETNO = std::to_string(NextSetNumber(mixture, *made[i]));
        made[i]->AttachTo(mixture);
        step->added_.push_back(made[i]);
        step->made_.push_back(made[i]);
    }
    for (const auto& set : unused)
        step->deleted_.emplace_back(set);
    step->NoteTexts();
    return step;
}

std::shared_ptr<ProcessedSets>
ProcessedSets::Attach(clsS& sample, const std::vector<std::shared_ptr<clsTwo>>& made) {
    if (made.empty()) return nullptr;
    std::shared_ptr<ProcessedSets> step(new ProcessedSets(sample));
    for (const auto& set : made) {
        set->PRPSETNO = std::to_string(sample.NextTwoNumber(set->PRPCODE, set->nVar));
        set->AttachTo(sample);
        step->added_.push_back(set);
        step->made_.push_back(set);
    }
    step->NoteTexts();
    return step;
}

void ProcessedSets::NoteTexts() {
    for (const auto& record : made_)
        texts_.push_back(TextOf(*record));
}

bool ProcessedSets::CanUndo() const {
    for (std::size_t i = 0; i < made_.size(); ++i)
        if (!IsThere(*owner_, *made_[i]) || TextOf(*made_[i]) != texts_[i]) return false;
    // What was deleted was a mixture's. Its number may have been given to another one.
    return std::ranges::none_of(deleted_, [this](const TakenRecord& taken) {
        return static_cast<const clsM&>(*owner_).recMV.Item(taken.What()->Key()) != nullptr;
    });
}

bool ProcessedSets::Undo() {
    if (!CanUndo()) return false;
    for (auto taken = deleted_.rbegin(); taken != deleted_.rend(); ++taken)
        taken->PutBack();
    for (auto added = added_.rbegin(); added != added_.rend(); ++added) {
        { const TakenRecord gone(*added); }
        (*added)->tNode = nullptr; // who still holds the record must not reach for it
    }
    for (auto replaced = replaced_.rbegin(); replaced != replaced_.rend(); ++replaced) {
        replaced->set->Replace(*replaced->before);
        replaced->set->Refresh();
    }
    return true;
}

} // namespace vexora
