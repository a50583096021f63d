#include "records/MixtureReader.h"

#include "globals/KVOGlobal.h"
#include "records/DataReader.h"
#include "records/ReaderState.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Source and mixture, one a line, as messages name them.
std::string PlaceOf(const clsM& mixture) {
    return "\n" + (mixture.Parent ? mixture.Parent->Source() : std::string()) + "\n" +
           mixture.ShowKey();
}

bool HasSamples(ReaderState& state, const clsM& mixture, const auto& record) {
    for (int n = 1; n <= mixture.MixType; ++n) {
        const auto compound = mixture.Component(n);
        const int number = static_cast<int>(ToInteger(Val(record.SMPNM(n))));
        if (!compound || !state.SamplesOf(*compound).contains(number)) return false;
    }
    return true;
}

/// A record that has read its line joins the mixture; false when the read is dropped.
template <class Set>
bool Attach(ReaderState& state, const std::shared_ptr<Set>& record) {
    const auto mixture = Globals().CurrentM;
    record->Line = state.lineNumber;
    record->Parent = mixture.get();
    if (!HasSamples(state, *mixture, *record)) {
        state.Abandon("The referenced sample does not exist" + PlaceOf(*mixture) + "\n" +
                      record->ShowKey());
        return false;
    }
    record->PRPSETNO = state.SettledNumber(*mixture, *record, PlaceOf(*mixture));
    record->TakePending(state.pending);
    // A molar mass says nothing about other rows than those of its composition.
    if (IsMassBased(record->PROPERTY_UNIT)) state.factorLine = 0;
    record->AttachTo(*mixture);
    state.pendingLines = state.headerLine = 0;
    state.lastNotKept = false;
    state.OpenNext(record);
    return true;
}

void ReadMixtureValue(ReaderState& state, std::string_view line) {
    if (LowerAscii(line.substr(0, 2)) == "^f") {
        state.Lose(state.lineNumber, "a value of a mixture has no fixed variable");
        return state.PassOver();
    }
    auto value = std::make_shared<clsMZ>();
    value->MixType = Globals().CurrentM->MixType;
    if (!value->Load(line)) return state.AbandonIncomplete(line);
    if (Attach(state, value)) Globals().CurrentMZ = std::move(value);
}

void ReadMixtureSet(ReaderState& state, std::string_view line) {
    auto set = std::make_shared<clsMV>();
    set->MixType = Globals().CurrentM->MixType;
    bool isAmbiguous = false;
    if (!set->Load(line, &isAmbiguous)) return state.AbandonIncomplete(line);
    if (isAmbiguous) state.Tell({{"Ambiguous property: content of ???", set->ShowKey()}});
    const std::string unit = set->PROPERTY_UNIT;
    if (!Attach(state, set)) return;
    if (set->Relation() == "R") state.LeaveFactor(); // which a ratio does not take
    if (IsMassBased(unit) && set->PROPERTY_UNIT != unit)
        state.Lose(state.lineNumber, "a ratio has no unit " + unit);
    Globals().CurrentMV = std::move(set);
}

/// Sets that were read in another order of components join those that the source has.
void Join(ReaderState& state, clsM& known, clsM& other) {
    other.Sort();
    const auto move = [&](auto& sets) {
        for (const auto& set : sets) {
            set->PRPSETNO = state.SettledNumber(known, *set, PlaceOf(known));
            set->AttachTo(known);
        }
        sets.Clear();
    };
    move(other.recMZ);
    move(other.recMV);
}

} // namespace

const DataLines MixtureLines = {ReadMixtureValue, ReadMixtureSet};

void ReadMixture(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.BeginSystem(&MixtureLines);
    const auto source = globals.CurrentR;
    auto mixture = std::make_shared<clsM>();
    mixture->Line = state.lineNumber;
    if (!source || !mixture->Load(line)) return state.AbandonIncomplete(line);
    for (int n = 1; n <= mixture->MixType; ++n) {
        if (!IsNumeric(mixture->RN(n))) return state.AbandonIncomplete(line);
        mixture->RN(n, state.MendedRN(mixture->RN(n)));
    }
    const auto known = source->FindM(*mixture);
    if (!known) {
        mixture->AttachTo(*source);
    } else if (known->COMPOSITION() == mixture->COMPOSITION()) {
        mixture = known;
    } else {
        mixture->Parent = source.get();
        state.reordered.push_back(mixture);
    }
    globals.CurrentM = mixture;
    globals.CurrentMixType = mixture->MixType;
    globals.DataContext = mixture->MixType == 2 ? "Bin" : "Tern";
}

void FinishMixtures(ReaderState& state) {
    for (const auto& source : Globals().recR) {
        for (const auto& mixture : source->recM) {
            if (mixture->Sort()) {
                Globals().Saved = false;
                state.setNumbers.erase(mixture.get());
            }
            std::string fault;
            mixture->Mixture(&fault);
            if (!fault.empty()) state.Tell({{fault, {}}});
        }
    }
    for (const auto& mixture : state.reordered) {
        Join(state, *mixture->Parent->FindM(*mixture), *mixture);
        Globals().Saved = false;
    }
    state.reordered.clear();
}

} // namespace vexora
