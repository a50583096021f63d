// The records of the pure compound, and which of them are there already.
#include <algorithm>

#include "chem/CommentTags.h"
#include "records/PureOfMixture.h"
#include "records/clsMV.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

std::string KeyOf(const clsTwo& set) {
    std::string key = std::to_string(set.nVar);
    for (const std::string& part :
         {set.PRPCODE, KeyOfUnit(set), set.PROPERTY_FUNCT, KeyOfPhase(set.PHASE1),
          KeyOfPhase(set.PHASE2), set.CONSTRAINT, KeyOfConstants(set.Header)})
        key += "\n" + part;
    for (int n = 1; n <= set.nVar; ++n)
        key += "\n" + set.VARIABLE(n) + " " + KeyOfUnit(set.VAR_UNIT(n));
    return key;
}

std::string KeyOf(const clsZ& value) {
    std::string key = std::to_string(value.nVar);
    for (const std::string_view part :
         std::initializer_list<std::string_view>{value.PRPCODE, value.PHASE1, value.PRPVALUE})
        key += "\n" + std::string(part);
    key += "\n" + KeyOfUnit(value) + "\n" + KeyOfConstants(value.Header) +
           (value.isOriginalUnit ? "\no" : "\ns");
    if (value.nVar == 0)
        return key + "\n" + KeyOfPhase(value.PHASE2) + "\n" + KeyOfPhase(value.PHASE3);
    return key + "\n" + std::string(value.INDVARIABLE) + " " +
           KeyOfUnit(std::string(value.VARIABLE_UNIT)) + "\n" + KeyOfPhase(value.PhaseBeside());
}

/// The statement of the set about a quantity, for the place that it has in the new record.
clsX StatementFor(const clsX& ofSet, int place, const std::string& code, const std::string& phase) {
    clsX item = ofSet;
    item.N = place;
    item.Constr = false;
    item.Verbatim.clear();
    if (!item.PRPCODE.empty()) item.PRPCODE = code;
    if (!item.PHASE.empty()) item.PHASE = phase;
    return item;
}

} // namespace

/// On a phase boundary, else by what is held constant.
std::string PureOfMixture::Constraint() const {
    if (phases_.size() > 1) return "PB";
    const HeldConstant* const consumed = Consumed(Form::Set);
    const auto varies = [&](std::string_view code) {
        return set_.HasVariable(code) || (consumed && consumed->code == code);
    };
    if (varies("T") && varies("P")) return "SP";
    if (varies("T") || (ConstantOf("P") && !varies("P"))) return "FP";
    return varies("P") || ConstantOf("T") ? "FT" : "SP";
}

/// What the set states about one of its quantities; of a constant in its system unit.
clsX PureOfMixture::StatementOf(int item) const {
    if (item < 0) return {};
    const clsX& ofSet = set_.UX[static_cast<std::size_t>(item)];
    for (const HeldConstant& constant : set_.Constants())
        if (constant.item == item) return InSystemUnit(ofSet, constant);
    return ofSet;
}

/// A tag for the phase that the line of a value leaves unsaid.
std::string PureOfMixture::StateTag(Form form) const {
    if (form != Form::Fixed || phases_.size() < 2 || IsOneOf(valueCode_, {"TB", "PV", "TF"}))
        return {};
    return phases_[1] == "G" ? "PB" : "FP";
}

/// The header of the set, the precisions under the codes of the record, and what is constant.
clsA PureOfMixture::HeaderOf(Form form, const clsData& row) const {
    clsA header = set_.Header;
    CommentTags tags(IsBlankField(header.DATACOMMENT) ? std::string_view() : header.DATACOMMENT);
    for (int n = 0; n <= set_.nVar; ++n)
        if (IsComposition(set_.VARIABLE(n))) tags.TakePrecision(set_.VARIABLE(n));
    for (const HeldConstant& constant : set_.Constants())
        if (IsComposition(constant.code)) tags.TakePrecision(constant.code);
    const std::string& code = form == Form::Set ? setCode_ : valueCode_;
    tags.ChangePrecisionCodes(
        [&](const std::string& of) { return of == set_.PRPCODE ? code : of; });
    const HeldConstant* const consumed = Consumed(form);
    for (const HeldConstant& constant : constants_)
        if (&constant != consumed) StateConstant(tags, constant);
    if (form == Form::Single && !states_.empty()) { // of a critical point: its temperature
        HeldConstant state{0, "T", row.VARIABLE(states_[0]), "S", {}};
        if (row.inOriginalUnits) state.unit = set_.VAR_UNIT(states_[0]);
        StateConstant(tags, InSystemUnit(state));
    }
    if (const std::string state = StateTag(form); !state.empty()) tags.Set(state, true);
    header.DATACOMMENT = tags.Stored();
    return header;
}

