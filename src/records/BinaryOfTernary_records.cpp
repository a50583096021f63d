// The records of the binary, and which of them are there already.
#include <algorithm>
#include <utility>

#include "chem/CommentTags.h"
#include "records/BinaryOfTernary.h"
#include "records/RecordChecks.h"
#include "records/clsM.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// The solvent as a line bears it: a short code may fill it in.
std::string SolventInLine(const clsMV& set) {
    MixtureLine line = set.Definition();
    line.ToFile();
    return IsBlankField(line.SOLVENT) ? std::string() : line.SOLVENT;
}

std::string KeyOfSlot(const ConstraintSlot& slot) {
    if (IsBlankField(slot.code)) return "&";
    const UnitConversion unit = DataSet::ConversionOf(slot.code, slot.unit);
    const bool isNumber = IsNumeric(slot.value) && unit.IsPossible();
    return slot.code + " " + slot.phase + " " +
           (isNumber ? KeyOfNumber(unit.Absolute(Val(slot.value))) : std::string());
}

std::string KeyOf(const clsMV& set) {
    std::string key = std::to_string(set.nVar);
    for (const std::string& part :
         {set.SMPNM1, set.SMPNM2, set.PRPCODE, KeyOfUnit(set), set.PROPERTY_FUNCT, set.PHASE1,
          SolventInLine(set), KeyOfPhase(set.STANDARD_STATE), KeyOfConstants(set.Header)})
        key += "\n" + part;
    for (int n = 1; n <= set.nVar; ++n)
        key += "\n" + set.VARIABLE(n) + " " + set.PhaseFor(n) + " " + KeyOfUnit(set.VAR_UNIT(n));
    std::vector<std::string> slots;
    for (int n = 0; n < set.ConstraintCount(); ++n)
        slots.push_back(KeyOfSlot(set.Constraints[static_cast<std::size_t>(n)]));
    std::ranges::sort(slots); // their order is no part of the definition
    for (const std::string& slot : slots)
        key += "\n" + slot;
    return key;
}

std::string KeyOf(const clsMZ& value) {
    std::string key = KeyOfUnit(value) + (value.isOriginalUnit ? "\no\n" : "\ns\n") +
                      KeyOfConstants(value.Header);
    for (const std::string_view part : std::initializer_list<std::string_view>{
             value.SMPNM1, value.SMPNM2, value.PRPCODE, value.PRPVALUE})
        key += "\n" + std::string(part);
    for (const std::string& phase : value.Phases())
        key += "\n" + phase;
    return key;
}

} // namespace

/// The mixture of the other two; one that the source has not yet is only made ready.
void BinaryOfTernary::FindMixture() {
    std::vector<std::string> numbers;
    for (int n = 1; n <= set_.MixType; ++n)
        if (n != absent_) numbers.push_back(set_.Parent->RN(n));
    std::ranges::stable_sort(numbers, {}, [](const std::string& rn) { return Val(rn); });
    auto made = std::make_shared<clsM>();
    made->RN1 = numbers[0];
    made->RN2 = numbers[1];
    const auto present = set_.Parent->Parent->FindM(*made);
    mixture_ = present ? present : made;
}

/// The number of each component in the binary; the one that is absent goes behind.
std::array<int, 4> BinaryOfTernary::Numbers() const {
    std::array<int, 4> numbers = {0, 3, 3, 3};
    for (int n = 1; n <= set_.MixType; ++n)
        for (int place = 1; place <= 2; ++place)
            if (n != absent_ && mixture_->RN(place) == set_.Parent->RN(n))
                numbers[static_cast<std::size_t>(n)] = place;
    return numbers;
}

/// That of the set, with the precisions of what stays.
clsA BinaryOfTernary::Header() const {
    clsA header = set_.Header;
    CommentTags tags(IsBlankField(header.DATACOMMENT) ? std::string_view() : header.DATACOMMENT);
    std::vector<std::string> codes;
    for (int n = 1; n <= set_.nVar; ++n)
        codes.push_back(set_.VARIABLE(n));
    for (const HeldConstant& constant : set_.Constants())
        codes.push_back(constant.code);
    for (const std::string& code : codes) {
        const auto stays = [&](const auto& one) { return one.is.code == GetCode(code); };
        if (!std::ranges::any_of(variables_, stays) && !std::ranges::any_of(slots_, stays))
            tags.TakePrecision(code);
    }
    tags.ChangePrecisionCodes(
        [this](const std::string& code) { return GetCode(code).value_or(code); });
    header.DATACOMMENT = tags.Stored();
    return header;
}

