// What the form says, written into a set.
#include "mixtures/frmMixtVar.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "chem/MethodTags.h"
#include "chem/clsProperty.h"
#include "entry/PropertyContext.h"
#include "entry/SetRevision.h"
#include "globals/KVOGlobal.h"
#include "records/Presentation.h"
#include "records/PropertyChain.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Conversions.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// A new set of the same definition: what is stated about all its rows, without any of them.
std::shared_ptr<clsMV> DefinitionOf(const clsMV& pattern) {
    auto set = std::make_shared<clsMV>();
    set->DATATYPE = pattern.DATATYPE;
    set->COMPOSITION = pattern.COMPOSITION;
    set->commentInSystemUnits = pattern.commentInSystemUnits;
    set->UX = pattern.UX;
    for (clsX& item : set->UX)
        item.KVOUValue.clear();
    return set;
}

/// Another figure in another unit says the same of a constant; what is stated about it has to
/// follow. Of another unit alone the figures are those of the paper, as rows are.
bool IsTurned(const HeldConstant& before, const HeldConstant& now) {
    return before.unit != now.unit && before.value != now.value;
}

/// A difference stated in the unit of before, in that of now.
std::string Turned(const HeldConstant& before, const HeldConstant& now, const std::string& typed) {
    const UnitConversion from = DataSet::ConversionOf(before.code, before.unit);
    const UnitConversion to = DataSet::ConversionOf(now.code, now.unit);
    return to.EnteredDifferenceText(from.DifferenceText(typed));
}

clsX Unstated(int n) {
    clsX item;
    item.N = n;
    return item;
}

} // namespace

std::shared_ptr<clsMV> frmMixtVar::MakeSet() {
    auto set = record_ ? std::static_pointer_cast<clsMV>(record_->Copy())
               : as_   ? DefinitionOf(*as_)
                       : std::make_shared<clsMV>();
    if (TurnsRows()) set->AdjustUnits(); // while it still knows the units that they were typed in
    set->Parent = Mixture().get();
    set->Define(DefinitionShown());
    WriteProperty(*set);
    WriteResults(*set);
    WriteComment(*set);
    WriteStatements(*set);
    WriteRows(*set);
    NameStatements(*set);
    return set;
}

void frmMixtVar::WriteProperty(clsMV& set) const {
    const StoredProperty property = PropertyToStore();
    for (int n = 1; n <= set.MixType; ++n)
        set.SMPNM(n, SampleNumber(n));
    set.PRPSETNO = txtPrpSetNo.Text();
    set.isOriginalUnit = property.isOriginalUnit;
    set.Factor = property.factor;
    set.PROPERTY_UNIT = property.unit;
    Presentation presentation = Presentation::Of(set.DATATYPE);
    presentation.numerical = Draft().numerical;
    presentation.calculated = chkCalc.Value();
    presentation.equation = chkEqu.Value();
    presentation.graph = chkGraph.Value();
    set.DATATYPE = presentation.Code();
}

/// What the line of the set is to say, in the form of memory: phases in front of constraints.
MixtureLine frmMixtVar::DefinitionShown() const {
    const MixtVarDraft draft = Draft();
    MixtureLine line;
    line.MixType = draft.MixType();
    line.nVar = draft.VariableCount();
    line.PRPCODE = draft.property;
    line.PROPERTY_FUNCT = draft.Definition().Code();
    line.PHASE1 = draft.phases.front();
    line.SOLVENT = draft.solvent;
    auto slot = line.slots.begin();
    for (std::size_t i = 1; i < draft.phases.size(); ++i) {
        *slot = {};
        (slot++)->code = draft.phases[i];
    }
    const auto before = as_ ? ConstraintsOf(*as_) : std::vector<ConstraintSlot>();
    for (std::size_t i = 0; i < draft.constraints.size(); ++i) {
        const MixtVarQuantity& one = draft.constraints[i];
        const ConstraintSlot old = i < before.size() ? before[i] : ConstraintSlot();
        *slot++ = {one.code, one.value, one.phase, UnitCodeOf(one, old.code, old.unit, true)};
    }
    for (std::size_t i = 0; i < draft.variables.size(); ++i) {
        const MixtVarQuantity& one = draft.variables[i];
        const int n = static_cast<int>(i) + 1;
        const bool same = as_ && as_->isOriginalUnit == Globals().OriginalUnits;
        line.variables[i] = {one.code,
                             UnitCodeOf(one, same ? as_->VARIABLE(n) : std::string(),
                                        same ? as_->VAR_UNIT(n) : std::string(),
                                        Globals().OriginalUnits),
                             one.phase};
    }
    return line;
}

