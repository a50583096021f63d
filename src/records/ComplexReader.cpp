#include "records/ComplexReader.h"

#include "globals/KVOGlobal.h"
#include "records/DataReader.h"
#include "records/ReaderState.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsR.h"
#include "reference/Text.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

/// The one that CC lines, or SS and GH lines, are about: open, or closed last.
std::shared_ptr<clsComplex> ComplexInHand(const ReaderState& state) {
    return state.openComplex ? state.openComplex : Globals().CurrentComplex;
}

std::shared_ptr<clsComplexSample> SampleInHand(const ReaderState& state) {
    return state.openComplexSample ? state.openComplexSample : Globals().CurrentComplexSample;
}

void LoseLine(ReaderState& state, const char* why) {
    ++state.linesNotKept;
    state.Lose(state.lineNumber, why);
}

int HighestNumber(const auto& records) {
    int highest = 0;
    for (const auto& record : records)
        highest = std::max(highest, record->SetNo());
    return highest;
}

/// The sample has the header; what a sample has no place for goes lost.
void TakeHeader(ReaderState& state, clsComplexSample& sample) {
    sample.Header.TakeHeader(state.pending);
    const bool saysMore =
        state.headerLine != 0 &&
        !(IsBlankField(state.pending.NOTE) && IsBlankField(state.pending.EXPPURPOSE) &&
          (IsBlankField(state.pending.PRPFLAG) || state.pending.PRPFLAG == "0"));
    if (saysMore)
        state.Lose(state.headerLine, "the sample of a complex has no note, purpose or flags");
    state.pendingLines = state.headerLine = 0;
    state.pending.Factor = 0;
}

/// Samples of a complex that goes lost go with it, and so do their data.
void PassOverSample(ReaderState& state) {
    KVOGlobal& globals = Globals();
    state.Lose(state.lineNumber, "no complex stands before this sample");
    state.PassOver();
    state.lines = nullptr;
    globals.CurrentComplexSample = nullptr;
    globals.CurrentS = nullptr;
}

} // namespace

void LoseOpenComplex(ReaderState& state) {
    if (const auto complex = std::exchange(state.openComplex, nullptr)) {
        state.Lose(complex->Line, "no line CE closes this complex");
        state.linesNotKept += 1 + static_cast<int>(complex->Components.size());
    }
    if (const auto sample = std::exchange(state.openComplexSample, nullptr)) {
        state.Lose(sample->Line, "no line SE closes this sample");
        state.linesNotKept +=
            1 + static_cast<int>(sample->Components.size()) + (sample->HasPreparation ? 1 : 0);
    }
}

void ReadComplex(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.BeginSystem(nullptr);
    globals.CurrentKey = "RX";
    globals.DataContext = "Complex";
    globals.CurrentComplex = nullptr;
    globals.CurrentComplexSample = nullptr;
    globals.CurrentL = nullptr;
    globals.CurrentS = nullptr;
    auto complex = std::make_shared<clsComplex>();
    complex->Line = state.lineNumber;
    if (!globals.CurrentR || !complex->Load(line)) return state.AbandonIncomplete(line);
    state.openComplex = std::move(complex);
}

void ReadComplexComponent(ReaderState& state, std::string_view line) {
    const auto complex = ComplexInHand(state);
    if (!complex) return LoseLine(state, "no complex stands before this component");
    if (!complex->LoadComponent(line)) return state.AbandonIncomplete(line);
    std::string& rn = complex->Components.back().RN;
    rn = state.MendedRN(rn);
}

void CloseComplex(ReaderState& state, std::string_view) {
    KVOGlobal& globals = Globals();
    const auto complex = std::exchange(state.openComplex, nullptr);
    // Closed already: it says nothing more.
    if (!complex) return;
    clsR& source = *globals.CurrentR;
    if (source.FindComplex(complex->RN)) {
        const int number = HighestNumber(source.recComplex) + 1;
        state.Tell({{"The number " + std::to_string(complex->SetNo()) +
                         " of a complex is taken and will be changed to " + std::to_string(number) +
                         "\n" + source.Source() + "\n" + complex->ShowKey(),
                     {}}});
        complex->SetNo(number);
        globals.Saved = false;
    }
    complex->AttachTo(source);
    globals.CurrentComplex = complex;
    globals.CurrentL = complex;
    state.lines = &PureLines;
}

void ReadComplexSample(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.BeginSystem(&PureLines);
    globals.CurrentKey = "RXS";
    globals.DataContext = "Complex";
    const auto complex = globals.CurrentComplex;
    if (!complex) return PassOverSample(state);
    auto sample = std::make_shared<clsComplexSample>();
    sample->Line = state.lineNumber;
    if (!sample->Load(line)) return state.AbandonIncomplete(line);
    TakeHeader(state, *sample);
    globals.CurrentL = complex;
    globals.CurrentComplexSample = nullptr;
    globals.CurrentS = nullptr;
    state.openComplexSample = std::move(sample);
}

void ReadSampleComponent(ReaderState& state, std::string_view line) {
    const auto sample = SampleInHand(state);
    if (!sample) return LoseLine(state, "no sample of a complex stands before this component");
    bool isWhole = true;
    if (!sample->LoadComponent(line, &isWhole)) return state.AbandonIncomplete(line);
    std::string& rn = sample->Components.back().RN;
    rn = state.MendedRN(rn);
    if (!isWhole) state.Lose(state.lineNumber, "words stand behind the last field");
}

void ReadPreparation(ReaderState& state, std::string_view line) {
    const auto sample = SampleInHand(state);
    if (!sample) return LoseLine(state, "no sample of a complex stands before this preparation");
    if (sample->HasPreparation)
        state.Lose(state.lineNumber, "the preparation is stated once more and takes the place of "
                                     "the one before");
    sample->LoadPreparation(line);
}

void CloseComplexSample(ReaderState& state, std::string_view) {
    KVOGlobal& globals = Globals();
    const auto sample = std::exchange(state.openComplexSample, nullptr);
    if (!sample) return;
    clsComplex& complex = *globals.CurrentComplex;
    auto& known = state.SamplesOf(complex);
    const int number = sample->SetNo();
    if (complex.FindS(number)) {
        sample->SetNo(HighestNumber(complex.recS) + 1);
        state.Tell({{"The number " + std::to_string(number) +
                         " of a sample is taken and will be changed to " + sample->SMPNM + "\n" +
                         complex.Parent->Source() + "\n" + complex.ShowKey(),
                     {}}});
        globals.Saved = false;
    }
    sample->AttachTo(complex);
    known[sample->SetNo()] = sample;
    // The lines that follow name it by the number that the file gave it.
    known[number] = sample;
    globals.CurrentComplexSample = sample;
    globals.CurrentS = sample;
}

} // namespace vexora