std::shared_ptr<clsTwo> PureOfMixture::NewSet(const clsData& row) const {
    auto set = std::make_shared<clsTwo>();
    const HeldConstant* const consumed = Consumed(Form::Set);
    set->nVar = consumed ? 1 : static_cast<int>(states_.size());
    set->SMPNM = sample_->SMPNM;
    set->Header = HeaderOf(Form::Set, row);
    set->commentInSystemUnits = set_.commentInSystemUnits;
    set->PRPCODE = setCode_;
    set->PROPERTY_UNIT = set_.PROPERTY_UNIT;
    set->Factor = set_.Factor;
    set->isOriginalUnit = row.inOriginalUnits;
    set->DATATYPE = set_.DATATYPE;
    set->PHASE1 = phases_[0];
    set->PHASE2 = phases_.size() > 1 ? phases_[1] : "&";
    set->CONSTRAINT = Constraint();
    set->REF_TEMP = set_.REFERENCE_TEMPERATURE;
    set->REF_PRESSURE = set_.REFERENCE_PRESSURE;
    set->REF_PHASE = set_.REFERENCE_PHASE;
    set->UX[0] = StatementFor(set_.UX[0], 0, setCode_, set->PHASE1);
    for (int n = 1; n <= set->nVar; ++n) {
        const int from = consumed ? consumed->item : states_[static_cast<std::size_t>(n - 1)];
        const std::string code = consumed ? consumed->code : set_.VARIABLE(from);
        (n == 1 ? set->VARIABLE1 : set->VARIABLE2) = code;
        (n == 1 ? set->VAR1_UNIT : set->VAR2_UNIT) =
            consumed ? consumed->unit : set_.VAR_UNIT(from);
        set->UX[static_cast<std::size_t>(n)] =
            StatementFor(StatementOf(from), n, code, set->PHASE1);
    }
    return set;
}

clsData PureOfMixture::RowOf(const clsData& row) const {
    std::vector<int> places = {0};
    places.insert(places.end(), states_.begin(), states_.end());
    clsData carried = CarriedRow(row, places);
    carried.TIELINE = {};
    if (const HeldConstant* const consumed = Consumed(Form::Set)) {
        carried.nVar = 1;
        carried.Values[1] = consumed->value;
        carried.Digits[1] = static_cast<std::uint8_t>(SignificantDigits(consumed->value));
    }
    return carried;
}

RowTarget<clsTwo>& PureOfMixture::TargetFor(const clsData& row) {
    auto& target = targets_[row.inOriginalUnits ? 1 : 0];
    if (target) return *target;
    target.emplace().made = NewSet(row);
    const std::string key = KeyOf(*target->made);
    for (const auto& set : sample_->recTwo)
        if (KeyOf(*set) == key) target->Look(set);
    return *target;
}

bool PureOfMixture::TakeSet(const clsData& row) {
    clsData carried = RowOf(row);
    RowTarget<clsTwo>& target = TargetFor(row);
    if (!target.known.insert(KeyOfRow(carried)).second) return false;
    if (!target.set) {
        target.set = target.made;
        target.set->PRPSETNO = std::to_string(sample_->NextTwoNumber(setCode_, target.set->nVar));
        target.set->AttachTo(*sample_);
    }
    target.set->AddRow(std::move(carried));
    return true;
}

std::shared_ptr<clsZ> PureOfMixture::NewValue(Form form, const clsData& row) const {
    auto value = std::make_shared<clsZ>();
    value->nVar = form == Form::Fixed ? 1 : 0;
    value->SMPNM = sample_->SMPNM;
    value->Header = HeaderOf(form, row);
    value->PRPCODE = valueCode_;
    value->PHASE1 = phases_[0];
    CarryFigures(*value, set_, StatementFor(set_.UX[0], 0, valueCode_, phases_[0]), row);
    if (value->nVar == 0) {
        value->PHASE2 = phases_.size() > 1 ? phases_[1] : "&";
        value->PHASE3 = phases_.size() > 2 ? phases_[2] : "&";
        return value;
    }
    const HeldConstant& fixed = *Consumed(form);
    value->INDVARIABLE = fixed.value;
    value->VARIABLE_UNIT = fixed.unit;
    const clsX item = StatementFor(StatementOf(fixed.item), 1, fixed.code, phases_[0]);
    if (item.IsKept()) value->Statements(1, item);
    return value;
}

bool PureOfMixture::TakeValue(Form form, const clsData& row) {
    const auto made = NewValue(form, row);
    if (!values_) {
        values_.emplace();
        for (const auto& value : sample_->recZ)
            values_->insert(KeyOf(*value));
    }
    if (!values_->insert(KeyOf(*made)).second) return false;
    made->PRPSETNO = std::to_string(sample_->NextSetNumber(valueCode_, made->nVar));
    made->AttachTo(*sample_);
    return true;
}

} // namespace vexora
