#include "records/StructureReader.h"

#include "globals/KVOGlobal.h"
#include "records/ReaderState.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"

namespace vexora {

namespace {

/// The structure that a line belongs to; null, and the line is passed over, when none has begun.
clsCrS* StructureInHand(ReaderState& state) {
    if (!state.structure) {
        state.PassOver();
        return nullptr;
    }
    if (!state.structure->Parent) ++state.structureLines;
    return state.structure.get();
}

void NoRoomFor(ReaderState& state, const std::string& what) {
    state.Lose(state.lineNumber, "words stand behind the last field of " + what);
}

} // namespace

void ReadStructure(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.LeaveStructure();
    if (!globals.CurrentComplexSample || globals.DataContext != "Complex") {
        state.Lose(state.lineNumber, "no sample of a complex stands before it");
        return state.PassOver();
    }
    state.OpenNext();
    state.structure = std::make_shared<clsCrS>();
    state.structure->Line = state.lineNumber;
    state.structure->Load(line);
    state.structureLines = 1;
    globals.CurrentCrS = state.structure;
}

void ReadDistance(ReaderState& state, std::string_view line) {
    clsCrS* structure = StructureInHand(state);
    if (structure && !structure->LoadDistance(line)) NoRoomFor(state, "a distance");
}

void ReadStructureEnd(ReaderState& state, std::string_view) {
    clsCrS* structure = StructureInHand(state);
    if (!structure || structure->Parent) return;
    clsComplexSample& sample = *Globals().CurrentComplexSample;
    structure->SetNo = static_cast<int>(sample.recCrS.Count()) + 1;
    structure->AttachTo(sample);
    state.structureLines = 0;
}

void ReadAtom(ReaderState& state, std::string_view line) {
    clsCrS* structure = StructureInHand(state);
    if (structure && !structure->LoadAtom(line)) NoRoomFor(state, "an atom");
}

} // namespace vexora
