#include "records/ReactionReader.h"

#include "globals/KVOGlobal.h"
#include "records/DataReader.h"
#include "records/ReaderState.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "reference/Conversions.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr const char* NoReaction = "no reaction stands before it";
constexpr const char* WordsTooMany = "words stand behind the last field";

/// Source and reaction, one a line, as messages name them.
std::string PlaceOf(const clsQ& reaction) {
    return "\n" + (reaction.Parent ? reaction.Parent->Source() : std::string()) + "\n" +
           reaction.ShowKey();
}

void PassOverData(ReaderState& state, std::string_view) {
    state.Lose(state.lineNumber, "a reaction has no data of this kind");
    state.PassOver();
}

/// The reaction that data join; null, which is told, when none has been read.
std::shared_ptr<clsQ> ReactionInHand(ReaderState& state) {
    auto reaction = Globals().CurrentQ;
    if (reaction) return reaction;
    state.Lose(state.lineNumber, NoReaction);
    state.PassOver();
    return nullptr;
}

/// A record that has read its line joins the reaction.
template <class Set>
void Attach(ReaderState& state, const std::shared_ptr<Set>& record, clsQ& reaction) {
    record->Line = state.lineNumber;
    record->Parent = &reaction;
    reaction.TakeCoefficients(*record);
    record->PRPSETNO = state.SettledNumber(reaction, *record, PlaceOf(reaction));
    record->TakePending(state.pending);
    // The factor is that of this record alone.
    state.pending.Factor = 0;
    record->AttachTo(reaction);
    state.pendingLines = state.headerLine = 0;
    state.lastNotKept = false;
    // Rows are to follow, whatever has been passed over in front.
    if (state.lines == nullptr) state.lines = &ReactionLines;
    state.OpenNext(record);
}

} // namespace

const DataLines ReactionLines = {PassOverData, PassOverData};

void ReadReaction(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.BeginSystem(&ReactionLines);
    globals.DataContext = "React";
    const auto source = globals.CurrentR;
    auto reaction = std::make_shared<clsQ>();
    reaction->Line = state.lineNumber;
    if (!source || !reaction->Load(line)) return state.AbandonIncomplete(line);
    for (int i = 1; i <= clsQ::MostParticipants; ++i)
        if (!reaction->RN(i).empty()) reaction->RN(i, state.MendedRN(reaction->RN(i)));
    for (std::string* rn : {&reaction->SOLVENTRN, &reaction->INERTRN})
        if (!rn->empty()) *rn = state.MendedRN(*rn);
    // Its dialog has not built the text of it yet.
    reaction->Reaction = "=";
    if (const auto known = source->FindQ(*reaction))
        reaction = known;
    else
        reaction->AttachTo(*source);
    globals.CurrentQ = reaction;
}

void ReadCoefficients(ReaderState& state, std::string_view line) {
    const auto reaction = Globals().CurrentQ;
    if (!reaction) {
        ++state.linesNotKept;
        return state.Lose(state.lineNumber, NoReaction);
    }
    bool isWhole = true;
    reaction->LoadCoefficients(line, &isWhole);
    if (!isWhole)
        state.Lose(state.lineNumber, "the reaction has other coefficients or samples already, or "
                                     "words stand behind the last one");
}

void ReadPropertyChange(ReaderState& state, std::string_view line) {
    const auto reaction = ReactionInHand(state);
    if (!reaction) return;
    auto value = std::make_shared<clsC>();
    if (!value->Load(line)) return state.AbandonIncomplete(line);
    // In front of a unit by mass stands the molar mass, which the formula gives.
    if (IsMassBased(value->UnitCode())) state.factorLine = 0;
    Attach(state, value, *reaction);
    Globals().CurrentC = std::move(value);
    // One in the system unit takes no factor.
    state.LeaveFactor();
}

void ReadEquilibrium(ReaderState& state, std::string_view line) {
    const auto reaction = ReactionInHand(state);
    if (!reaction) return;
    auto set = std::make_shared<clsE>();
    bool isWhole = true;
    if (!set->Load(line, &isWhole)) return state.AbandonIncomplete(line);
    Attach(state, set, *reaction);
    if (!isWhole) state.Lose(state.lineNumber, WordsTooMany);
    Globals().CurrentE = std::move(set);
}

} // namespace vexora
