#include "records/clsQ.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/ReactionText.h"
#include "records/RegistryNumbers.h"
#include "records/SetLines.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

const std::string NoText;

/// The source of a reaction, or the one in hand for a reaction that is being made.
const clsR* SourceOf(const clsQ& reaction) {
    return reaction.Parent ? reaction.Parent : Globals().CurrentR.get();
}

bool IsCoefficient(const std::string& text) {
    return IsNumeric(text) && Val(text) != 0;
}

template <class Set>
std::shared_ptr<Set> FindByKey(const ui::Collection<Set>& sets, std::string_view key,
                               std::size_t* index) {
    std::size_t place = 0;
    if (index) *index = 0;
    for (const auto& set : sets) {
        ++place;
        if (set->Key() != key && set->ShowKey() != key) continue;
        if (index) *index = place;
        return set;
    }
    return nullptr;
}

} // namespace

const clsQ::Slot* clsQ::SlotAt(int i) const {
    return i >= 1 && i <= MostParticipants ? &slots_[static_cast<std::size_t>(i - 1)] : nullptr;
}

const std::string& clsQ::Coeff(int i) const {
    return SlotAt(i) ? SlotAt(i)->coefficient : NoText;
}

const std::string& clsQ::SMPNM(int i) const {
    return SlotAt(i) ? SlotAt(i)->sample : NoText;
}

const std::string& clsQ::RN(int i) const {
    return SlotAt(i) ? SlotAt(i)->RN : NoText;
}

void clsQ::Coeff(int i, std::string_view text) {
    if (SlotAt(i)) slots_[static_cast<std::size_t>(i - 1)].coefficient = text;
}

void clsQ::SMPNM(int i, std::string_view number) {
    if (SlotAt(i)) slots_[static_cast<std::size_t>(i - 1)].sample = number;
}

void clsQ::RN(int i, std::string_view number) {
    if (number == EmptySlot || number == "&") number = {};
    if (SlotAt(i)) slots_[static_cast<std::size_t>(i - 1)].RN = number;
}

void clsQ::RemoveParticipant(int i) {
    if (!SlotAt(i)) return;
    std::move(slots_.begin() + i, slots_.end(), slots_.begin() + (i - 1));
    slots_.back() = {};
}

void clsQ::TakeDefinition(const clsQ& other) {
    REACTCLASS = other.REACTCLASS;
    SOLVENTRN = other.SOLVENTRN;
    INERTRN = other.INERTRN;
    slots_ = other.slots_;
}

std::shared_ptr<Substance> clsQ::Participant(int i) const {
    const clsR* const source = SourceOf(*this);
    return source && !NamesNoCompound(RN(i)) ? source->FindSubstance(RN(i)) : nullptr;
}

std::shared_ptr<clsL> clsQ::Compound(int i) const {
    return std::dynamic_pointer_cast<clsL>(Participant(i));
}

std::string clsQ::Name(int i) const {
    const auto participant = Participant(i);
    return participant ? participant->ShowKey() : RN(i);
}

std::string clsQ::Formula(int i) const {
    return FormulaOfSample(Participant(i).get(), SMPNM(i));
}

double clsQ::MolarMass(int i) const {
    const auto participant = Participant(i);
    if (!participant || !NamesComplex(RN(i))) return MolarMassOfRN(RN(i), SourceOf(*this));
    const auto sample = participant->FindSample(static_cast<int>(ToInteger(Val(SMPNM(i)))));
    return sample ? sample->MolarMass() : participant->MolarMass();
}

int clsQ::PlaceOf(std::string_view rn) const {
    for (int i = 1; i <= MostParticipants; ++i)
        if (!RN(i).empty() && RN(i) == rn) return i;
    return 0;
}

bool clsQ::Uses(std::string_view rn) const {
    return PlaceOf(rn) != 0 || (!rn.empty() && (rn == SOLVENTRN || rn == INERTRN));
}

