// What the form says, written into a set.
#include "chem/CommentTags.h"
#include "chem/MethodTags.h"
#include "chem/clsProperty.h"
#include "entry/PropertyContext.h"
#include "entry/SetRevision.h"
#include "globals/KVOGlobal.h"
#include "reactions/frmEquil.h"
#include "records/Presentation.h"
#include "records/PropertyChain.h"
#include "records/ReactionText.h"
#include "records/clsQ.h"
#include "reference/Conversions.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

/// A new set of the same definition, as far as no control shows it.
std::shared_ptr<clsE> DefinitionOf(const clsE& pattern) {
    auto set = std::make_shared<clsE>();
    set->DATATYPE = pattern.DATATYPE;
    set->EXPERIMENTAL_DESIGN = pattern.EXPERIMENTAL_DESIGN;
    set->commentInSystemUnits = pattern.commentInSystemUnits;
    return set;
}

/// What each statement of a set is about, by its place; "" for nothing.
using StatedCodes = std::array<std::string, DataSet::Items>;
StatedCodes CodesOf(const clsE& set) {
    StatedCodes codes;
    for (int n = 0; n <= set.nVar; ++n)
        codes[static_cast<std::size_t>(n)] = set.VARIABLE(n);
    for (const HeldConstant& constant : set.Constants())
        if (constant.item > 0) codes[static_cast<std::size_t>(constant.item)] = constant.code;
    return codes;
}

clsX Unstated(std::size_t place) {
    clsX item;
    item.N = static_cast<int>(place);
    return item;
}

} // namespace

std::shared_ptr<clsE> frmEquil::MakeSet() {
    const auto set = DefineSet();
    WriteComment(*set);
    NameStatements(*set);
    return set;
}

/// The set with all but its comment.
std::shared_ptr<clsE> frmEquil::DefineSet() const {
    auto set = record_ ? std::static_pointer_cast<clsE>(record_->Copy())
               : as_   ? DefinitionOf(*as_)
                       : std::make_shared<clsE>();
    // Figures that were stated in the units of the paper turn with the rows.
    const bool turns = TurnsRows() && stated_.isOriginalUnit;
    if (turns) set->UX = stated_.UX;
    if (TurnsRows()) set->AdjustUnits(); // while it still knows the units that they were typed in
    if (!turns) set->UX = stated_.UX;
    set->Parent = reaction_.get();
    WriteProperty(*set);
    WriteParticipants(*set);
    WriteQuantities(*set);
    WriteStatements(*set);
    return set;
}

void frmEquil::WriteProperty(clsE& set) const {
    const StoredProperty property = PropertyToStore();
    const EquilDraft draft = Draft();
    set.nVar = VariableCount();
    set.PRPCODE = row_.Code;
    set.PRPSETNO = draft.setNumber;
    set.isOriginalUnit = property.isOriginalUnit;
    set.Factor = property.factor;
    set.PROPERTY_UNIT = property.unit;
    set.SOLVENTPHASE = draft.solventPhase;
    set.STANDARD_STATE = draft.standardState;
    Presentation presentation = Presentation::Of(set.DATATYPE);
    presentation.numerical = draft.numerical;
    presentation.calculated = chkCalc.Value();
    presentation.equation = chkEqu.Value();
    presentation.graph = chkGraph.Value();
    set.DATATYPE = presentation.Code();
}

void frmEquil::WriteParticipants(clsE& set) const {
    for (int i = 1; i <= Participants; ++i) {
        if (!IsUsed(i)) continue;
        set.PARTICIPANT_COEFF(i, Coefficient(i));
        set.SMPNM(i, SampleNumber(i));
    }
    const EquilDraft draft = Draft();
    for (int row = 0; row < Places; ++row) {
        const EquilPhase& phase = draft.phases[static_cast<std::size_t>(row)];
        const std::string before = as_ ? as_->COMPONENTS_IN_PHASE(row + 1) : std::string();
        set.PHASE(row + 1, phase.code);
        set.COMPONENTS_IN_PHASE(row + 1, EquilDigits(before, ShownDigits(), phase.participants));
    }
}

