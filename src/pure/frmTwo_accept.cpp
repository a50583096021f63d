#include "pure/frmTwo.h"

#include <algorithm>
#include <utility>

#include "chem/CommentTags.h"
#include "chem/MethodTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/PropertyContext.h"
#include "entry/SetRevision.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/PropertyChain.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

/// A set with rows of its own, so that a table that is given up has changed nothing.
std::shared_ptr<clsTwo> CopyOf(const clsTwo& record) {
    return std::static_pointer_cast<clsTwo>(record.Copy());
}

/// A new set of the same definition: what is stated about all its rows, without any of them.
std::shared_ptr<clsTwo> DefinitionOf(const clsTwo& pattern) {
    auto set = std::make_shared<clsTwo>();
    set->DATATYPE = pattern.DATATYPE;
    set->commentInSystemUnits = pattern.commentInSystemUnits;
    set->FallbackMolarMass = pattern.FallbackMolarMass;
    set->UX = pattern.UX;
    for (clsX& item : set->UX)
        item.KVOUValue.clear();
    return set;
}

/// What was stated about a constant is not true of what came in its place.
void DropStatementsOfNoConstant(clsTwo& set) {
    for (int n = set.nVar + 1; n < DataSet::Items; ++n) {
        clsX& item = set.UX[static_cast<std::size_t>(n)];
        if (item.PRPCODE.empty() || !set.ConstantOf(item.PRPCODE).empty()) continue;
        item = clsX();
        item.N = n;
    }
}

} // namespace

void frmTwo::Accept() {
    if (!Check()) return;
    const auto set = MakeSet();
    if (!MayLackPressure(*set)) return;
    if (TurnsRows()) ui::Say("The rows of the table are brought to system units");
    if (Draft().numerical == Presentation::NoNumbers ? !DropNumbers(*set) : !EnterNumbers(set))
        return;
    Store(set);
    Close();
}

/// The fields stand in the order of their names in TwoField.
ui::Control& frmTwo::FieldOf(TwoField field) {
    ui::Control* const fields[] = {&cboSample,    &cboVar1,     &lstVariable_Unit,  &cboVar2,
                                   &lstVar2_Unit, &txtVar3,     &lstPROPERTY_FUNCT, &lstRelation,
                                   &lstREF_PHASE, &txtREF_TEMP, &txtREF_PRESSURE,   &lstCONSTRAINT,
                                   &lstPhase1,    &lstPhase2,   &lstNumerical};
    return *fields[static_cast<std::size_t>(field)];
}

bool frmTwo::Check() {
    NormalizeNumbers();
    const auto faults = CheckTwo(Draft());
    if (!faults.empty()) return Refuse(FieldOf(faults.front().field), faults.front().text);
    const std::string fault = UnitFault(*Globals().CurrentProperty);
    if (!fault.empty()) return Refuse(cmdMethod, fault);
    if (TurnsRows() && !CopyOf(*record_)->AdjustUnits())
        return Refuse(cmdMethod, "Invalid conversion factor");
    return CheckUnits() && MayDropStatements();
}

/// The set is to stand in system units, and its rows stand in those of the paper.
bool frmTwo::TurnsRows() const {
    return record_ && record_->isOriginalUnit && !Globals().OriginalUnits &&
           !record_->recData.IsEmpty();
}

/// Values of a variable whose unit cannot be converted are never stored.
bool frmTwo::CheckUnits() {
    if (!Globals().OriginalUnits) return true;
    for (int n = 1; n <= Globals().VariableCount; ++n) {
        const std::string code = UnitCodeOf(n);
        const std::string unit = UnitOfVariable(VariableOf(n == 1 ? cboVar1 : cboVar2));
        if (ConversionFactor(code, unit) > 0) continue;
        return Refuse(n == 1 ? lstVariable_Unit : lstVar2_Unit, "Invalid conversion factor");
    }
    return true;
}

/// The quantities of the set that are other ones now: 0 the property, 1 and on
/// the variables.
std::vector<int> frmTwo::ReplacedItems() const {
    std::vector<int> items;
    if (!as_) return items;
    if (Globals().PropertyCode != as_->PRPCODE) items.push_back(0);
    const TwoDraft draft = Draft();
    for (int n = 1; n <= draft.nVar; ++n)
        if (as_->VARIABLE(n) != (n == 1 ? draft.variable1 : draft.variable2)) items.push_back(n);
    return items;
}

