#include "records/clsC.h"

#include "globals/KVOGlobal.h"
#include "records/PropertyLabels.h"
#include "records/SetLines.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

const std::string NoText;
constexpr int Count = clsQ::MostParticipants;

} // namespace

const std::string& clsC::At(const ParticipantTexts& texts, int i) {
    return i >= 1 && i <= Count ? texts[static_cast<std::size_t>(i - 1)] : NoText;
}

void clsC::Set(ParticipantTexts& texts, int i, std::string_view text) {
    if (i >= 1 && i <= Count) texts[static_cast<std::size_t>(i - 1)] = text;
}

std::array<ParticipantTexts*, 5> clsC::Groups() {
    return {&coefficients_, &phases_, &samples_, &compositions_, &values_};
}

ParticipantTexts clsC::PhaseNames() const {
    ParticipantTexts names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string name = PhaseName(phases_[i]);
        names[i] = name.empty() ? phases_[i] : name;
    }
    return names;
}

std::string clsC::UnitCode() const {
    const std::string_view unit = PROPERTY_UNIT;
    return std::string(unit.substr(0, unit.find(' ')));
}

void clsC::UnitCode(std::string_view code) {
    const std::string rn = MassOf();
    PROPERTY_UNIT = code;
    MassOf(rn);
}

std::string clsC::MassOf() const {
    const std::string_view unit = PROPERTY_UNIT;
    const std::size_t blank = unit.find(' ');
    return std::string(blank == unit.npos ? std::string_view() : unit.substr(blank + 1));
}

void clsC::MassOf(std::string_view rn) {
    const std::string code = UnitCode();
    PROPERTY_UNIT = rn.empty() || rn == "S" ? code : code + " " + std::string(rn);
}

std::string clsC::UnitBasis() const {
    const std::string rn = MassOf();
    if (rn.empty() || !IsMassBased(UnitCode()) || Factor > 0) return {};
    const int place = Parent ? Parent->PlaceOf(rn) : 0;
    return place != 0 ? Parent->Name(place) : rn;
}

std::string clsC::SystemName() const {
    return Parent ? Parent->ShowKey() : std::string();
}

double clsC::MolarMass() const {
    if (!Parent) return 0;
    const std::string rn = MassOf();
    for (int i = 1; i <= Count; ++i)
        if (!Parent->RN(i).empty() && (rn.empty() || Parent->RN(i) == rn))
            return Parent->MolarMass(i);
    return MolarMassOfRN(rn, Parent->Parent);
}

const Record* clsC::Owner() const {
    return Parent;
}

bool clsC::Load(std::string_view line) {
    WordReader words(line);
    isOriginalUnit = words.NextWord() == "^c";
    const auto next = [&words](ParticipantTexts& texts) {
        for (std::string& text : texts)
            text = NextField(words);
    };
    // A figure of 0 stands for none.
    const auto nextFigures = [&](ParticipantTexts& texts) {
        next(texts);
        for (std::string& text : texts)
            if (text == "0") text.clear();
    };
    nextFigures(coefficients_);
    if (words.AtEnd()) return false;
    PRPCODE = NextField(words);
    PROPERTY_UNIT = NextField(words);
    MassOf(NextField(words));
    PRPSETNO = NextField(words);
    next(phases_);
    next(samples_);
    next(compositions_);
    nextFigures(values_);
    for (std::string* field : {&SOLVENT_PHASE, &STANDARD_STATE, &INITIAL_TEMPERATURE,
                               &INITIAL_PRESSURE, &FINAL_TEMPERATURE, &FINAL_PRESSURE})
        *field = NextField(words);
    LoadValue(words);
    return true;
}

std::vector<std::string> clsC::LineFields(std::string unitField) const {
    std::vector<std::string> fields = {isOriginalUnit ? "^c" : "^C"};
    const auto isThere = [this](std::size_t i) {
        return !IsBlankField(coefficients_[i]) && coefficients_[i] != "0";
    };
    const auto add = [&](const ParticipantTexts& texts, const char* none) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            fields.push_back(isThere(i) && !IsBlankField(texts[i]) ? texts[i] : none);
    };
    add(coefficients_, "0");
    const std::string rn = MassOf();
    fields.insert(fields.end(), {PRPCODE, std::move(unitField), rn.empty() ? "S" : rn, PRPSETNO});
    add(phases_, "");
    add(samples_, "");
    add(compositions_, "");
    add(values_, "0");
    fields.insert(fields.end(), {SOLVENT_PHASE, STANDARD_STATE, INITIAL_TEMPERATURE,
                                 INITIAL_PRESSURE, FINAL_TEMPERATURE, FINAL_PRESSURE});
    return fields;
}

std::string clsC::Key() const {
    return "C" + PRPCODE + " " + PRPSETNO;
}

std::string clsC::ShowKey() const {
    const PropertyLabel label = PropertyLabels::Of(*this);
    return "^C: " + label.name + " (" + label.unit + ", Set " + PRPSETNO + ")";
}

void clsC::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentC = As<clsC>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RQC";
    if (!Parent) return;
    Parent->SetMe();
    for (int i = 1; i <= Count; ++i)
        Parent->SMPNM(i, SMPNM(i));
}

void clsC::AttachTo(clsQ& reaction) {
    Parent = &reaction;
    reaction.recC.Add(As<clsC>(), Key());
    if (reaction.tNode) MakeNode(reaction.tNode);
}

std::size_t clsC::Leave() {
    return Parent ? LeaveFrom(Parent->recC) : 0;
}

bool clsC::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recC, place, Parent->recC.Item(Key()));
}

void clsC::Rekey() {
    if (Parent) Parent->recC.Rekey(this, Key());
}

int NextSetNumber(const clsQ& reaction, const clsC& value) {
    std::int64_t highest = 0;
    for (const auto& one : reaction.recC)
        if (one->PRPCODE == value.PRPCODE)
            highest = std::max(highest, ToInteger(Val(one->PRPSETNO)));
    return static_cast<int>(highest) + 1;
}

} // namespace vexora
