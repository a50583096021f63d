#include "records/clsMV.h"

#include "chem/CommentTags.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/PropertyLabels.h"
#include "records/SetLines.h"
#include "records/clsM.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

namespace {

const std::string NoText;

} // namespace

const std::string& clsMV::SMPNM(int n) const {
    return n == 1 ? SMPNM1 : n == 2 ? SMPNM2 : n == 3 ? SMPNM3 : NoText;
}

void clsMV::SMPNM(int n, std::string_view number) {
    if (n >= 1 && n <= 3) (n == 1 ? SMPNM1 : n == 2 ? SMPNM2 : SMPNM3) = number;
}

const ConstraintSlot* clsMV::Slot(int n) const {
    return n >= 1 && n <= ConstraintCount() ? &Constraints[static_cast<std::size_t>(n - 1)]
                                            : nullptr;
}

int clsMV::ConstraintCount() const {
    return std::clamp(MixType + 1 - nVar, 0, MixtureLine::MostSlots);
}

const std::string& clsMV::CONSTRAINT(int n) const {
    return Slot(n) ? Slot(n)->code : NoText;
}

const std::string& clsMV::CNVALUE(int n) const {
    return Slot(n) ? Slot(n)->value : NoText;
}

const std::string& clsMV::CN_UNIT(int n) const {
    return Slot(n) ? Slot(n)->unit : NoText;
}

const std::string& clsMV::VARIABLE(int n) const {
    if (n == 0) return PRPCODE;
    return n >= 1 && n <= nVar ? Variables[static_cast<std::size_t>(n - 1)].code : NoText;
}

const std::string& clsMV::VAR_UNIT(int n) const {
    return n >= 1 && n <= nVar ? Variables[static_cast<std::size_t>(n - 1)].unit : NoText;
}

const std::string& clsMV::PhaseFor(int n) const {
    if (n == 0) return PHASE1;
    if (n >= 1 && n <= nVar) return Variables[static_cast<std::size_t>(n - 1)].phase;
    return Slot(n - nVar) ? Slot(n - nVar)->phase : NoText;
}

std::vector<std::string> clsMV::Phases() const {
    std::vector<std::string> phases = {PHASE1};
    for (int n = 1; n <= ConstraintCount(); ++n)
        if (NamesPhase(CONSTRAINT(n))) phases.push_back(CONSTRAINT(n));
    return phases;
}

std::string clsMV::SystemName() const {
    return Parent ? Parent->ShowKey() : std::string();
}

const Record* clsMV::Owner() const {
    return Parent;
}

bool clsMV::HasTies() const {
    return nPhases() > (MixType == 2 ? 2 : 1) || IsTied();
}

bool clsMV::IsTied() const {
    return std::ranges::any_of(recData,
                               [](const clsData& row) { return !IsBlankField(row.TIELINE); });
}

std::shared_ptr<DataSet> clsMV::Copy() const {
    auto copy = std::make_shared<clsMV>(*this);
    // The node goes on belonging to the set in the document.
    copy->tNode = nullptr;
    return copy;
}

void clsMV::AdjustConstants() {
    for (int n = 1; n <= ConstraintCount(); ++n) {
        ConstraintSlot& slot = Constraints[static_cast<std::size_t>(n - 1)];
        if (!IsConstraint(slot.code)) continue;
        slot.value = ConversionOf(slot.code, slot.unit).Converted(slot.value).text;
        slot.unit = "S";
    }
}

std::vector<HeldConstant> clsMV::Constants() const {
    std::vector<HeldConstant> constants;
    for (int n = 1; n <= ConstraintCount(); ++n) {
        const ConstraintSlot& slot = *Slot(n);
        if (IsConstraint(slot.code))
            constants.push_back({nVar + n, slot.code, slot.value, slot.unit, slot.phase});
    }
    return constants;
}

std::string clsMV::ConstantOf(std::string_view code) const {
    for (const HeldConstant& constant : Constants())
        if (constant.code == code && IsNumeric(constant.value))
            return ConversionOf(constant.code, constant.unit).Converted(constant.value).text;
    return DataSet::ConstantOf(code);
}