/// The code of a unit. One that the form came with is kept as it is, also where no table knows it,
/// or where values in system units bear it as the memory of the paper's unit.
std::string frmMixtVar::UnitCodeOf(const MixtVarQuantity& shown, const std::string& before,
                                   const std::string& unitBefore, bool original) const {
    const std::string& memory = unitBefore;
    if (before == shown.code && shown.unit == UnitShown(before, original ? memory : "S"))
        return memory;
    const VariableRow* const row = FindVariable(shown.code);
    return row && !shown.unit.empty() ? ConversionCodeOf(shown.unit, row->Unit) : "S";
}

void frmMixtVar::WriteResults(clsMV& set) const {
    const MixtVarDraft draft = Draft();
    const bool relative = NeedsRelation(draft.function);
    const ResultDefinition before =
        as_ ? ResultDefinition::Of(as_->PROPERTY_FUNCT) : ResultDefinition();
    const ResultDefinition definition = {draft.function, relative ? draft.relation : std::string()};
    // What a file states besides is kept.
    const bool same = as_ && definition == before && as_->PRPCODE == draft.property;
    set.PROPERTY_FUNCT = definition.Code();
    set.STANDARD_STATE = draft.standardState;
    set.REFERENCE_TEMPERATURE = same || txtRefT.Enabled() ? draft.refTemp : "";
    set.REFERENCE_PRESSURE = same || txtRefP.Enabled() ? draft.refPressure : "";
    set.REFERENCE_PHASE = same || cboRefPhase.Enabled() ? draft.refPhase : "";
}

/// Rows have as many values as there are variables, and state nothing of what is another quantity.
void frmMixtVar::WriteRows(clsMV& set) const {
    const std::vector<int> replaced = ReplacedItems();
    for (clsData& row : set.recData) {
        for (const int n : replaced)
            DropStatements(row, n);
        for (int n = set.nVar + 1; n <= row.nVar; ++n) {
            DropStatements(row, n);
            row.Values[static_cast<std::size_t>(n)] = "";
            row.Digits[static_cast<std::size_t>(n)] = 0;
        }
        row.nVar = static_cast<std::int8_t>(set.nVar);
    }
}

/// What is stated of a quantity goes where the quantity went; of what is gone nothing is stated.
void frmMixtVar::WriteStatements(clsMV& set) const {
    const StatementsOfSet before = set.UX;
    for (int n = 0; n < DataSet::Items; ++n) {
        const bool stays =
            as_ && n <= set.nVar && n <= as_->nVar && as_->VARIABLE(n) == set.VARIABLE(n);
        clsX& item = set.UX[static_cast<std::size_t>(n)];
        item = stays ? before[static_cast<std::size_t>(n)] : Unstated(n);
        const bool isMoved = !stays || as_->PhaseFor(n) != set.PhaseFor(n);
        if (n <= set.nVar && isMoved) item.PHASE = set.PhaseFor(n);
    }
    if (as_) WriteStatementsOfConstants(set);
}

void frmMixtVar::WriteStatementsOfConstants(clsMV& set) const {
    const std::vector<HeldConstant> constants = set.Constants(), old = as_->Constants();
    std::vector<bool> isTaken(DataSet::Items);
    for (const HeldConstant& constant : constants) {
        const auto place = static_cast<std::size_t>(constant.item);
        isTaken[place] = true;
        const auto found = std::ranges::find(old, constant.code, &HeldConstant::code);
        const auto exact = std::ranges::find_if(old, [&](const HeldConstant& one) {
            return one.code == constant.code && one.phase == constant.phase;
        });
        const auto from = exact == old.end() ? found : exact;
        if (from == old.end()) continue;
        clsX& item = set.UX[place];
        item = as_->UX[static_cast<std::size_t>(from->item)];
        item.N = constant.item;
        if (from->phase != constant.phase) item.PHASE = constant.phase;
        if (!IsTurned(*from, constant)) continue;
        for (std::string* text : {&item.DSValue, &item.RValue, &item.UValue})
            *text = Turned(*from, constant, *text);
    }
    // A constant that only the comment names has its statement in a place that is left.
    for (std::size_t n = static_cast<std::size_t>(as_->nVar) + 1; n < as_->UX.size(); ++n) {
        const clsX& item = as_->UX[n];
        const bool isSlot = std::ranges::find(old, item.PRPCODE, &HeldConstant::code) != old.end();
        if (!item.IsKept() || isSlot || set.ConstantOf(item.PRPCODE).empty()) continue;
        std::size_t place = n;
        if (n <= static_cast<std::size_t>(set.nVar) || isTaken[n]) {
            place = static_cast<std::size_t>(set.nVar) + 1;
            while (place < isTaken.size() && isTaken[place])
                ++place;
        }
        if (place >= isTaken.size()) continue;
        isTaken[place] = true;
        set.UX[place] = item;
        set.UX[place].N = static_cast<int>(place);
    }
}

