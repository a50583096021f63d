#include "records/clsTwo.h"

#include "chem/CommentTags.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/PropertyLabels.h"
#include "records/SetLines.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <utility>

namespace vexora {

namespace {

const std::string NoText;

constexpr std::string_view ReferenceRelationCodes[] = {"FR", "PF", "TF", "FX", "TP", "PH",
                                                       "RX", "EQ", "PC", "PR", "PS", "PT"};

bool IsReferenceRelation(std::string_view code) {
    for (const std::string_view known : ReferenceRelationCodes)
        if (code == known) return true;
    return false;
}

} // namespace

clsTwo::clsTwo() {
    for (std::size_t n = 0; n < UX.size(); ++n)
        UX[n].N = static_cast<int>(n);
}

const std::string& clsTwo::VARIABLE(int n) const {
    return n == 1 ? VARIABLE1 : n == 2 ? VARIABLE2 : NoText;
}

const std::string& clsTwo::VAR_UNIT(int n) const {
    return n == 1 ? VAR1_UNIT : n == 2 ? VAR2_UNIT : NoText;
}

std::string clsTwo::ConstantOf(std::string_view code) const {
    if (VARIABLE1 == code || (nVar == 2 && VARIABLE2 == code)) return {};
    const std::string tags = CommentTagPart(Header.DATACOMMENT);
    const std::string mark = ":" + std::string(code) + " = ";
    const std::size_t at = tags.find(mark);
    if (at == std::string::npos) return {};
    const std::size_t from = at + mark.size();
    const std::string value = tags.substr(from, tags.find(':', from) - from);
    return IsNumeric(value) ? value : std::string();
}

std::string clsTwo::Relation() const {
    const std::string& code = PROPERTY_FUNCT;
    if (code == "DT" || code == "DX") return "D";
    if (code.size() < 2 || code == "DIR" || code == "MN") return "A";
    if (!IsReferenceRelation(std::string_view(code).substr(1))) return "A";
    if (code.front() == 'D') return "D";
    return code.front() == 'R' || code.front() == 'K' ? "R" : "A";
}

void clsTwo::AddX(const clsX& item) {
    clsX added = item;
    if (added.N < 0 && added.PRPCODE == PRPCODE) added.N = 0;
    for (int n = 1; n <= nVar && added.N < 0; ++n)
        if (added.PRPCODE == VARIABLE(n)) added.N = n;
    if (added.N < 0 || added.N >= static_cast<int>(UX.size())) {
        OtherX.push_back(added);
        return;
    }
    added.Constr = added.N > nVar;
    UX[static_cast<std::size_t>(added.N)] = added;
}

void clsTwo::AddRow(std::shared_ptr<clsData> row) {
    isOriginalUnit = row->inOriginalUnits || (isOriginalUnit && !recData.IsEmpty());
    recData.Add(std::move(row));
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
    if (HasGas() && PRPCODE == "P") PRPCODE = "PV";
    if (HasGas() && PRPCODE == "HTR") PRPCODE = "HVP";
    VARIABLE1 = nVar == 2 ? NextField(words) : DerivedVariable();
    if (nVar == 2) {
        VAR1_UNIT = NextField(words);
        VARIABLE2 = NextField(words);
    }
    if (words.AtEnd()) return false;
    (nVar == 2 ? VAR2_UNIT : VAR1_UNIT) = NextField(words);
    REF_TEMP = NextField(words);
    REF_PRESSURE = NextField(words);
    REF_PHASE = WithoutPlaceholder(Trim(words.Rest()));
    Factor = 0;
    isOriginalUnit = true;
    commentInSystemUnits = true;
    return true;
}

void clsTwo::TakePending(const clsA& pending) {
    Header.TakeHeader(pending);
    const std::string stated = CommentTag(Header.DATACOMMENT, "V1");
    if (nVar == 1 && !stated.empty()) VARIABLE1 = stated;
    if (pending.Factor <= 0) return;
    if (PROPERTY_UNIT == "S" || PROPERTY_UNIT == "*") Factor = pending.Factor;
    if (IsMassBased(PROPERTY_UNIT)) FallbackMolarMass = pending.Factor;
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
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RLS1";
    if (Parent) Parent->SetMe();
}

void clsTwo::AttachTo(clsS& sample) {
    Parent = &sample;
    sample.recTwo.Add(As<clsTwo>(), Key());
    if (sample.tNode) MakeNode(sample.tNode);
}

void clsTwo::Replace(const clsTwo& other) {
    clsS* const parent = Parent;
    ui::TreeNode* const node = tNode;
    *this = other;
    Parent = parent;
    tNode = node;
    if (Parent) Parent->recTwo.Rekey(this, Key());
}

double clsTwo::MolarMass() const {
    const double mass = Parent ? Parent->MolarMass() : 0;
    return mass > 0 ? mass : FallbackMolarMass;
}

bool clsTwo::NeedsMolarMass() const {
    return isOriginalUnit && Factor <= 0 && IsMassBased(PROPERTY_UNIT);
}

} // namespace vexora
