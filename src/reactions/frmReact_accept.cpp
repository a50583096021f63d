#include "chem/Balancer.h"
#include "chem/clsAtom.h"
#include "globals/KVOGlobal.h"
#include "reactions/frmReact.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr int Count = clsQ::MostParticipants;

bool SaysTheSame(const std::string& one, const std::string& other) {
    if (one == other) return true;
    return IsNumeric(one) && IsNumeric(other) && Val(one) == Val(other);
}

/// Coefficients of a set that followed those of its reaction go on following them; a set that a
/// file gave others keeps these, for its values are meant with them.
template <class Set>
void Follow(Set& set, int count, const std::vector<std::string>& before, const clsQ& reaction) {
    const auto text = [&](int i) -> const std::string& {
        return before[static_cast<std::size_t>(i - 1)];
    };
    for (int i = 1; i <= count; ++i)
        if (!SaysTheSame(set.PARTICIPANT_COEFF(i), text(i))) return;
    for (int i = 1; i <= count; ++i)
        set.PARTICIPANT_COEFF(i, reaction.Coeff(i));
}

} // namespace

void frmReact::Accept() {
    if (!Check()) return;
    if (IsChanged()) Store();
    // The text is built now, also of a reaction that came from a file as it is.
    if (record_) record_->Reaction = record_->Equation();
    accepted_ = true;
    Close();
}

bool frmReact::Check() {
    if (draft_.REACTCLASS.empty()) return Refuse(cboReactClass, "Select the reaction class");
    return CheckCoefficients() && CheckSamples() && CheckFormulas() &&
           (CheckEquation() || Refuse(cmdEquate, "Reaction is not balanced")) && CheckKey() &&
           ConfirmSets();
}

bool frmReact::CheckCoefficients() {
    bool any = false;
    for (int i = 1; i <= Count; ++i) {
        if (!IsUsed(i)) continue;
        any = true;
        ui::TextBox& box = txtCoeff(i - 1);
        box.Text(NormalizeNumber(box.Text()));
        const std::string number = std::to_string(i);
        if (box.IsEmpty()) return Refuse(box, "Enter coefficient for " + number + " participant");
        if (!IsNumeric(box.Text()) || Val(box.Text()) == 0)
            return Refuse(box, "Participant " + number + " has an invalid coefficient");
    }
    return any || Refuse(cmbComp(0), "Select 1st reaction participant");
}

bool frmReact::CheckSamples() {
    if (!MayChooseSamples()) return true;
    for (int i = 1; i <= Count; ++i)
        if (IsUsed(i) && !draft_.SMPNM(i).empty()) return true;
    int first = 1;
    while (first < Count && !IsUsed(first))
        ++first;
    return Refuse(cboSample(first - 1),
                  "No samples specified\nAt least one participant must have a sample number");
}

bool frmReact::CheckFormulas() {
    const int row = rows_.FirstWithoutFormula();
    return row < 0 || Refuse(cmbComp(row), "Participant formula is misisng");
}

/// Equal reactions have one key, whatever the order in which they were typed.
bool frmReact::CheckKey() {
    clsQ sorted;
    sorted.TakeDefinition(draft_);
    sorted.Sort();
    const auto rival = Globals().CurrentR->FindQ(sorted);
    return !rival || rival == record_ || !IsChanged() ||
           Refuse(cboReactClass, "This reaction has already been entered");
}

bool frmReact::ConfirmSets() {
    if (!HasData()) return true;
    for (int i = 1; i <= Count; ++i)
        if (!SaysTheSame(draft_.Coeff(i), record_->Coeff(i)))
            return Confirm(txtCoeff(i - 1),
                           "Change the coefficients in all sets of this reaction?");
    return true;
}

bool frmReact::IsChanged() const {
    if (!record_) return true;
    for (int i = 1; i <= Count; ++i)
        if (draft_.RN(i) != record_->RN(i) || draft_.Coeff(i) != record_->Coeff(i) ||
            draft_.SMPNM(i) != record_->SMPNM(i))
            return true;
    return draft_.REACTCLASS != record_->REACTCLASS || draft_.SOLVENTRN != record_->SOLVENTRN ||
           draft_.INERTRN != record_->INERTRN;
}

void frmReact::Store() {
    KVOGlobal& globals = Globals();
    const bool isNew = record_ == nullptr;
    if (isNew) record_ = std::make_shared<clsQ>();
    const std::vector<std::string> before = record_->Coefficients();
    record_->TakeDefinition(draft_);
    StoreInSets(before);
    record_->Sort();
    if (isNew)
        record_->AttachTo(*globals.CurrentR);
    else
        record_->Rekey();
    globals.CurrentQ = record_;
    globals.Saved = false;
}

void frmReact::StoreInSets(const std::vector<std::string>& before) const {
    for (const auto& value : record_->recC)
        Follow(*value, Count, before, *record_);
    for (const auto& set : record_->recE)
        Follow(*set, clsE::Participants, before, *record_);
}

} // namespace vexora
