#include "records/RecordReader.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/MixtureReader.h"
#include "records/PropertyLabels.h"
#include "records/ReaderState.h"
#include "records/Walk.h"
#include "records/clsR.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

/// Takes the next line off the text; CR LF, LF and CR end a line.
std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end);
    if (text.starts_with("\r\n"))
        text.remove_prefix(2);
    else if (!text.empty())
        text.remove_prefix(1);
    return line;
}

void EmptyDocument() {
    KVOGlobal& globals = Globals();
    // First of all: no question about saving may come, for a Yes would put a torso over the file.
    globals.Saved = true;
    globals.recR.Clear();
    if (globals.tvwTree) globals.tvwTree->Clear();
    globals.ForgetCurrent();
}

/// Sources that the reference database lacks are added there all at once, the read being whole.
void RegisterNewSources(ReadTalk& talk) {
    try {
        RegisterReadSources();
    } catch (const DatabaseError& error) { // it does not take the document away
        talk.Say({error.what(), {}});
    }
}

void Finish(ReadPurpose purpose, ReadTalk& talk) {
    if (purpose == ReadPurpose::Work) RegisterNewSources(talk);
    for (const auto& source : Globals().recR) {
        source->TakeKnownCitation();
        source->TakeOriginOfData();
        source->Synchronize();
        source->CheckPresence();
    }
    // Last, for a label tells names, and a line at the very end may still bring one.
    RefreshLabels();
    Globals().CurrentKey.clear();
}

void ReadLines(std::string_view text, ReaderState& state) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    constexpr int linesATime = 1000; // between two words on how far it is
    const auto all = static_cast<double>(text.size());
    std::string decoded;
    while (!text.empty() && !state.isAbandoned) {
        std::string_view line = TakeLine(text);
        Globals().LineInHand = ++state.lineNumber;
        if (state.lineNumber % linesATime == 0 &&
            !state.talk.Heard(1 - static_cast<double>(text.size()) / all)) {
            state.isAbandoned = state.isStopped = true;
            return;
        }
        if (Trim(line).empty()) continue;
        // By line, for old files hold some lines of each encoding.
        if (!IsValidUtf8(line)) {
            decoded = ToUtf8(line);
            line = decoded;
        }
        ReadRecord(state, line);
    }
}

} // namespace

ReadResult ReadRecords(std::string_view text, ReadTalk& talk, ReadPurpose purpose) {
    KVOGlobal& globals = Globals();
    globals.DataContext.clear();
    ReaderState state(talk);
    try {
        {
            const LabelsLater unlabelled;
            ReadLines(text, state);
            if (!state.isAbandoned) FinishMixtures(state);
        }
        state.Finish();
        if (!state.isAbandoned) Finish(purpose, talk);
    } catch (const DatabaseError& error) { // a damaged database shows where it is looked into
        state.Abandon(error.what());
    }
    globals.LineInHand = 0;
    ReadResult result;
    result.whole = !state.isAbandoned;
    result.linesNotKept = state.linesNotKept;
    result.lost = std::move(state.lost);
    result.told = std::move(state.told);
    std::ranges::stable_sort(result.lost, {}, &LineLost::line);
    if (result.whole) return result;
    EmptyDocument();
    result.stopped = state.isStopped;
    result.fault = state.fault;
    result.faultLine = state.lineNumber;
    result.endsProgram = state.endsProgram;
    return result;
}

PrintedDocument PrintDocument(const WorkHeard& heard) {
    LineWriter out;
    for (const auto& source : Globals().recR)
        for (std::string& fault : source->PrepareOutput())
            out.Tell(std::move(fault));
    WalkDocument([&out](const Record& record) { record.Print(out); }, heard);
    return {out.Text(), out.Notices()};
}

std::string DocumentInMemory() {
    LineWriter out;
    out.WritesAll = true;
    WalkDocument([&out](const Record& record) { record.Print(out); });
    return out.Text();
}

void RefreshLabels() {
    if (!Globals().tvwTree) return;
    const PropertyLabels labels;
    WalkDocument([](Record& record) { record.Refresh(); });
}

} // namespace vexora
