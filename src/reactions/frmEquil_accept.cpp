// Accepting: checks, the table, and the set in its place.
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/PropertyContext.h"
#include "entry/SetRevision.h"
#include "globals/KVOGlobal.h"
#include "reactions/frmEquil.h"
#include "records/Presentation.h"
#include "records/PropertyLabels.h"
#include "records/ReactionText.h"
#include "records/clsQ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"

#include <algorithm>

namespace vexora {

void frmEquil::Accept() {
    if (!Check()) return;
    const auto set = MakeSet();
    if (TurnsRows()) ui::Say("The rows of the table are brought to system units");
    const bool none = Draft().numerical == Presentation::NoNumbers;
    if (none ? !DropNumbers(*set) : !EnterNumbers(set)) return;
    Store(set);
    Close();
}

bool frmEquil::Check() {
    for (const auto& box : txtConst)
        box->Text(NormalizeNumber(box->Text()));
    if (!txtPrpSetNo.Locked()) txtPrpSetNo.Text(NormalizeNumber(txtPrpSetNo.Text()));
    const auto faults = CheckEquil(Draft());
    if (!faults.empty()) return Refuse(FieldOf(faults.front()), faults.front().text);
    return CheckSetNumber() && CheckUnits() && MayDropStatements();
}

/// Only a number that a person has mended can be that of another set.
bool frmEquil::CheckSetNumber() {
    clsE draft;
    draft.PRPCODE = row_.Code;
    draft.PRPSETNO = txtPrpSetNo.Text();
    const auto rival = txtPrpSetNo.Locked() ? nullptr : reaction_->recE.Item(draft.Key());
    return !rival || rival == record_ ||
           Refuse(txtPrpSetNo, "Another data set has this number already");
}

ui::Control& frmEquil::FieldOf(const EquilFault& fault) {
    const int i = fault.index;
    switch (fault.field) {
    case EquilField::SetNumber:
        return txtPrpSetNo;
    case EquilField::Coefficients:
        return cmdFinish; // they are those of the reaction
    case EquilField::Sample:
        return cboSample(i);
    case EquilField::Participant:
        return Part(0, i + 1);
    case EquilField::Phase:
        return cboPhase(0);
    case EquilField::ConstantValue:
        return txtConst(i);
    case EquilField::Variable:
        return cboVar(i);
    case EquilField::VariableUnit:
        return cboVarUnit(i);
    case EquilField::Constant:
        return cboConst(i);
    case EquilField::StandardState:
        return cboStandardState;
    case EquilField::Numerical:
        break;
    }
    return lstNumerical;
}

/// The set is to stand in system units, and its rows stand in those of the paper.
bool frmEquil::TurnsRows() const {
    return record_ && record_->isOriginalUnit && !Globals().OriginalUnits &&
           !record_->recData.IsEmpty();
}

/// Values whose unit cannot be converted are never stored.
bool frmEquil::CheckUnits() {
    const std::string fault = UnitFault(*Globals().CurrentProperty);
    if (!fault.empty()) return Refuse(cmdMethod, fault);
    if (TurnsRows() && !record_->Copy()->AdjustUnits())
        return Refuse(cmdMethod, "Invalid conversion factor");
    for (int n = 1; Globals().OriginalUnits && n <= VariableCount(); ++n) {
        const std::string unit = UnitOfVariable(ParticipantCodeOf(QuantityOf(cboVar(n - 1))).code);
        if (ConversionFactor(UnitCodeOf(n), unit) <= 0)
            return Refuse(cboVarUnit(n - 1), "Invalid conversion factor");
    }
    return true;
}

/// The quantities of the rows that are other ones now: 0 the property, 1 and on the variables.
std::vector<int> frmEquil::ReplacedItems() const {
    std::vector<int> items;
    if (!as_) return items;
    if (row_.Code != as_->PRPCODE) items.push_back(0);
    for (int n = 1; n <= VariableCount(); ++n)
        if (as_->VARIABLE(n) != QuantityOf(cboVar(n - 1))) items.push_back(n);
    return items;
}

/// What rows state about a quantity is not true of another one; that it goes is asked once.
bool frmEquil::MayDropStatements() {
    if (!record_ || Draft().numerical == Presentation::NoNumbers) return true;
    std::string names;
    ui::Control* field = nullptr;
    for (const int item : ReplacedItems()) {
        if (!HasStatements(*record_, item)) continue;
        names += (names.empty() ? "" : " and ") +
                 (item == 0 ? PropertyLabels::Of(*record_).name : record_->VariableWords(item));
        if (!field) field = item == 0 ? &static_cast<ui::Control&>(cmdMethod) : &cboVar(item - 1);
    }
    return !field || AskToDropStatements(*field, names);
}

/// A set that had numbers and is said to have none loses its rows, if that is meant. What a file
/// says in that way is kept as it stands.
bool frmEquil::DropNumbers(clsE& set) {
    if (set.recData.IsEmpty() || !Presentation::Of(as_->DATATYPE).HasNumbers()) return true;
    if (!AskToDropRows(lstNumerical, set.recData.Count())) return false;
    set.recData.Clear();
    return true;
}

/// The table works on the set as the current one; true when it was accepted.
bool frmEquil::EnterNumbers(const std::shared_ptr<clsE>& set) {
    const auto isDigit = [](const clsData& row) { return row.isDigit; };
    return EnterRows(cmdAccept, set,
                     chkIncludeDigit.Value() ||
                         (TurnsRows() && std::ranges::any_of(set->recData, isDigit)));
}

void frmEquil::Store(const std::shared_ptr<clsE>& set) {
    KVOGlobal& globals = Globals();
    if (record_) {
        record_->Replace(*set);
        globals.CurrentE = record_;
    } else {
        set->AttachTo(*reaction_);
        globals.CurrentE = set;
    }
    globals.Saved = false;
    globals.DialogAccepted = true;
}

} // namespace vexora
