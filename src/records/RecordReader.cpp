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

/// Takes lines off a text; CR LF, LF and CR end a line.
class LineTaker {
public:
    explicit LineTaker(std::string_view text) : text_(text) {}
    bool AtEnd() const { return at_ == text_.size(); }
    std::size_t Taken() const { return at_; }
    std::string_view Next() {
        // Each end is looked for once, however far away it is: a file may have one kind only.
        if (feed_ < at_ || !isSought_) feed_ = Find('\n');
        if (return_ < at_ || !isSought_) return_ = Find('\r');
        isSought_ = true;
        const std::size_t end = std::min(feed_, return_);
        const std::string_view line = text_.substr(at_, end - at_);
        at_ = std::min(end + (return_ + 1 == feed_ && end == return_ ? 2 : 1), text_.size());
        return line;
    }

private:
    std::size_t Find(char c) const { return std::min(text_.find(c, at_), text_.size()); }

    std::string_view text_;
    std::size_t at_ = 0, feed_ = 0, return_ = 0; // the next ends from here on
    bool isSought_ = false;
};

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
    const bool isAllUtf8 = IsValidUtf8(text);
    constexpr int linesATime = 1000; // between two words on how far it is
    const auto all = static_cast<double>(text.size());
    KVOGlobal& globals = Globals();
    std::string decoded;
    LineTaker lines(text);
    while (!lines.AtEnd() && !state.isAbandoned) {
        std::string_view line = lines.Next();
        globals.LineInHand = ++state.lineNumber;
        if (state.lineNumber % linesATime == 0 &&
            !state.talk.Heard(static_cast<double>(lines.Taken()) / all)) {
            state.isAbandoned = state.isStopped = true;
            return;
        }
        if (Trim(line).empty()) continue;
        // By line, for old files hold some lines of each encoding.
        if (!isAllUtf8 && !IsValidUtf8(line)) {
            decoded = ToUtf8(line);
            line = decoded;
        }
        ReadRecord(state, line);
    }
}

void PrintSources(LineWriter& out, const WorkHeard& heard) {
    for (const auto& source : Globals().recR)
        for (std::string& fault : source->PrepareOutput())
            out.Tell(std::move(fault));
    WalkDocument([&out](const Record& record) { record.Print(out); }, heard);
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
    PrintSources(out, heard);
    return {out.TakeText(), out.TakeNotices()};
}

std::vector<std::string> PrintDocument(const std::function<void(std::string_view)>& taker) {
    LineWriter out(taker);
    PrintSources(out, {});
    out.Flush();
    return out.TakeNotices();
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