std::vector<std::string> clsQ::Formulas() const {
    std::vector<std::string> formulas;
    for (int i = 1; i <= MostParticipants; ++i)
        formulas.push_back(Formula(i));
    return formulas;
}

std::vector<std::string> clsQ::Coefficients() const {
    std::vector<std::string> coefficients;
    for (int i = 1; i <= MostParticipants; ++i)
        coefficients.push_back(Coeff(i));
    return coefficients;
}

std::string clsQ::Equation(const ParticipantTexts& phases) const {
    std::vector<EquationTerm> terms;
    for (int i = 1; i <= MostParticipants; ++i)
        if (!RN(i).empty())
            terms.push_back({Coeff(i), Name(i), phases[static_cast<std::size_t>(i - 1)]});
    return EquationText(terms);
}

std::string clsQ::Key() const {
    std::string participants;
    for (int i = 1; i <= MostParticipants; ++i)
        if (!RN(i).empty()) participants += (participants.empty() ? "" : "+") + RN(i);
    return REACTCLASS + "|" + participants + "|" + SOLVENTRN + "|" + INERTRN;
}

std::string clsQ::ShowKey() const {
    std::string names;
    bool isKnown = true;
    for (int i = 1; i <= MostParticipants; ++i) {
        if (RN(i).empty()) continue;
        names += (names.empty() ? "" : " + ") + Name(i);
        isKnown = isKnown && IsCoefficient(Coeff(i));
    }
    return isKnown && !names.empty() ? Equation() : names;
}

void clsQ::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentQ = As<clsQ>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RQ";
    globals.DataContext = "React";
    if (Parent) Parent->SetMe();
}

void clsQ::AttachTo(clsR& source) {
    Parent = &source;
    source.recQ.Add(As<clsQ>(), Key());
    if (source.tNode) MakeNode(source.tNode);
}

std::size_t clsQ::Leave() {
    return Parent ? LeaveFrom(Parent->recQ) : 0;
}

bool clsQ::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recQ, place, Parent->recQ.Item(Key()));
}

void clsQ::Rekey() {
    if (Parent) Parent->recQ.Rekey(this, Key());
}

bool clsQ::Load(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    REACTCLASS = NextField(words);
    for (int i = 1; i <= 4; ++i)
        RN(i, NextField(words));
    NextField(words); // whether there are data is told by their lines
    NextField(words);
    for (int i = 5; i <= MostParticipants; ++i)
        RN(i, NextField(words));
    SOLVENTRN = NextField(words);
    INERTRN = WithoutPlaceholder(Trim(words.Rest()));
    const bool areNumbers = std::ranges::all_of(
        slots_, [](const Slot& slot) { return slot.RN.empty() || IsNumeric(slot.RN); });
    const bool hasAny =
        std::ranges::any_of(slots_, [](const Slot& slot) { return !slot.RN.empty(); });
    return areNumbers && hasAny;
}

void clsQ::LoadCoefficients(std::string_view line, bool* isWhole) {
    WordReader words(line);
    words.NextWord();
    bool fits = true;
    const auto fill = [&](std::string& text) {
        const std::string read = NextField(words);
        if (text.empty()) text = read;
        fits = fits && (read.empty() || text == read);
    };
    for (Slot& slot : slots_)
        fill(slot.coefficient);
    for (Slot& slot : slots_)
        fill(slot.sample);
    if (isWhole) *isWhole = fits && words.AtEnd();
}

namespace {

template <class Set>
void Take(clsQ& reaction, const Set& set, int count) {
    for (int i = 1; i <= clsQ::MostParticipants; ++i)
        if (!reaction.Coeff(i).empty()) return;
    for (int i = 1; i <= count; ++i) {
        reaction.Coeff(i, set.PARTICIPANT_COEFF(i));
        if (reaction.SMPNM(i).empty()) reaction.SMPNM(i, set.SMPNM(i));
    }
}

} // namespace

