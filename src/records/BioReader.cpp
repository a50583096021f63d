#include "records/BioReader.h"

#include "globals/KVOGlobal.h"
#include "records/BioLines.h"
#include "records/LineWriter.h"
#include "records/ReaderState.h"
#include "records/SetLines.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsComplexSample.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

/// A line that there can be once takes the place of another one.
void LoseBefore(ReaderState& state, int& lineBefore, bool differs) {
    if (lineBefore != 0 && differs)
        state.Lose(lineBefore, "this stands once more in line " + std::to_string(state.lineNumber) +
                                   ", which takes its place");
    lineBefore = state.lineNumber;
}

/// A set whose line has been read is the one in hand from here on.
template <class Set>
void Begin(ReaderState& state, const std::shared_ptr<Set>& set) {
    state.BeginSystem(state.lines);
    LeaveBioSet(state);
    set->Line = state.lineNumber;
    set->Parent = Globals().CurrentR.get();
    if (state.hasHeader) {
        set->Header.TakeHeader(state.pending);
    } else {
        set->Header.COMPILER = Globals().CompilerCode;
        set->Header.CONTRIBUTOR = Globals().ContributorCode;
    }
    state.pendingLines = state.headerLine = 0;
    state.bio.set = set;
    state.OpenNext(set);
}

void BeginReaction(ReaderState& state, const std::shared_ptr<clsBR>& set) {
    Begin(state, set);
    state.bio.reaction = set;
    Globals().CurrentBR = set;
    Globals().CurrentKey = "RBR";
}

/// A number that is in use gives way to the one above the highest.
template <class Sets>
void SettleNumber(ReaderState& state, const Sets& sets, const void* owner, BioSet& set,
                  bool isTaken) {
    const auto [entry, isFirst] = state.highestBioSet.try_emplace(owner, 0);
    if (isFirst)
        for (const auto& known : sets)
            entry->second = std::max(entry->second, known->SetNo);
    if (isTaken) {
        state.Tell({{"Duplicate data set number will be changed", {}}});
        set.SetNo = entry->second + 1;
        Globals().Saved = false;
    }
    entry->second = std::max(entry->second, set.SetNo);
}

void AttachReaction(ReaderState& state, clsR& source, clsBR& set) {
    SettleNumber(state, source.recBR, &source.recBR, set, source.FindBR(set.SetNo) != nullptr);
    set.AttachTo(source);
}

/// The complex sample of a phase equilibrium: the one in hand, or another one of its complex that
/// the set names; null for none.
std::shared_ptr<clsComplexSample> SampleOf(ReaderState& state, const clsBP& set) {
    const auto inHand = Globals().CurrentComplexSample;
    if (!inHand || !IsNumeric(set.SMPNM)) return inHand;
    const auto& samples = state.SamplesOf(*inHand->System());
    const auto named = samples.find(static_cast<int>(ToInteger(Val(set.SMPNM))));
    return named == samples.end() ? inHand
                                  : std::static_pointer_cast<clsComplexSample>(named->second);
}

void AttachEquilibrium(ReaderState& state, const clsR& source, clsBP& set) {
    const auto sample = SampleOf(state, set);
    if (!sample)
        return state.Abandon(source.Source() + "\n" + set.ShowKey(), "Sample not specified");
    SettleNumber(state, sample->recBP, &sample->recBP, set, sample->FindBP(set.SetNo) != nullptr);
    set.AttachTo(*sample);
}

void AttachProperty(ReaderState& state, clsR& source, clsBP& set) {
    if (set.PrpType == "G") return AttachEquilibrium(state, source, set);
    SettleNumber(state, source.recBP, &source.recBP, set, source.FindBP(set.SetNo) != nullptr);
    set.AttachTo(source);
}

} // namespace

BioSet* SetInHand(ReaderState& state) {
    if (!state.bio.set) {
        ++state.linesNotKept;
        state.Lose(state.lineNumber, "no bio set stands before it");
    }
    return state.bio.set.get();
}

void LoseWordsLeft(ReaderState& state, const WordReader& words) {
    if (!words.AtEnd()) LoseWordsLeft(state);
}

void LoseWordsLeft(ReaderState& state) {
    state.Lose(state.lineNumber, "words stand behind the last field");
}

void ReadBioReaction(ReaderState& state, std::string_view line) {
    auto set = std::make_shared<clsBR>();
    if (!Globals().CurrentR || !set->Load(line)) return state.AbandonIncomplete(line);
    BeginReaction(state, set);
    WordReader words(line);
    for (int n = 0; n < 3; ++n)
        words.NextWord();
    LoseWordsLeft(state, words);
}

void ReadBioProperty(ReaderState& state, std::string_view line) {
    auto set = std::make_shared<clsBP>();
    if (!Globals().CurrentR || !set->Load(line)) return state.AbandonIncomplete(line);
    Begin(state, set);
    state.bio.property = set;
    Globals().CurrentBP = set;
    Globals().CurrentKey = "RBP";
    WordReader words(line);
    for (int n = 0; n < 2; ++n)
        words.NextWord();
    LoseWordsLeft(state, words);
}

