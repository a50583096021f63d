#include "records/clsZ.h"

#include "chem/CommentTags.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/PropertyLabels.h"
#include "records/SetLines.h"
#include "records/Substance.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <utility>

namespace vexora {

namespace {

/// The fixed variable and its unit as they stand in the line. A unit without a letter cannot stand
/// there, so the value is brought to the system unit.
std::pair<std::string, std::string> VariableFields(const clsZ& value) {
    const ShortText& code = value.VARIABLE_UNIT;
    if (!IsUnitLong(code)) return {value.INDVARIABLE, code};
    if (!value.isOriginalUnit) return {value.INDVARIABLE, "S"};
    // The factor is asked for its refusal: what cannot be converted must not be written as 0.
    FactorOfLongUnit(code, UnitOfVariable(value.Variable()), value, value.Parent);
    return {value.VariableConversion(1).Converted(value.INDVARIABLE).text, "S"};
}

} // namespace

bool clsZ::Load(std::string_view line) {
    WordReader words(line);
    const std::string_view tag = words.NextWord();
    nVar = tag == "^F" || tag == "^f" ? 1 : 0;
    isOriginalUnit = tag == "^z" || tag == "^f";
    SMPNM = words.NextWord();
    PRPCODE = NextField(words);
    PROPERTY_UNIT = NextField(words);
    PRPSETNO = NextField(words);
    PHASE1 = NextPhase(words);
    if (nVar == 0) {
        PHASE2 = NextPhase(words);
        PHASE3 = NextPhase(words);
    } else {
        INDVARIABLE = NextField(words);
        VARIABLE_UNIT = KeptField(NextField(words), UnitOfVariable(Variable()));
    }
    if (words.AtEnd()) return false;
    LoadValue(words);
    // Normal boiling and melting points hold under one atmosphere, and the latter in air, whatever
    // the line says.
    if (PRPCODE == "TBN") PHASE3 = "&";
    if (PRPCODE == "TMN") PHASE3 = "air";
    return true;
}

std::vector<std::string> clsZ::LineFields(std::string unitField) const {
    const char* tag = nVar == 0 ? (isOriginalUnit ? "^z" : "^Z") : (isOriginalUnit ? "^f" : "^F");
    std::vector<std::string> fields = {tag, SMPNM, PRPCODE, std::move(unitField), PRPSETNO, PHASE1};
    if (nVar == 0) {
        fields.insert(fields.end(), {PHASE2, PHASE3});
    } else {
        const auto [variable, unit] = VariableFields(*this);
        fields.insert(fields.end(), {variable, unit});
    }
    return fields;
}

std::string clsZ::Key() const {
    return (nVar == 0 ? "Z" : "F") + PRPCODE + PRPSETNO;
}

std::string clsZ::ShowKey() const {
    const PropertyLabel label = PropertyLabels::Of(*this);
    std::string text = (nVar == 0 ? "^0: " : "^F: ") + label.name + " (" +
                       PhasesInBrief({PHASE1, PhaseBeside(), PHASE3}) + "," + label.unit +
                       "), Set " + PRPSETNO;
    if (!Header.DATACOMMENT.empty()) text += ", " + CommentDisplayText(Header.DATACOMMENT);
    return text;
}

void clsZ::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentZ = As<clsZ>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RLSZ";
    if (Parent) Parent->SetMe();
}

void clsZ::AttachTo(SubstanceSample& sample) {
    Parent = &sample;
    sample.recZ.Add(As<clsZ>(), Key());
    if (sample.tNode) MakeNode(sample.tNode);
}

std::size_t clsZ::Leave() {
    return Parent ? LeaveFrom(Parent->recZ) : 0;
}

bool clsZ::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recZ, place, Parent->FindZ(PRPCODE, nVar, PRPSETNO));
}

void clsZ::Rekey() {
    if (Parent) Parent->recZ.Rekey(this, Key());
}

std::string clsZ::SystemName() const {
    return Parent ? Parent->SystemName() : std::string();
}

const Record* clsZ::Owner() const {
    return Parent;
}

double clsZ::MolarMass() const {
    const double mass = Parent ? Parent->MolarMass() : 0;
    // The formula is the better witness: the file may have been written with another one.
    return mass > 0 ? mass : FallbackMolarMass;
}

std::string clsZ::PhaseBeside() const {
    if (nVar == 0 || PRPCODE != "IST") return PHASE2;
    const std::string state = CommentTags(Header.DATACOMMENT).TakeState();
    return state == "PB" ? "G" : state == "FP" ? "air" : std::string(PHASE2);
}

std::string clsZ::Variable() const {
    return nVar == 1 ? IndVarFixed(PRPCODE) : std::string();
}

} // namespace vexora