MixtureLine clsMV::Definition() const {
    return {MixType, nVar, PRPCODE, PROPERTY_FUNCT, PHASE1, SOLVENT, Variables, Constraints};
}

void clsMV::Define(const MixtureLine& definition) {
    MixType = definition.MixType;
    nVar = definition.nVar;
    PRPCODE = definition.PRPCODE;
    PROPERTY_FUNCT = definition.PROPERTY_FUNCT;
    PHASE1 = definition.PHASE1;
    SOLVENT = definition.SOLVENT;
    Variables = definition.variables;
    Constraints = definition.slots;
}

bool clsMV::Load(std::string_view line, bool* isAmbiguous) {
    WordReader words(line);
    MixtureLine read;
    read.MixType = MixType;
    nVar = read.nVar = static_cast<int>(ToInteger(Val(words.NextWord().substr(1))));
    for (int n = 1; n <= MixType; ++n)
        SMPNM(n, NextField(words));
    read.PRPCODE = NextField(words);
    PROPERTY_UNIT = NextField(words);
    read.PROPERTY_FUNCT = NextField(words);
    PRPSETNO = NextField(words);
    DATATYPE = NextField(words);
    read.PHASE1 = NextField(words);
    for (int i = 0; i < read.SlotCount(); ++i) {
        ConstraintSlot& slot = read.slots[static_cast<std::size_t>(i)];
        slot.code = NextField(words);
        slot.value = NextField(words);
    }
    for (int n = 0; n < nVar; ++n) {
        MixtureVariable& variable = read.variables[static_cast<std::size_t>(n)];
        variable.code = NextField(words);
        if (words.AtEnd()) return false;
        variable.unit = NextField(words);
    }
    read.SOLVENT = NextField(words);
    STANDARD_STATE = UnderscoresToBlanks(NextField(words));
    COMPOSITION = UnderscoresToBlanks(NextField(words));
    REFERENCE_TEMPERATURE = NextField(words);
    REFERENCE_PRESSURE = NextField(words);
    REFERENCE_PHASE = WithoutPlaceholder(Trim(words.Rest()));
    const bool isSure = read.ToMemory();
    if (isAmbiguous) *isAmbiguous = !isSure;
    for (int n = 0; n < nVar; ++n) {
        MixtureVariable& variable = read.variables[static_cast<std::size_t>(n)];
        variable.unit = KeptField(variable.unit, UnitOfVariable(variable.code));
    }
    Define(read);
    Factor = 0;
    isOriginalUnit = true;
    return true;
}

void clsMV::TakePending(const clsA& pending) {
    DataSet::TakePending(pending);
    // No two rows need have the same one.
    FallbackMolarMass = 0;
    if (Relation() != "R") return;
    // A ratio has no unit; a factor taken along would say that it has.
    Factor = 0;
    PROPERTY_UNIT = "S";
}

Placement clsMV::AddX(const clsX& item) {
    clsX added = item;
    const bool isOfVariable = added.N < 0 && HasVariable(added.PRPCODE);
    // Slots are numbered in the order of memory, which a line need not have had.
    if (added.N > nVar || (added.N < 0 && added.PRPCODE != PRPCODE && !isOfVariable)) {
        const auto constants = Constants();
        const auto found = std::ranges::find_if(constants, [&](const HeldConstant& constant) {
            return constant.code == added.PRPCODE && constant.phase == added.PHASE;
        });
        const auto likely = found != constants.end()
                                ? found
                                : std::ranges::find(constants, added.PRPCODE, &HeldConstant::code);
        added.N = likely == constants.end() ? Items : likely->item;
    }
    return DataSet::AddX(added);
}

/// The value of a constraint in its system unit, for the line has no field for the unit.
std::string clsMV::ValueInLine(const HeldConstant& constant) const {
    const UnitConversion unit = ConversionOf(constant.code, constant.unit);
    if (constant.value.empty() || !unit.ChangesValues()) return constant.value;
    // Asked for its refusal: what cannot be converted must not be written as 0.
    FactorOfLongUnit(unit.code, unit.unit, *this, Parent);
    return unit.Converted(constant.value).text;
}

