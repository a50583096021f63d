// Accepting: checks, the table, and the set in its place.
#include "mixtures/frmMixtVar.h"

#include <algorithm>
#include <utility>

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/PropertyContext.h"
#include "entry/SetRevision.h"
#include "globals/KVOGlobal.h"
#include "records/Presentation.h"
#include "records/PropertyLabels.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"

namespace vexora {

void frmMixtVar::Accept() {
    if (!Check()) return;
    const auto set = MakeSet();
    if (TurnsRows()) ui::Say("The rows of the table are brought to system units");
    const bool none = Draft().numerical == Presentation::NoNumbers;
    if (!none && !tied_.empty()) {
        if (EnterTied(*set)) Close();
        return;
    }
    if (none ? !DropNumbers(*set) : !EnterNumbers(set)) return;
    Store(set);
    Close();
}

bool frmMixtVar::Check() {
    NormalizeNumbers();
    if (!Mixture()) return Refuse(cboMixt, "Select the mixture");
    return CheckRules() && CheckUnits() && MayLoseVariables() && MayDropStatements();
}

/// What is only unlikely is asked about once.
bool frmMixtVar::CheckRules() {
    for (const MixtVarFinding& finding : CheckMixtVar(Draft())) {
        ui::Control& field = FieldOf(finding);
        if (!finding.asks) return Refuse(field, finding.text);
        if (allowed_.contains(finding.text)) continue;
        if (!Confirm(field, finding.text)) return false;
        allowed_.insert(finding.text);
    }
    return true;
}

ui::Control& frmMixtVar::FieldOf(const MixtVarFinding& finding) {
    const int i = finding.index;
    switch (finding.field) {
    case MixtVarField::Method:
        return cmdMethod;
    case MixtVarField::PhaseCount:
        return cboPhases;
    case MixtVarField::ConstraintCount:
        return cboConstraints;
    case MixtVarField::Phase:
        return lstPhase(i);
    case MixtVarField::Sample:
        return cboSample(i);
    case MixtVarField::Constraint:
        return cboConstraint(i);
    case MixtVarField::ConstraintUnit:
        return cboConstrUnit(i);
    case MixtVarField::ConstraintValue:
        return txtConstr(i);
    case MixtVarField::ConstraintPhase:
        return cboConstrPhase(i);
    case MixtVarField::Variable:
        return cboVar(i);
    case MixtVarField::VariableUnit:
        return cboVarUnit(i);
    case MixtVarField::VariablePhase:
        return cboVarPhase(i);
    case MixtVarField::Constant:
        return txtVar5;
    case MixtVarField::Function:
        return lstPROPERTY_FUNCT;
    case MixtVarField::Relation:
        return lstRelation;
    case MixtVarField::RefPhase:
        return cboRefPhase;
    case MixtVarField::RefTemp:
        return txtRefT;
    case MixtVarField::RefPressure:
        return txtRefP;
    case MixtVarField::Solvent:
        return cboSolvent;
    case MixtVarField::StandardState:
        return cboStandardState;
    case MixtVarField::Numerical:
        break;
    }
    return lstNumerical;
}

void frmMixtVar::NormalizeNumbers() {
    for (ui::TextBox* box : {&txtVar5, &txtRefT, &txtRefP})
        box->Text(NormalizeNumber(box->Text()));
    for (const auto& box : txtConstr)
        box->Text(NormalizeNumber(box->Text()));
}

/// The set is to stand in system units, and its rows stand in those of the paper.
bool frmMixtVar::TurnsRows() const {
    return record_ && record_->isOriginalUnit && !Globals().OriginalUnits &&
           !record_->recData.IsEmpty();
}

/// Values whose unit cannot be converted are never stored. By mass into by mole it takes the molar
/// mass of each row, and with it those of all components.
bool frmMixtVar::CheckUnits() {
    const clsProperty& head = *Globals().CurrentProperty;
    if (head.Factor <= 0 && IsMassBased(head.ConversionCode)) {
        const auto masses = Mixture()->MolarMasses();
        for (int n = 0; n < Mixture()->MixType; ++n)
            if (masses[static_cast<std::size_t>(n)] <= 0)
                return Refuse(cmdMethod, "Molar mass of the mixture is not known");
    } else if (const std::string fault = UnitFault(head); !fault.empty()) {
        return Refuse(cmdMethod, fault);
    }
    if (TurnsRows() && !record_->Copy()->AdjustUnits())
        return Refuse(cmdMethod, "Invalid conversion factor");
    const MixtureLine shown = DefinitionShown();
    const auto isUnknown = [](const std::string& code, const std::string& unit) {
        return ConversionFactor(unit, UnitOfVariable(code)) <= 0;
    };
    for (int i = 0; i < shown.nVar; ++i) {
        const MixtureVariable& one = shown.variables[static_cast<std::size_t>(i)];
        if (Globals().OriginalUnits && isUnknown(one.code, one.unit))
            return Refuse(cboVarUnit(i), "Invalid conversion factor");
    }
    const int first = Draft().phaseCount - 1; // in front of the constraints stand the phases
    for (int i = first; i < shown.SlotCount(); ++i) {
        const ConstraintSlot& one = shown.slots[static_cast<std::size_t>(i)];
        if (!IsCriticalCurve(one.code) && isUnknown(one.code, one.unit))
            return Refuse(cboConstrUnit(i - first), "Invalid conversion factor");
    }
    return true;
}

/// The quantities of the rows that are other ones now: 0 the property, 1 and on the variables.
std::vector<int> frmMixtVar::ReplacedItems() const {
    std::vector<int> items;
    if (!as_) return items;
    if (row_.Code != as_->PRPCODE) items.push_back(0);
    const std::vector<MixtVarQuantity> variables = Draft().variables;
    for (int n = 1; n <= std::min(static_cast<int>(variables.size()), as_->nVar); ++n)
        if (as_->VARIABLE(n) != variables[static_cast<std::size_t>(n - 1)].code) items.push_back(n);
    return items;
}

/// What rows state about a quantity is not true of another one; that it goes is asked once.
bool frmMixtVar::MayDropStatements() {
    if (!record_ || Draft().numerical == Presentation::NoNumbers) return true;
    std::string names;
    ui::Control* field = nullptr;
    for (const int item : ReplacedItems()) {
        if (!HasStatements(*record_, item)) continue;
        names +=
            (names.empty() ? "" : " and ") +
            (item == 0 ? PropertyLabels::Of(*record_).name : VariableName(record_->VARIABLE(item)));
        if (!field) field = item == 0 ? &static_cast<ui::Control&>(cmdMethod) : &cboVar(item - 1);
    }
    return !field || AskToDropStatements(*field, names);
}

/// Fewer variables than before leave no column for the values of the last ones.
bool frmMixtVar::MayLoseVariables() {
    if (!record_ || Draft().numerical == Presentation::NoNumbers) return true;
    std::string names;
    for (int n = Draft().VariableCount() + 1; n <= record_->nVar; ++n) {
        const auto hasValue = [n](const clsData& row) {
            return !row.Values[static_cast<std::size_t>(n)].empty();
        };
        if (std::ranges::none_of(record_->recData, hasValue)) continue;
        names += (names.empty() ? "" : " and ") + VariableName(record_->VARIABLE(n));
    }
    return names.empty() || Confirm(cboConstraints, "Rows of the table hold values of " + names +
                                                        ", which go with it\nGo on?");
}

/// A set that had numbers and is said to have none loses its rows, if that is meant. What a file
/// says in that way is kept as it stands.
bool frmMixtVar::DropNumbers(clsMV& set) {
    if (set.recData.IsEmpty() || !Presentation::Of(as_->DATATYPE).HasNumbers()) return true;
    if (!AskToDropRows(lstNumerical, set.recData.Count())) return false;
    set.recData.Clear();
    return true;
}

/// The table works on the set as the current one; true when it was accepted.
bool frmMixtVar::EnterNumbers(const std::shared_ptr<clsMV>& set) {
    const auto isDigit = [](const clsData& row) { return row.isDigit; };
    return EnterRows(cmdOK, set,
                     chkIncludeDigit.Value() ||
                         (TurnsRows() && std::ranges::any_of(set->recData, isDigit)));
}

/// The table of all tied sets shows them as they stand, so the definition is stored first, and
/// taken back with a table that is cancelled. What the table is accepted for, it stores itself.
bool frmMixtVar::EnterTied(const clsMV& set) {
    const clsMV before = *record_;
    record_->Replace(set);
    if (!EnterTiedRows(cmdOK, tied_)) {
        record_->Replace(before);
        return false;
    }
    Globals().Saved = false;
    Globals().DialogAccepted = true;
    return true;
}

void frmMixtVar::Store(const std::shared_ptr<clsMV>& set) {
    KVOGlobal& globals = Globals();
    if (record_) {
        record_->Replace(*set);
        globals.CurrentMV = record_;
    } else {
        set->AttachTo(*Mixture());
        globals.CurrentMV = set;
    }
    globals.Saved = false;
    globals.DialogAccepted = true;
}

} // namespace vexora