void frmEquil::WriteQuantities(clsE& set) const {
    const EquilDraft draft = Draft();
    for (int row = 0; row < Places; ++row) {
        const EquilQuantity& one = draft.constants[static_cast<std::size_t>(row)];
        set.CONSTANT_VARIABLE(row + 1, one.code);
        set.CNVARVALUE(row + 1, one.value);
    }
    for (int n = 1; n <= VariableCount(); ++n) {
        set.INDEPENDENT_VAR(n, draft.variables[static_cast<std::size_t>(n - 1)].code);
        set.VAR_UNIT(n, UnitCodeOf(n));
    }
    for (const int n : ReplacedItems())
        for (clsData& row : set.recData)
            DropStatements(row, n);
}

/// The code of a variable's unit. One that the form came with is kept as it is, also where no table
/// knows it, or where values in system units bear it as the memory of the paper's unit.
std::string frmEquil::UnitCodeOf(int n) const {
    const std::string code = QuantityOf(cboVar(n - 1));
    const std::string& unit = cboVarUnit(n - 1).Chosen();
    const bool original = Globals().OriginalUnits;
    const bool same = as_ && as_->VARIABLE(n) == code && as_->isOriginalUnit == original;
    if (same && unit == UnitShown(*as_, n)) return as_->VAR_UNIT(n);
    const VariableRow* const row = FindVariable(ParticipantCodeOf(code).code);
    return row && original ? ConversionCodeOf(unit, row->Unit) : "S";
}

/// What is stated of a quantity stays with it; of what is gone nothing is stated. A constant may
/// have moved, and what a file states at a place without one stays while nothing has.
void frmEquil::WriteStatements(clsE& set) const {
    const StatedCodes before = CodesOf(stated_), now = CodesOf(set);
    if (before == now && stated_.nVar == set.nVar) return;
    const StatementsOfSet stated = set.UX;
    const std::size_t constants = static_cast<std::size_t>(set.nVar) + 1;
    const auto firstConstant = before.begin() + stated_.nVar + 1;
    for (std::size_t n = 0; n < now.size(); ++n) {
        const auto from = n < constants ? before.begin() + static_cast<std::ptrdiff_t>(n)
                                        : std::find(firstConstant, before.end(), now[n]);
        const bool isKnown = !now[n].empty() && from != before.end() && *from == now[n];
        set.UX[n] = isKnown ? stated[static_cast<std::size_t>(from - before.begin())] : Unstated(n);
        set.UX[n].N = static_cast<int>(n);
    }
}

void frmEquil::WriteComment(clsE& set) {
    CommentTags tags = CommentTags::OfTags(Globals().KeyRest);
    DropConstants(tags);
    Globals().KeyRest = tags.Stored();
    BuildPropertyChain();
    FillHeader(set.Header, !record_,
               BuildComment(txtComment.Text(), *Globals().CurrentProperty, ""));
}

/// Takes those constants out of the tags that have become variables or fixed conditions; what else
/// a file says in that way stays.
void frmEquil::DropConstants(CommentTags& tags) const {
    const EquilDraft draft = Draft();
    for (const auto* list : {&draft.variables, &draft.constants})
        for (const EquilQuantity& one : *list) {
            const bool wasStated = as_ && std::ranges::count(CodesOf(*as_), one.code) > 0;
            if (!one.code.empty() && !wasStated) tags.DropBeginning(one.code + " = ");
        }
}

/// The items of variables that are no longer there go, with the precisions stated for them.
void frmEquil::BuildPropertyChain() {
    clsProperty* last = Globals().CurrentProperty.get();
    for (const EquilQuantity& one : Draft().variables) {
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