/// What rows state about a quantity is not true of another one; that it goes is
/// asked once.
bool frmTwo::MayDropStatements() {
    if (!record_ || Draft().numerical == Presentation::NoNumbers) return true;
    std::string names;
    ui::Control* field = nullptr;
    for (const int item : ReplacedItems()) {
        if (!HasStatements(*record_, item)) continue;
        names += (names.empty() ? "" : " and ") +
                 (item == 0 ? PropertyName(record_->PRPCODE, record_->DataContext())
                            : VariableName(record_->VARIABLE(item)));
        if (!field)
            field = item == 0   ? &static_cast<ui::Control&>(cmdMethod)
                    : item == 1 ? &cboVar1
                                : &cboVar2;
    }
    return !field || AskToDropStatements(*field, names);
}

/// That a set at a fixed pressure leaves its box empty is asked once; of a set that is edited, only
/// where it did state one.
bool frmTwo::MayLackPressure(const clsTwo& set) {
    const bool isAsked = OpenVariable(Draft()).code == "P" && set.LacksPressure();
    if (!isAsked || mayLackPressure_) return true;
    mayLackPressure_ = Confirm(txtVar3, "No pressure is stated. Is that all right?");
    return mayLackPressure_;
}

void frmTwo::NormalizeNumbers() {
    for (ui::TextBox* box : {&txtVar3, &txtREF_TEMP, &txtREF_PRESSURE})
        box->Text(NormalizeNumber(box->Text()));
}

std::shared_ptr<clsTwo> frmTwo::MakeSet() {
    auto set = record_ ? CopyOf(*record_) : as_ ? DefinitionOf(*as_) : std::make_shared<clsTwo>();
    if (TurnsRows()) set->AdjustUnits(); // while it still knows the units that they were typed in
    set->Parent = choice_.Sample().get();
    WriteDefinition(*set);
    WriteVariables(*set);
    WriteResults(*set);
    WriteComment(*set);
    DropStatementsOfNoConstant(*set);
    NameStatements(*set);
    return set;
}

void frmTwo::WriteDefinition(clsTwo& set) const {
    const StoredProperty property = PropertyToStore();
    const TwoDraft draft = Draft();
    set.nVar = draft.nVar;
    set.SMPNM = choice_.Sample()->SMPNM;
    set.PRPCODE = StoredPropertyCode(row_.Code, draft.phase1, draft.phase2);
    set.PRPSETNO = txtPrpSetNo.Text();
    set.isOriginalUnit = property.isOriginalUnit;
    set.Factor = property.factor;
    set.PROPERTY_UNIT = property.unit;
    set.CONSTRAINT = draft.constraint;
    set.PHASE1 = draft.phase1;
    const bool asBefore = as_ && as_->CONSTRAINT == draft.constraint && as_->PHASE1 == draft.phase1;
    const bool unseen = asBefore && !lstPhase2.Visible(); // of a file: not asked for, not lost
    set.PHASE2 = unseen ? as_->PHASE2 : OrPlaceholder(draft.phase2);
    Presentation presentation = Presentation::Of(set.DATATYPE);
    presentation.numerical = draft.numerical;
    presentation.calculated = chkCalc.Value();
    presentation.equation = chkEqu.Value();
    presentation.graph = chkGraph.Value();
    set.DATATYPE = presentation.Code();
}

void frmTwo::WriteVariables(clsTwo& set) const {
    const TwoDraft draft = Draft();
    set.VARIABLE1 = draft.variable1;
    set.VAR1_UNIT = UnitCodeOf(1);
    set.VARIABLE2 = set.nVar > 1 ? draft.variable2 : "";
    set.VAR2_UNIT = set.nVar > 1 ? UnitCodeOf(2) : "";
    for (const int n : ReplacedItems()) {
        set.UX[static_cast<std::size_t>(n)] = clsX();
        for (clsData& row : set.recData)
            DropStatements(row, n);
    }
    for (int n = 1; n <= set.nVar; ++n) {
        clsX& item = set.UX[static_cast<std::size_t>(n)];
        const bool another = !item.PRPCODE.empty() && item.PRPCODE != set.VARIABLE(n);
        if (another) item = clsX(); // what was stated about another quantity is not true of this
        item.PHASE = set.PHASE1;
    }
    set.UX[0].PHASE = set.PHASE1;
}

/// The code of a variable's unit. One that the form came with is kept as it is, also where no table
/// knows it, or where values in system units bear it as the memory of the paper's unit.
std::string frmTwo::UnitCodeOf(int n) const {
    const ui::ComboBox& units = n == 1 ? lstVariable_Unit : lstVar2_Unit;
    const std::string variable = VariableOf(n == 1 ? cboVar1 : cboVar2);
    const bool original = Globals().OriginalUnits;
    const bool same = as_ && as_->VARIABLE(n) == variable && as_->isOriginalUnit == original;
    if (same && units.Chosen() == UnitShown(*as_, n)) return as_->VAR_UNIT(n);
    const auto row = FindVariable(variable);
    return row && original ? ConversionCodeOf(units.Chosen(), row->Unit) : "S";
}

