// The lines of a bio set that name compounds.
#include "records/BioReader.h"

#include "chem/clsAtom.h"
#include "globals/KVOGlobal.h"
#include "records/BioLines.h"
#include "records/LineWriter.h"
#include "records/ReaderState.h"
#include "records/RegistryNumbers.h"
#include "records/SetLines.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

namespace {

/// The compound of a line as the line has it.
struct BioCompound {
    std::string RN;
    CompoundWords words;
};

/// A complex has a number below 0, and its own lines.
bool IsCompoundNumber(const std::string& rn) {
    return !NamesNoCompound(rn) && Val(rn) > 0;
}

std::int32_t ChargeOf(const std::string& word) {
    constexpr std::int64_t most = 999'999;
    return static_cast<std::int32_t>(std::clamp(ToInteger(Val(word)), -most, most));
}

/// The compound as far as the reference database knows it, under the name of the line.
std::shared_ptr<clsL> NewCompound(const BioCompound& read, int line) {
    auto compound = std::make_shared<clsL>();
    compound->Line = line;
    compound->RN = read.RN;
    compound->TakeKnownIdentity();
    compound->isBio = true;
    compound->isNew = CompoundsOf(ToInteger(Val(read.RN))).empty();
    if (read.words.name.empty() || RunTogether(compound->Name) == read.words.name) return compound;
    compound->Name = UnderscoresToBlanks(read.words.name);
    compound->isNamed = !compound->isNew;
    return compound;
}

/// What a compound of the source does not say yet it takes over; false when it says something else.
bool TakeWords(clsL& compound, const BioCompound& read) {
    const CompoundWords& words = read.words;
    bool fits = true;
    const auto take = [&fits](std::string& field, const std::string& word, bool isText) {
        if (field.empty()) field = isText ? UnderscoresToBlanks(word) : word;
        fits = fits && (word.empty() || (isText ? RunTogether(field) : field) == word);
    };
    take(compound.Name, words.name, true);
    take(compound.Formula, words.formula, false);
    take(compound.EC, words.EC, true);
    take(compound.PDB, words.PDB, true);
    const std::int32_t charge = ChargeOf(words.charge);
    if (compound.Charge == 0) compound.Charge = charge;
    if (compound.MMass <= 0) compound.MMass = MolarMassOfFormula(compound.Formula);
    if (compound.MMass <= 0) compound.MMass = std::max(0.0, Val(words.molarMass));
    return fits && (charge == 0 || charge == compound.Charge);
}

void TakeCompound(ReaderState& state, const BioCompound& read) {
    const auto source = Globals().CurrentR;
    if (!source || !IsCompoundNumber(read.RN)) return;
    auto compound = source->FindL(read.RN);
    if (!compound) {
        compound = NewCompound(read, state.lineNumber);
        compound->AttachTo(*source);
    }
    if (!TakeWords(*compound, read))
        state.Lose(state.lineNumber, "the compound is described before, in another way");
}

/// The number of a line, mended; lines further down name the old one.
std::string MendedNumber(ReaderState& state, const std::string& rn) {
    std::string mended = state.MendedRN(rn);
    if (mended != rn) {
        state.mendedRN[rn] = mended;
        Globals().Saved = false;
    }
    return mended;
}

bool IsZero(const std::string& coefficient) {
    return coefficient.empty() || (IsNumeric(coefficient) && Val(coefficient) == 0);
}

/// BP n key 0 SMPNM RN name formula mmass 0 coeff phase charge EC PDB
void ReadParticipant(ReaderState& state, clsBR& set, WordReader& words) {
    const bool isMarked = words.NextWord() == "1";
    const std::string key = NextField(words);
    words.NextWord();
    BioParticipant participant;
    participant.SMPNM = NextField(words);
    BioCompound read;
    read.RN = participant.RN = MendedNumber(state, NextField(words));
    read.words.name = NextField(words);
    read.words.formula = NextField(words);
    read.words.molarMass = words.NextWord();
    words.NextWord();
    participant.coefficient = NextField(words);
    participant.phase = NextField(words);
    read.words.charge = words.NextWord();
    read.words.EC = NextField(words);
    read.words.PDB = NextField(words);
    LoseWordsLeft(state, words);
    TakeCompound(state, read);
    if (!isMarked && IsZero(participant.coefficient)) {
        state.bio.keys[key] = {read.RN, {}, participant.SMPNM, false};
        return;
    }
    if (participant.coefficient == "0") participant.coefficient.clear();
    set.Participants.push_back(std::move(participant));
    state.bio.keys[key] = {read.RN, set.ParticipantKeys().back(), {}, true};
}

/// BP key 0 SMPNM & name RN formula mmass charge EC PDB
void ReadSubstance(ReaderState& state, clsBP& set, WordReader& words) {
    const std::string key = NextField(words);
    words.NextWord();
    const std::string sample = NextField(words);
    words.NextWord();
    BioCompound read;
    read.words.name = NextField(words);
    read.RN = MendedNumber(state, NextField(words));
    read.words.formula = NextField(words);
    read.words.molarMass = words.NextWord();
    read.words.charge = words.NextWord();
    read.words.EC = NextField(words);
    read.words.PDB = NextField(words);
    LoseWordsLeft(state, words);
    TakeCompound(state, read);
    const bool isSubstance = state.bio.keys.empty();
    state.bio.keys[key] = {read.RN, isSubstance ? read.RN : "", isSubstance ? "" : sample,
                           isSubstance};
    if (!isSubstance) return;
    set.RN = read.RN;
    set.SMPNM = sample;
}

} // namespace

void ReadBioCompound(ReaderState& state, std::string_view line) {
    if (!SetInHand(state)) return;
    WordReader words(line);
    words.NextWord();
    if (state.bio.reaction)
        ReadParticipant(state, *state.bio.reaction, words);
    else
        ReadSubstance(state, *state.bio.property, words);
}

namespace {

/// What a key means, the k-th of a compound by any of its lines; null for a compound that no line
/// of the set names.
BioInHand::Meaning* MeaningOf(BioInHand& bio, const std::string& key) {
    const auto known = bio.keys.find(key);
    if (known != bio.keys.end()) return &known->second;
    const auto first = bio.keys.find(BioSet::RNOfKey(key));
    if (first == bio.keys.end()) return nullptr;
    const std::string rn = first->second.RN;
    return &(bio.keys[key] = {rn, {}, {}, false});
}

} // namespace

void ReadBioComponent(ReaderState& state, std::string_view line) {
    BioSet* const set = SetInHand(state);
    if (!set) return;
    WordReader words(line);
    words.NextWord();
    const std::string key = NextField(words);
    BioInHand::Meaning* const meaning = MeaningOf(state.bio, key);
    if (!meaning)
        return state.Lose(state.lineNumber, "no line of the set names the compound " + key);
    BioComponent component;
    component.RN = meaning->RN;
    component.function = NextText(words);
    component.phase = NextField(words);
    component.SMPNM = NextField(words);
    component.note = WithoutPlaceholder(Trim(words.Rest()));
    if (component.SMPNM.empty()) component.SMPNM = meaning->sample;
    set->Components.push_back(std::move(component));
    // Of two with one key the first is meant.
    if (meaning->key.empty()) meaning->key = set->Keys().back();
}

} // namespace vexora