/// A wavelength that all rows have in common stands among the tags.
void frmMixtVar::WriteComment(clsMV& set) {
    CommentTags tags = CommentTags::OfTags(Globals().KeyRest);
    const std::string open = OpenSpectralVariable(Draft());
    const std::string constant = open + " = " + txtVar5.Text();
    const bool stated = !open.empty() && !txtVar5.IsEmpty();
    if (!stated || !tags.Has(constant)) DropConstants(tags);
    if (stated) tags.Set(constant, true);
    AdjustPrecisions(tags, set);
    Globals().KeyRest = tags.Stored();
    BuildPropertyChain();
    vexora::FillHeader(set.Header, !record_,
                       BuildComment(txtComment.Text(), *Globals().CurrentProperty, ""));
    if (!set.isOriginalUnit) set.commentInSystemUnits = false; // of constraints as they stand
    if (TurnsRows()) TurnPrecisions(set);
}

/// What is stated of the rows goes along with them into system units.
void frmMixtVar::TurnPrecisions(clsMV& set) const {
    if (record_->commentInSystemUnits) return;
    CommentTags tags(set.Header.DATACOMMENT);
    tags.ChangePrecisions([this](const std::string& code, const std::string& typed) {
        const bool isOfRows = code == record_->PRPCODE || record_->HasVariable(code);
        return isOfRows ? record_->SystemPrecision(code, typed) : typed;
    });
    set.Header.DATACOMMENT = tags.Stored();
}

/// Takes out of the tags the constant that the form shows, and those that have become variables or
/// constraints; what else a file says in that way stays.
void frmMixtVar::DropConstants(CommentTags& tags) const {
    const MixtVarDraft draft = Draft();
    const std::string open = OpenSpectralVariable(draft);
    const std::vector<HeldConstant> old = as_ ? as_->Constants() : std::vector<HeldConstant>();
    for (const std::string code : {"WL", "WF", "P", "T"}) {
        const auto isIt = [&](const auto& one) { return one.code == code; };
        const bool isStated = std::ranges::any_of(draft.variables, isIt) ||
                              std::ranges::any_of(draft.constraints, isIt);
        const bool wasStated = as_ && (as_->HasVariable(code) || std::ranges::any_of(old, isIt));
        const bool isSeen = code == open || code == openAtFirst_;
        if (isSeen || (isStated && !wasStated)) tags.DropBeginning(code + " = ");
    }
}

/// The precision of a constraint is not true of what came in its place, and follows its unit.
void frmMixtVar::AdjustPrecisions(CommentTags& tags, const clsMV& set) const {
    if (!as_) return;
    const std::vector<HeldConstant> constants = set.Constants();
    for (const HeldConstant& old : as_->Constants()) {
        const auto now = std::ranges::find(constants, old.code, &HeldConstant::code);
        if (now == constants.end()) {
            tags.TakePrecision(old.code);
        } else if (IsTurned(old, *now)) {
            tags.ChangePrecisions([&](const std::string& code, const std::string& typed) {
                return code == old.code ? Turned(old, *now, typed) : typed;
            });
        }
    }
}

/// The items of variables that are no longer there go, with the precisions stated for them.
void frmMixtVar::BuildPropertyChain() {
    clsProperty* last = Globals().CurrentProperty.get();
    for (const MixtVarQuantity& one : Draft().variables) {
        const bool same =
            !last->isLast && last->NextItem && last->NextItem->PropertyCode == one.code;
        if (!same) last->NextItem = std::make_shared<clsProperty>();
        last->isLast = false;
        last = last->NextItem.get();
        if (!same) last->PropertyCode = one.code;
    }
    last->isLast = true;
    last->NextItem = nullptr;
}

} // namespace vexora