void frmTwo::WriteResults(clsTwo& set) const {
    const TwoDraft draft = Draft();
    const bool relative = NeedsRelation(draft.function);
    const ResultDefinition before =
        as_ ? ResultDefinition::Of(as_->PROPERTY_FUNCT) : ResultDefinition();
    const std::string relation =
        before.relation == "FX" && draft.relation == "TF" ? "FX" : draft.relation;
    const ResultDefinition definition = {draft.function, relative ? relation : std::string()};
    const bool same = as_ && definition == before; // what a file states besides is kept
    set.PROPERTY_FUNCT = definition.Code();
    const bool fixedT = relative && draft.Definition().FixesTemperature();
    const bool fixedP = relative && draft.Definition().FixesPressure();
    const bool phase = relative && draft.Definition().NamesPhase();
    set.REF_TEMP = fixedT || same ? draft.refTemp : "";
    set.REF_PRESSURE = fixedP || same ? draft.refPressure : "";
    set.REF_PHASE = phase || same ? draft.refPhase : "";
}

/// The value that all rows have in common stands among the tags. The variable of a set of one is
/// written there by the set itself where it needs to.
void frmTwo::WriteComment(clsTwo& set) {
    CommentTags tags = CommentTags::OfTags(Globals().KeyRest);
    const std::string open = OpenVariable(Draft()).code;
    const std::string constant = open + " = " + txtVar3.Text();
    const bool stated = !open.empty() && !txtVar3.IsEmpty();
    if (!stated || !tags.Has(constant)) DropConstants(tags);
    if (as_ && (set.nVar > 1 || as_->VARIABLE1 != set.VARIABLE1))
        tags.DropBeginning("V1:" + as_->VARIABLE1);
    if (stated) tags.Set(constant, true);
    Globals().KeyRest = tags.Stored();
    BuildPropertyChain();
    FillHeader(set.Header, !record_,
               BuildComment(txtComment.Text(), *Globals().CurrentProperty, ""));
}

/// Takes the constant values out of the tags, but for those of a file that the form never showed.
void frmTwo::DropConstants(CommentTags& tags) const {
    const TwoDraft draft = Draft();
    const std::string open = OpenVariable(draft).code;
    for (const std::string code : {"WL", "WF", "P", "T"}) {
        const bool seen = code == open || code == openAtFirst_;
        const bool varies = code == draft.variable1 || (draft.nVar > 1 && code == draft.variable2);
        if (as_ && !seen && !varies) continue;
        tags.DropBeginning(code + " = ");
    }
}

/// The items of variables that are no longer there go, with the precisions stated for them.
void frmTwo::BuildPropertyChain() {
    clsProperty* last = Globals().CurrentProperty.get();
    const TwoDraft draft = Draft();
    for (int n = 1; n <= draft.nVar; ++n) {
        const std::string& code = n == 1 ? draft.variable1 : draft.variable2;
        const bool same = !last->isLast && last->NextItem && last->NextItem->PropertyCode == code;
        if (!same) last->NextItem = std::make_shared<clsProperty>();
        last->isLast = false;
        last = last->NextItem.get();
        if (!same) last->PropertyCode = code;
    }
    last->isLast = true;
    last->NextItem = nullptr;
}

/// A set that had numbers and is said to have none loses its rows, if that is meant. What a file
/// says in that way is kept as it stands.
bool frmTwo::DropNumbers(clsTwo& set) {
    if (set.recData.IsEmpty() || !Presentation::Of(as_->DATATYPE).HasNumbers()) return true;
    if (!AskToDropRows(lstNumerical, set.recData.Count())) return false;
    set.recData.Clear();
    return true;
}

/// The table works on the set as the current one; true when it was accepted.
bool frmTwo::EnterNumbers(const std::shared_ptr<clsTwo>& set) {
    const auto isDigit = [](const clsData& row) { return row.isDigit; };
    return EnterRows(cmdOK, set,
                     chkIncludeDigit.Value() ||
                         (TurnsRows() && std::ranges::any_of(set->recData, isDigit)));
}

void frmTwo::Store(const std::shared_ptr<clsTwo>& set) {
    KVOGlobal& globals = Globals();
    if (record_) {
        record_->Replace(*set);
        globals.CurrentTwo = record_;
    } else {
        set->AttachTo(*choice_.Sample());
        globals.CurrentTwo = set;
    }
    globals.Saved = false;
    globals.DialogAccepted = true;
}

} // namespace vexora