void clsQ::TakeCoefficients(const clsC& set) {
    Take(*this, set, MostParticipants);
}

void clsQ::TakeCoefficients(const clsE& set) {
    Take(*this, set, clsE::Participants);
}

/// Sets bear them, but for the last two of an equilibrium.
bool clsQ::PrintsCoefficients() const {
    const bool hasFurther =
        !RN(clsE::Participants + 1).empty() || !RN(clsE::Participants + 2).empty();
    return recC.IsEmpty() && (recE.IsEmpty() || hasFurther) &&
           std::ranges::any_of(slots_, [](const Slot& slot) { return !slot.coefficient.empty(); });
}

void clsQ::PrintQ(LineWriter& out) const {
    std::vector<std::string> fields = {"^Q", REACTCLASS, RN(1), RN(2)};
    for (int i = 3; i <= 4; ++i)
        fields.push_back(RN(i).empty() ? std::string(EmptySlot) : RN(i));
    fields.insert(fields.end(), {CHANGEDSTATE(), EQUILIBRIUM()});
    for (int i = 5; i <= MostParticipants; ++i)
        fields.push_back(RN(i));
    fields.push_back(SOLVENTRN);
    out.Fields(fields, INERTRN);
    if (!PrintsCoefficients()) return;
    std::vector<std::string> coefficients = {"^q"};
    for (const Slot& slot : slots_)
        coefficients.push_back(slot.coefficient);
    for (const Slot& slot : slots_)
        coefficients.push_back(slot.sample);
    out.Fields(coefficients);
}

void clsQ::EachChild(const std::function<void(Record&)>& visit) const {
    for (const auto& value : recC)
        visit(*value);
    for (const auto& set : recE)
        visit(*set);
}

std::shared_ptr<clsC> clsQ::FindC(std::string_view key, std::size_t* index) const {
    return FindByKey(recC, key, index);
}

std::shared_ptr<clsE> clsQ::FindE(std::string_view key, std::size_t* index) const {
    return FindByKey(recE, key, index);
}

bool clsQ::OnlyCHNO() const {
    std::vector<EquationTerm> terms;
    for (int i = 1; i <= MostParticipants; ++i)
        if (!RN(i).empty()) terms.push_back({Coeff(i), Formula(i)});
    return vexora::OnlyCHNO(FormulaEquation(terms));
}

bool clsQ::IsPClBr() const {
    return HoldsPClBr(Formulas());
}

namespace {

bool IsSample(const std::string& number, const SubstanceSample& sample) {
    // "01" names sample 1 too.
    return !number.empty() && ToInteger(Val(number)) == ToInteger(Val(sample.SMPNM));
}

/// A record of the source's reactions that takes the sample at the place of its compound.
template <class Takes>
bool AnyReaction(const SubstanceSample& sample, Takes takes) {
    const Substance* const system = sample.System();
    if (system == nullptr || system->Parent == nullptr) return false;
    for (const auto& reaction : system->Parent->recQ)
        for (int i = 1; i <= clsQ::MostParticipants; ++i)
            if (reaction->RN(i) == system->RN && takes(*reaction, i)) return true;
    return false;
}

} // namespace

bool IsUsedInReactions(const SubstanceSample& sample) {
    return AnyReaction(sample, [&sample](const clsQ& reaction,
                                         int i) { return IsSample(reaction.SMPNM(i), sample); }) ||
           IsUsedInReactionData(sample);
}

bool IsUsedInReactionData(const SubstanceSample& sample) {
    return AnyReaction(sample, [&sample](const clsQ& reaction, int i) {
        const auto isOfSample = [&](const auto& set) { return IsSample(set->SMPNM(i), sample); };
        return std::ranges::any_of(reaction.recC, isOfSample) ||
               std::ranges::any_of(reaction.recE, isOfSample);
    });
}

} // namespace vexora
