#include "records/clsMZ.h"

#include "chem/CommentTags.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/PhaseCounts.h"
#include "records/PropertyLabels.h"
#include "records/SetLines.h"
#include "records/clsM.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

constexpr int MostPhases = 5;

std::vector<std::string> FirstPhases(const clsMZ& value) {
    std::vector<std::string> phases = value.Phases();
    if (phases.size() > static_cast<std::size_t>(value.MixType + 1)) phases.pop_back();
    return phases;
}

} // namespace

std::string clsMZ::SMPNM(int n) const {
    return n == 1 ? SMPNM1 : n == 2 ? SMPNM2 : n == 3 ? SMPNM3 : ShortText();
}

void clsMZ::SMPNM(int n, std::string_view number) {
    if (n >= 1 && n <= 3) (n == 1 ? SMPNM1 : n == 2 ? SMPNM2 : SMPNM3) = number;
}

std::string clsMZ::PHASE(int n) const {
    const ShortText* const phases[] = {&PHASE1, &PHASE2, &PHASE3, &PHASE4, &PHASE5};
    return n >= 1 && n <= MostPhases ? std::string(*phases[n - 1]) : std::string();
}

void clsMZ::PHASE(int n, std::string_view code) {
    ShortText* const phases[] = {&PHASE1, &PHASE2, &PHASE3, &PHASE4, &PHASE5};
    if (n >= 1 && n <= MostPhases) *phases[n - 1] = OrPlaceholder(code);
}

std::string clsMZ::SystemName() const {
    return Parent ? Parent->ShowKey() : std::string();
}

const Record* clsMZ::Owner() const {
    return Parent;
}

bool clsMZ::Load(std::string_view line) {
    WordReader words(line);
    isOriginalUnit = words.NextWord() == "^z";
    for (int n = 1; n <= MixType; ++n)
        SMPNM(n, NextField(words));
    PRPCODE = NextField(words);
    PROPERTY_UNIT = NextField(words);
    PRPSETNO = NextField(words);
    for (int n = 1; n <= MixType + 2; ++n)
        PHASE(n, NextPhase(words));
    if (words.AtEnd()) return false;
    LoadValue(words);
    return true;
}

std::vector<std::string> clsMZ::LineFields(std::string unitField) const {
    std::vector<std::string> fields = {isOriginalUnit ? "^z" : "^Z"};
    for (int n = 1; n <= MixType; ++n)
        fields.push_back(SMPNM(n));
    fields.insert(fields.end(), {PRPCODE, std::move(unitField), PRPSETNO});
    for (int n = 1; n <= MixType + 2; ++n)
        fields.push_back(PHASE(n));
    return fields;
}

std::vector<std::string> clsMZ::Phases() const {
    std::vector<std::string> phases;
    for (int n = 1; n <= MixType + 2; ++n)
        if (!IsBlankField(PHASE(n))) phases.push_back(PHASE(n));
    return phases;
}

int clsMZ::iSolid() const {
    return PhaseCounts::Of(FirstPhases(*this)).solid;
}

int clsMZ::iLiquid() const {
    return PhaseCounts::Of(FirstPhases(*this)).liquid;
}

int clsMZ::iGas() const {
    return PhaseCounts::Of(FirstPhases(*this)).gas;
}

std::string clsMZ::Key() const {
    std::string key = "Z";
    for (int n = 1; n <= MixType; ++n)
        key += " " + SMPNM(n);
    return key + " " + PRPCODE + " " + PRPSETNO;
}

std::string clsMZ::ShowKey() const {
    const PropertyLabel label = PropertyLabels::Of(*this);
    std::string phases;
    for (const std::string& phase : Phases())
        phases += (phases.empty() ? "" : "+") + phase;
    std::string text =
        "^0: " + label.name + " (" + phases + "," + label.unit + "), Set " + PRPSETNO;
    if (!Header.DATACOMMENT.empty()) text += ", " + CommentDisplayText(Header.DATACOMMENT);
    return text;
}

void clsMZ::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentMZ = As<clsMZ>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RMZ";
    if (Parent) Parent->SetMe();
}

void clsMZ::AttachTo(clsM& mixture) {
    Parent = &mixture;
    mixture.recMZ.Add(As<clsMZ>(), Key());
    if (mixture.tNode) MakeNode(mixture.tNode);
}

std::size_t clsMZ::Leave() {
    return Parent ? LeaveFrom(Parent->recMZ) : 0;
}

bool clsMZ::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recMZ, place, Parent->recMZ.Item(Key()));
}

void clsMZ::Rekey() {
    if (Parent) Parent->recMZ.Rekey(this, Key());
}

int NextSetNumber(const clsM& mixture, const clsMZ& value) {
    int highest = 0;
    for (const auto& one : mixture.recMZ) {
        const bool isAlike = one->PRPCODE == value.PRPCODE && one->SMPNM1 == value.SMPNM1 &&
                             one->SMPNM2 == value.SMPNM2 && one->SMPNM3 == value.SMPNM3;
        if (isAlike) highest = std::max(highest, static_cast<int>(ToInteger(Val(one->PRPSETNO))));
    }
    return highest + 1;
}

} // namespace vexora
