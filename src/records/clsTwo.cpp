#include "records/clsTwo.h"

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

#include <initializer_list>

namespace vexora {

namespace {

const std::string NoText;

/// The code of a property as lines of a gas bear it.
/// In the file a pressure is P whatever it is the pressure of; the gas beside it tells that it is a
/// vapour pressure, and a heat of transition into a gas is one of vaporization.
std::string_view CodeInLine(std::string_view code, bool hasGas) {
    if (hasGas && code == "PV") return "P";
    return hasGas && code == "HVP" ? "HTR" : code;
}

std::string Joined(std::initializer_list<std::string_view> fields) {
    std::string line;
    for (const std::string_view field : fields)
        AppendField(line, field);
    return line;
}

} // namespace

const std::string& clsTwo::VARIABLE(int n) const {
    return n == 1 ? VARIABLE1 : n == 2 ? VARIABLE2 : NoText;
}

const std::string& clsTwo::VAR_UNIT(int n) const {
    return n == 1 ? VAR1_UNIT : n == 2 ? VAR2_UNIT : NoText;
}

const std::string& clsTwo::PhaseFor(int n) const {
    return n >= 0 && n <= nVar ? PHASE1 : NoText;
}

std::string clsTwo::SystemName() const {
    return Parent ? Parent->SystemName() : std::string();
}

const Record* clsTwo::Owner() const {
    return Parent;
}

double clsTwo::MolarMass(const clsData&) const {
    const double mass = Parent ? Parent->MolarMass() : 0;
    return mass > 0 ? mass : FallbackMolarMass;
}

std::shared_ptr<DataSet> clsTwo::Copy() const {
    auto copy = std::make_shared<clsTwo>(*this);
    // The node goes on belonging to the set in the document.
    copy->tNode = nullptr;
    return copy;
}

bool clsTwo::HasGas() const {
    return PHASE1 == "G" || PHASE2 == "G";
}

/// The variable that a ^1 line leaves unsaid.
std::string clsTwo::DerivedVariable() const {
    return CONSTRAINT == "FT" ? "P" : IndVarFixed(PRPCODE);
}

bool clsTwo::Load(std::string_view line) {
    WordReader words(line);
    nVar = words.NextWord() == "^2" ? 2 : 1;
    SMPNM = words.NextWord();
    for (std::string* field : {&PRPCODE, &PROPERTY_UNIT, &PROPERTY_FUNCT, &PRPSETNO, &DATATYPE})
        *field = NextField(words);
    PHASE1 = NextPhase(words);
    PHASE2 = NextPhase(words);
    CONSTRAINT = NextField(words);
    // As the line was written; memory must equal what a reload gives, or numbers of sets collide.
    if (HasGas() && PRPCODE == "P") PRPCODE = "PV";
    if (HasGas() && PRPCODE == "HTR") PRPCODE = "HVP";
    VARIABLE1 = nVar == 2 ? NextField(words) : DerivedVariable();
    if (nVar == 2) {
        VAR1_UNIT = NextField(words);
        VARIABLE2 = NextField(words);
    }
    // The reference state may lack, the units may not.
    if (words.AtEnd()) return false;
    (nVar == 2 ? VAR2_UNIT : VAR1_UNIT) = NextField(words);
    REF_TEMP = NextField(words);
    REF_PRESSURE = NextField(words);
    REF_PHASE = WithoutPlaceholder(Trim(words.Rest()));
    Factor = 0;
    isOriginalUnit = true;
    // What the file holds has been converted by its writer and is never converted again.
    commentInSystemUnits = true;
    return true;
}

void clsTwo::TakePending(const clsA& pending) {
    DataSet::TakePending(pending);
    // Only here, for the comment comes in front of the line and with the header.
    const std::string stated = CommentTags(Header.DATACOMMENT).TrimmedValue("V1");
    if (nVar == 1 && !stated.empty()) VARIABLE1 = stated;
    VAR1_UNIT = KeptField(VAR1_UNIT, UnitOfVariable(VARIABLE1));
    VAR2_UNIT = KeptField(VAR2_UNIT, UnitOfVariable(VARIABLE2));
}

bool clsTwo::LacksPressure() const {
    const bool varies = HasVariable("P") || HasVariable("PU") || HasVariable("PL");
    const bool isPressure = PRPCODE == "P" || PRPCODE == "PV";
    return CONSTRAINT == "FP" && !varies && !isPressure && ConstantOf("P").empty();
}

std::string clsTwo::Key() const {
    return std::to_string(nVar) + SMPNM + PRPCODE + PRPSETNO;
}

std::string clsTwo::ShowKey() const {
    const PropertyLabel label = PropertyLabels::Of(*this);
    std::string text = (nVar == 1 ? "^1: " : "^2: ") + label.name + " (" +
                       PhasesInBrief({PHASE1, PHASE2}) + "," + label.unit + "), Set " + PRPSETNO;
    if (!Header.DATACOMMENT.empty()) text += ", " + CommentDisplayText(Header.DATACOMMENT);
    return text;
}

void clsTwo::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentTwo = As<clsTwo>();
    if (globals.CurrentKey.empty())
        globals.CurrentKey = std::string(Parent ? Parent->NodeType() : "RLS") + "1";
    if (Parent) Parent->SetMe();
}

void clsTwo::AttachTo(SubstanceSample& sample) {
    Parent = &sample;
    sample.recTwo.Add(As<clsTwo>(), Key());
    if (sample.tNode) MakeNode(sample.tNode);
}

std::size_t clsTwo::Leave() {
    return Parent ? LeaveFrom(Parent->recTwo) : 0;
}

bool clsTwo::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recTwo, place, Parent->FindTwo(PRPCODE, nVar, PRPSETNO));
}

void clsTwo::Replace(const clsTwo& other) {
    SubstanceSample* const parent = Parent;
    ui::TreeNode* const node = tNode;
    *this = other;
    Parent = parent;
    tNode = node;
    if (Parent) Parent->recTwo.Rekey(this, Key());
}

std::string clsTwo::DefinitionLine() const {
    std::string line = Joined({nVar == 2 ? "^2" : "^1", SMPNM, CodeInLine(PRPCODE, HasGas()),
                               PropertyUnitField(), PROPERTY_FUNCT, PRPSETNO});
    // The one tab of the format; readers take it for a blank.
    line += '\t' + Joined({DATATYPE, PHASE1, PHASE2, CONSTRAINT});
    if (nVar == 2) AppendField(line, VARIABLE1);
    AppendField(line, UnitField(VAR1_UNIT));
    if (nVar == 2) {
        AppendField(line, VARIABLE2);
        AppendField(line, UnitField(VAR2_UNIT));
    }
    AppendField(line, REF_TEMP);
    AppendField(line, REF_PRESSURE);
    return line + " " + OrPlaceholder(Trim(REF_PHASE));
}

/// The comment, whose tag "V1:" tells the variable of a ^1 line where nothing else does.
std::string clsTwo::CommentOfLine() const {
    if (nVar != 1 || VARIABLE1.empty()) return Header.DATACOMMENT;
    CommentTags tags(Header.DATACOMMENT);
    const std::string stated = tags.TrimmedValue("V1");
    if (VARIABLE1 == (stated.empty() ? DerivedVariable() : stated)) return Header.DATACOMMENT;
    if (!stated.empty()) tags.Take("V1");
    if (VARIABLE1 != DerivedVariable()) tags.Add("V1", VARIABLE1);
    return tags.Stored();
}

} // namespace vexora