std::string clsMV::DefinitionLine() const {
    MixtureLine file = Definition();
    for (const HeldConstant& constant : Constants())
        file.slots[static_cast<std::size_t>(constant.item - nVar - 1)].value =
            ValueInLine(constant);
    file.ToFile();
    std::string line = "^" + std::to_string(nVar);
    for (int n = 1; n <= MixType; ++n)
        AppendField(line, SMPNM(n));
    for (const std::string& field :
         {file.PRPCODE, PropertyUnitField(), file.PROPERTY_FUNCT, PRPSETNO, DATATYPE, file.PHASE1})
        AppendField(line, field);
    for (int i = 0; i < file.SlotCount(); ++i) {
        AppendField(line, file.slots[static_cast<std::size_t>(i)].code);
        AppendField(line, file.slots[static_cast<std::size_t>(i)].value);
    }
    for (int n = 0; n < nVar; ++n) {
        AppendField(line, file.variables[static_cast<std::size_t>(n)].code);
        AppendField(line, UnitField(file.variables[static_cast<std::size_t>(n)].unit));
    }
    for (const std::string& field :
         {file.SOLVENT, STANDARD_STATE, COMPOSITION, REFERENCE_TEMPERATURE, REFERENCE_PRESSURE})
        AppendField(line, field);
    return line + " " + OrPlaceholder(Trim(REFERENCE_PHASE));
}

std::string clsMV::Key() const {
    std::string key = std::to_string(nVar) + " " + SMPNM1 + " " + SMPNM2 + " " + PRPCODE;
    if (MixType > 2) key += " " + SMPNM3;
    return key + " " + PRPSETNO;
}

std::string clsMV::PhaseStatement() const {
    std::string text;
    for (const std::string& code : Phases()) {
        const std::string name = PhaseName(code);
        text += (text.empty() ? "" : " + ") + (name.empty() ? code : name);
    }
    for (const HeldConstant& constant : Constants()) {
        text += ", " + constant.code;
        if (!constant.value.empty()) text += " = " + constant.value;
    }
    return text;
}

std::string clsMV::ShowKey() const {
    const PropertyLabel label = PropertyLabels::Of(*this);
    std::string text =
        "^" + std::to_string(nVar) + ": " + label.name + " (" + PhaseStatement() + "; ";
    for (int n = 1; n <= nVar; ++n)
        text += (n == 1 ? "" : ", ") + VARIABLE(n);
    text += "), Set " + PRPSETNO;
    if (!Header.DATACOMMENT.empty()) text += ", " + CommentDisplayText(Header.DATACOMMENT);
    return text;
}

void clsMV::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentMV = As<clsMV>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RM1";
    if (Parent) Parent->SetMe();
}

void clsMV::AttachTo(clsM& mixture) {
    Parent = &mixture;
    mixture.recMV.Add(As<clsMV>(), Key());
    if (mixture.tNode) MakeNode(mixture.tNode);
}

std::size_t clsMV::Leave() {
    return Parent ? LeaveFrom(Parent->recMV) : 0;
}

bool clsMV::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recMV, place, Parent->recMV.Item(Key()));
}

void clsMV::Replace(const clsMV& other) {
    clsM* const parent = Parent;
    ui::TreeNode* const node = tNode;
    *this = other;
    Parent = parent;
    tNode = node;
    if (Parent) Parent->recMV.Rekey(this, Key());
}

int NextSetNumber(const clsM& mixture, const clsMV& set) {
    int highest = 0;
    for (const auto& one : mixture.recMV) {
        const bool isAlike = one->nVar == set.nVar && one->PRPCODE == set.PRPCODE &&
                             one->SMPNM1 == set.SMPNM1 && one->SMPNM2 == set.SMPNM2 &&
                             one->SMPNM3 == set.SMPNM3;
        if (isAlike) highest = std::max(highest, static_cast<int>(ToInteger(Val(one->PRPSETNO))));
    }
    return highest + 1;
}

} // namespace vexora
