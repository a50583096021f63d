#include "records/clsZ.h"

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

#include <cmath>

namespace vexora {

void clsZ::AddX(const clsX& item) {
    clsX added = item;
    if (added.N < 0 && added.PRPCODE == PRPCODE)
        added.N = 0;
    else if (added.N < 0 && nVar == 1 && added.PRPCODE == Variable())
        added.N = 1;
    if (added.N < 0 || added.N > nVar) {
        OtherX.push_back(added);
        return;
    }
    clsX& place = UX[static_cast<std::size_t>(added.N)];
    // The line of an item does not carry these; they came with the value line.
    added.KVOUValue = place.KVOUValue;
    if (!added.iRep && added.RValue.empty() && added.Repetitions.empty()) {
        added.RValue = place.RValue;
        added.Repetitions = place.Repetitions;
        added.repOfValueLine = true;
    }
    place = added;
}

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
        VARIABLE_UNIT = NextField(words);
    }
    if (words.AtEnd()) return false;
    PRPVALUE = NextField(words);
    PRPUNCERTY = NextField(words);
    PRECIS = NextField(words);
    DETERMNM = WithoutPlaceholder(Trim(words.Rest()));
    Factor = 0;
    commentInSystemUnits = true;
    if (PRPCODE == "TBN") PHASE3 = "&";
    if (PRPCODE == "TMN") PHASE3 = "air";
    UX[0].N = 0;
    UX[1].N = 1;
    UX[0].KVOUValue = PRPUNCERTY;
    UX[0].RValue = PRECIS;
    UX[0].Repetitions = DETERMNM;
    UX[0].repOfValueLine = true;
    return true;
}

void clsZ::TakePending(const clsA& pending) {
    Header.TakeHeader(pending);
    if (pending.Factor <= 0 || !isOriginalUnit) return;
    if (PROPERTY_UNIT == "S" || PROPERTY_UNIT == "*") Factor = pending.Factor;
    if (IsMassBased(PROPERTY_UNIT)) FallbackMolarMass = pending.Factor;
}

std::string clsZ::Key() const {
    return (nVar == 0 ? "Z" : "F") + PRPCODE + PRPSETNO;
}

std::string clsZ::ShowKey() const {
    const PropertyLabel label = PropertyLabels::Of(*this);
    std::string text = (nVar == 0 ? "^0: " : "^F: ") + label.name + " (" +
                       PhasesInBrief({PHASE1, PHASE2, PHASE3}) + "," + label.unit + "), Set " +
                       PRPSETNO;
    if (!Header.DATACOMMENT.empty()) text += ", " + CommentDisplayText(Header.DATACOMMENT);
    return text;
}

void clsZ::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentZ = As<clsZ>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RLSZ";
    if (Parent) Parent->SetMe();
}

void clsZ::AttachTo(clsS& sample) {
    Parent = &sample;
    sample.recZ.Add(As<clsZ>(), Key());
    if (sample.tNode) MakeNode(sample.tNode);
}

void clsZ::Rekey() {
    if (Parent) Parent->recZ.Rekey(this, Key());
}

double clsZ::SystemValue() const {
    if (!isOriginalUnit) return Val(PRPVALUE);
    return ToSystem(PROPERTY_UNIT, Val(PRPVALUE), Factor, NeedsMolarMass() ? MolarMass() : 0);
}

double clsZ::MolarMass() const {
    const double mass = Parent ? Parent->MolarMass() : 0;
    return mass > 0 ? mass : FallbackMolarMass;
}

bool clsZ::NeedsMolarMass() const {
    return isOriginalUnit && Factor <= 0 && IsMassBased(PROPERTY_UNIT);
}

std::string clsZ::Variable() const {
    return nVar == 1 ? IndVarFixed(PRPCODE) : std::string();
}

} // namespace vexora