void ReadBioKind(ReaderState& state, std::string_view line) {
    if (!SetInHand(state)) return;
    if (!state.bio.property) return state.Lose(state.lineNumber, "a bio reaction has no such line");
    clsBP& set = *state.bio.property;
    WordReader words(line);
    words.NextWord();
    const std::string kind = NextField(words), sample = NextField(words);
    std::string state1 = NextText(words), state2 = NextText(words);
    std::array<std::string, 4> phases;
    for (std::string& phase : phases)
        phase = NextField(words);
    LoseWordsLeft(state, words);
    const std::array<std::string, 4> before = {set.PHASE1, set.PHASE2, set.PHASE3, set.PHASE4};
    LoseBefore(state, state.bio.kindLine,
               kind != set.PrpType || state1 != set.State1 || state2 != set.State2 ||
                   phases != before);
    if (!sample.empty() && !set.SMPNM.empty() && sample != set.SMPNM)
        state.Lose(state.lineNumber, "the line of the substance names sample " + set.SMPNM);
    if (set.SMPNM.empty()) set.SMPNM = sample;
    set.PrpType = kind;
    set.State1 = std::move(state1);
    set.State2 = std::move(state2);
    set.PHASE1 = std::move(phases[0]);
    set.PHASE2 = std::move(phases[1]);
    set.PHASE3 = std::move(phases[2]);
    set.PHASE4 = std::move(phases[3]);
    if (set.PrpType == "G") Globals().CurrentKey = "RXSP";
}

void ReadBioQuantity(ReaderState& state, std::string_view line) {
    BioSet* const set = SetInHand(state);
    if (!set) return;
    WordReader words(line);
    words.NextWord();
    bool knowsRole = true;
    BioQuantity quantity = ReadQuantity(words, *set, &knowsRole);
    LoseWordsLeft(state, words);
    if (!knowsRole) state.Lose(state.lineNumber, "the role of the quantity is none of P, V and C");
    const auto known = state.bio.keys.find(quantity.component);
    if (known != state.bio.keys.end() && !known->second.key.empty())
        quantity.component = known->second.key;
    const std::size_t place = set->Add(std::move(quantity));
    for (std::size_t& other : state.bio.places)
        if (other >= place) ++other;
    state.bio.places.push_back(place);
}

void ReadBioEnd(ReaderState& state, std::string_view) {
    if (!SetInHand(state) || state.bio.isAttached) return;
    const auto source = Globals().CurrentR;
    if (state.bio.reaction)
        AttachReaction(state, *source, *state.bio.reaction);
    else
        AttachProperty(state, *source, *state.bio.property);
    state.bio.isAttached = true;
}

void ReadBioMethod(ReaderState& state, std::string_view line) {
    BioSet* const set = SetInHand(state);
    if (!set) return;
    WordReader words(line);
    words.NextWord();
    const std::string method = WithoutPlaceholder(Trim(words.Rest()));
    LoseBefore(state, state.bio.methodLine, method != set->Method);
    set->Method = method;
}

namespace {

/// The last bio reaction again, without its rows.
void ReadCopy(ReaderState& state, std::string_view number) {
    const auto source = Globals().CurrentR;
    const auto last = state.bio.reaction ? state.bio.reaction : state.lastBioReaction;
    if (!source || !last) {
        ++state.linesNotKept;
        return state.Lose(state.lineNumber, "no bio reaction stands before it");
    }
    const auto copy = last->Copy();
    copy->recD.clear();
    copy->SetNo = BioSetNumber(number);
    if (copy->SetNo == 0 || source->FindBR(copy->SetNo)) copy->SetNo = source->NextBRNumber();
    BeginReaction(state, copy);
    AttachReaction(state, *source, *copy);
    state.bio.isAttached = true;
}

} // namespace

void ReadBioFlags(ReaderState& state, std::string_view line) {
    WordReader words(line);
    words.NextWord();
    const std::string_view first = words.NextWord(), second = words.NextWord();
    if (second.empty()) return ReadCopy(state, first);
    BioSet* const set = SetInHand(state);
    if (!set) return;
    if (!state.bio.reaction)
        return state.Lose(state.lineNumber, "a property of a bio substance has no such line");
    LoseBefore(state, state.bio.flagLine,
               set->Flag1 != (first == "1") || set->Flag2 != (second == "1"));
    set->Flag1 = first == "1";
    set->Flag2 = second == "1";
    LoseWordsLeft(state, words);
}

void ReadBioRow(ReaderState& state, std::string_view line) {
    BioSet* const set = SetInHand(state);
    if (set && set->LoadRow(line) == OpenRecord::Taken::InPart) LoseWordsLeft(state);
}

void PlaceStatement(const ReaderState& state, clsX& item) {
    const std::vector<std::size_t>& places = state.bio.places;
    if (state.open != state.bio.set || item.N < 0) return;
    const auto number = static_cast<std::size_t>(item.N);
    if (number < places.size()) item.N = static_cast<int>(places[number]);
}

void LeaveBioSet(ReaderState& state) {
    const BioInHand& bio = state.bio;
    if (bio.set && !bio.isAttached)
        state.Lose(bio.set->Line, "the bio set that begins here has no line that ends it (BE)");
    if (bio.reaction) state.lastBioReaction = bio.reaction;
    state.bio = {};
}

} // namespace vexora