std::shared_ptr<clsMV> BinaryOfTernary::NewSet(bool isOriginal) const {
    auto made = std::make_shared<clsMV>();
    made->Header = Header();
    made->commentInSystemUnits = set_.commentInSystemUnits;
    made->PROPERTY_UNIT = set_.PROPERTY_UNIT;
    made->Factor = set_.Factor;
    made->isOriginalUnit = isOriginal;
    made->DATATYPE = set_.DATATYPE;
    made->STANDARD_STATE = set_.STANDARD_STATE;
    made->COMPOSITION = SolventLeft().empty() ? std::string() : set_.COMPOSITION;
    made->REFERENCE_TEMPERATURE = set_.REFERENCE_TEMPERATURE;
    made->REFERENCE_PRESSURE = set_.REFERENCE_PRESSURE;
    made->REFERENCE_PHASE = set_.REFERENCE_PHASE;
    const auto takeStatement = [&](std::size_t place, int from) {
        clsX& item = made->UX[place] = set_.UX[static_cast<std::size_t>(from)];
        item.N = static_cast<int>(place);
        item.ChangeCodes([this](const std::string& code) { return GetCode(code).value_or(code); });
    };
    MixtureLine line{2,           static_cast<int>(variables_.size()),
                     code_,       set_.PROPERTY_FUNCT,
                     set_.PHASE1, SolventLeft(),
                     {},          {}};
    takeStatement(0, 0);
    for (std::size_t n = 0; n < variables_.size(); ++n) {
        line.variables[n] = variables_[n].is;
        takeStatement(n + 1, variables_[n].place);
    }
    for (std::size_t n = 0; n < slots_.size(); ++n) {
        line.slots[n] = slots_[n].is;
        takeStatement(variables_.size() + n + 1, set_.nVar + slots_[n].number);
    }
    made->Define(line);
    // With the third component behind the other two the turn of a ternary does for the binary.
    made->MixType = 3;
    for (int n = 1; n <= 3; ++n)
        made->SMPNM(n, set_.SMPNM(n));
    made->Sort(Numbers());
    made->MixType = 2;
    made->SMPNM3.clear();
    if (made->nVar > 0) made->SOLVENT = SolventInLine(*made);
    return made;
}

/// Stands in the document from its first data on.
void BinaryOfTernary::Attach() {
    if (mixture_->Parent == nullptr) mixture_->AttachTo(*set_.Parent->Parent);
}

RowTarget<clsMV>& BinaryOfTernary::TargetFor(const clsData& row) {
    auto& target = targets_[row.inOriginalUnits ? 1 : 0];
    if (target) return *target;
    target.emplace().made = NewSet(row.inOriginalUnits);
    const std::string key = KeyOf(*target->made);
    for (const auto& set : mixture_->recMV)
        if (KeyOf(*set) == key) target->Look(set);
    return *target;
}

bool BinaryOfTernary::TakeSet(const clsData& row) {
    std::vector<int> places = {0};
    for (const Variable& variable : variables_)
        places.push_back(variable.place);
    clsData carried = CarriedRow(row, places);
    RowTarget<clsMV>& target = TargetFor(row);
    if (!target.known.insert(KeyOfRow(carried)).second) return false;
    if (!target.set) {
        Attach();
        target.set = target.made;
        target.set->PRPSETNO = std::to_string(NextSetNumber(*mixture_, *target.set));
        target.set->AttachTo(*mixture_);
    }
    target.set->AddRow(std::move(carried));
    // By its first row a set shows whether it is tied.
    if (!std::exchange(target.isShown, true)) target.set->Refresh();
    return true;
}

/// The line has no place for what is constant: that goes among the tags.
std::shared_ptr<clsMZ> BinaryOfTernary::NewValue(const clsData& row) const {
    const auto as = NewSet(row.inOriginalUnits);
    auto value = std::make_shared<clsMZ>();
    value->SMPNM1 = as->SMPNM1;
    value->SMPNM2 = as->SMPNM2;
    value->PRPCODE = as->PRPCODE;
    value->PHASE1 = as->PHASE1;
    value->Header = as->Header;
    CommentTags tags(as->Header.DATACOMMENT);
    int phases = 1;
    for (int n = 1; n <= as->ConstraintCount(); ++n)
        if (NamesPhase(as->CONSTRAINT(n)) || IsCriticalCurve(as->CONSTRAINT(n)))
            value->PHASE(++phases, as->CONSTRAINT(n));
    for (const HeldConstant& constant : as->Constants())
        if (IsNumeric(constant.value)) {
            const HeldConstant system = InSystemUnit(constant);
            tags.Set(system.code + " = " + system.value, true);
        }
    value->Header.DATACOMMENT = tags.Stored();
    CarryFigures(*value, set_, as->UX[0], row);
    return value;
}

bool BinaryOfTernary::TakeValue(const clsData& row) {
    const auto made = NewValue(row);
    if (!values_) {
        values_.emplace();
        for (const auto& value : mixture_->recMZ)
            values_->insert(KeyOf(*value));
    }
    if (!values_->insert(KeyOf(*made)).second) return false;
    Attach();
    made->PRPSETNO = std::to_string(NextSetNumber(*mixture_, *made));
    made->AttachTo(*mixture_);
    return true;
}

} // namespace vexora
