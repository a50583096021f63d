#include "records/DataReader.h"

#include "globals/KVOGlobal.h"
#include "records/BioReader.h"
#include "records/ReaderState.h"
#include "records/Substance.h"
#include "records/clsComplexSample.h"
#include "records/clsR.h"
#include "records/clsTwo.h"
#include "records/clsX.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <unordered_set>

namespace vexora {

namespace {

using Taken = OpenRecord::Taken;

/// "*" and "S1" mean the current sample; other texts are the number of one.
/// The text stays in the record as read; to whom it belongs is told by the sample it hangs on.
std::shared_ptr<SubstanceSample> SampleOf(ReaderState& state, const std::string& text) {
    const KVOGlobal& globals = Globals();
    const bool isCurrent = text == "*" || (text.starts_with('S') && IsNumeric(text.substr(1)));
    if (isCurrent || !globals.CurrentL) return globals.CurrentS;
    const auto& samples = state.SamplesOf(*globals.CurrentL);
    const auto found = samples.find(static_cast<int>(ToInteger(Val(text))));
    return found == samples.end() ? nullptr : found->second;
}

/// Blanks part the fields: run together, property "P1" of set 1 would be "P" of set 11.
std::string SetKey(const clsZ& value) {
    return "Z" + std::to_string(value.nVar) + " " + value.PRPCODE + " " + value.PRPSETNO;
}

std::string SetKey(const clsTwo& set) {
    return std::to_string(set.nVar) + " " + set.PRPCODE + " " + set.PRPSETNO;
}

/// Notes the set among those of its sample; false when its like is there already.
/// A walk through all siblings for each record would cost the square of their number.
bool IsNewSet(ReaderState& state, const SubstanceSample& sample, const std::string& key) {
    const auto [entry, isFirst] = state.setKeys.try_emplace(&sample);
    if (isFirst) {
        for (const auto& known : sample.recZ)
            entry->second.insert(SetKey(*known));
        for (const auto& known : sample.recTwo)
            entry->second.insert(SetKey(*known));
    }
    return entry->second.insert(key).second;
}

constexpr const char* WordsTooMany = "words stand behind the last field";

/// A statement gives way to the one being read.
void LoseToThis(ReaderState& state, int line) {
    state.Lose(line, "what is stated here is stated once more in line " +
                         std::to_string(state.lineNumber) + ", which takes its place");
}

/// A statement about nothing. What is told of a record that is not kept goes with that.
void PassOverStatement(ReaderState& state) {
    ++state.linesNotKept;
    if (!state.lastNotKept) state.Lose(state.lineNumber, "nothing stands before this statement");
}

/// Where the read stands, as messages name it: source and compound, one a line.
std::string PlaceOfRead() {
    const KVOGlobal& globals = Globals();
    return (globals.CurrentR ? globals.CurrentR->Source() : std::string()) + "\n" +
           (globals.CurrentL ? globals.CurrentL->RN : std::string()) + "\n";
}

/// Reads a value or a set from its line into its sample; null when the read is dropped.
template <class Record>
std::shared_ptr<Record> Attached(ReaderState& state, std::string_view line) {
    auto record = std::make_shared<Record>();
    record->Line = state.lineNumber;
    if (!record->Load(line)) {
        state.AbandonIncomplete(line);
        return nullptr;
    }
    const auto sample = SampleOf(state, record->SMPNM);
    if (!sample) {
        state.Abandon(PlaceOfRead() + std::string(Trim(line)), "Sample not specified");
        return nullptr;
    }
    // Whatever refers to a set names its number, so two of one number cannot both be meant.
    if (!IsNewSet(state, *sample, SetKey(*record))) {
        state.Abandon("This property set already exists\n" + PlaceOfRead() + "Sample # " +
                      record->SMPNM);
        return nullptr;
    }
    // A sample of a complex may have been given another number than the file has.
    if (dynamic_cast<const clsComplexSample*>(sample.get())) record->SMPNM = sample->SMPNM;
    record->TakePending(state.pending);
    record->AttachTo(*sample);
    // The header has found its record: its lines are kept.
    state.pendingLines = state.headerLine = 0;
    state.lastNotKept = false;
    state.OpenNext(record);
    return record;
}

void ReadPureValue(ReaderState& state, std::string_view line) {
    Attached<clsZ>(state, line);
}

void ReadPureSet(ReaderState& state, std::string_view line) {
    // A pure compound in one phase has two state variables; a third is a fault of the file.
    if (line.starts_with("^3")) return state.AbandonIncomplete(line);
    if (auto set = Attached<clsTwo>(state, line)) Globals().CurrentTwo = std::move(set);
}

} // namespace

const DataLines PureLines = {ReadPureValue, ReadPureSet};

void ReadValue(ReaderState& state, std::string_view line) {
    state.lines ? state.lines->value(state, line) : state.PassOver();
}

void ReadSet(ReaderState& state, std::string_view line) {
    state.lines ? state.lines->set(state, line) : state.PassOver();
}

void ReadRow(ReaderState& state, std::string_view line) {
    // Rows behind a record that is passed over go with it; rows behind nothing are a fault.
    if (!state.lines || (!state.open && state.lastNotKept)) return state.PassOver();
    state.rowStatementsLine = 0;
    const auto taken = state.open ? state.open->LoadRow(line) : Taken::NoRows;
    if (taken == Taken::InPart)
        state.Lose(state.lineNumber, WordsTooMany);
    else if (taken != Taken::Yes)
        state.AbandonIncomplete(line);
}

void ReadRowStatements(ReaderState& state, std::string_view line) {
    const auto taken = state.open ? state.open->LoadRowStatements(line) : Taken::NoRows;
    // Data stay true without their statements, so the read goes on; the loss is counted.
    if (taken == Taken::NoRows) return PassOverStatement(state);
    if (state.rowStatementsLine != 0) LoseToThis(state, state.rowStatementsLine);
    state.rowStatementsLine = state.lineNumber;
    if (taken == Taken::InPart) state.Lose(state.lineNumber, WordsTooMany);
}

void ReadStatement(ReaderState& state, std::string_view line) {
    if (!state.open) return PassOverStatement(state);
    clsX item;
    item.Load(line);
    PlaceStatement(state, item);
    const auto [place, replaces] = state.open->AddX(item);
    if (place < 0) return; // kept as it stands
    const auto [entry, isFirst] = state.statementLines.try_emplace(place, state.lineNumber);
    // With no statement before, it is the repeatability in the line of the value that goes.
    if (replaces) LoseToThis(state, isFirst ? state.open->Line : entry->second);
    entry->second = state.lineNumber;
    if (!item.HoldsAll()) state.Lose(state.lineNumber, "words of the statement have no meaning");
}

} // namespace vexora
