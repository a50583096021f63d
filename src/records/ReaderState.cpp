#include "records/ReaderState.h"

#include "chem/clsMethod.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/RegistryNumbers.h"
#include "records/clsAuthor.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsX.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

using Handler = void (*)(ReaderState&, std::string_view);

std::string Incomplete(std::string_view line) {
    return "Incomplete record: " + std::string(Trim(line));
}

void ForgetPending(ReaderState& state) {
    state.pending.Factor = 0;
    state.value = nullptr;
    state.lastNotKept = false;
}

/// The lines of a header that belong to a record which is passed over go with it.
void PassOver(ReaderState& state) {
    state.linesNotKept += state.pendingLines + 1;
    state.pendingLines = 0;
    state.pending = clsA();
    state.value = nullptr;
    state.lastNotKept = true;
}

void ReadSource(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    ForgetPending(state);
    if (globals.CurrentR) globals.CurrentR->CheckPresence();
    auto source = std::make_shared<clsR>();
    source->Line = state.lineNumber;
    if (!source->Load(line))
        return state.AbandonSaid("Invalid reference identification: " + std::string(Trim(line)));
    if (const auto known = globals.recR.Item(source->Source()))
        source = known;
    else
        source->AttachTo();
    globals.CurrentR = source;
    if (globals.CurrentMethod)
        globals.CurrentMethod->Year = static_cast<std::int32_t>(ToInteger(Val(source->YEARPUB)));
    globals.CurrentL = nullptr;
    globals.CurrentS = nullptr;
}

void ReadDescription(ReaderState& state, std::string_view line) {
    const auto source = Globals().CurrentR;
    if (!source) return state.Abandon(Incomplete(line));
    source->LoadJ(line);
    source->Synchronize();
}

void ReadAuthor(ReaderState& state, std::string_view line) {
    const auto source = Globals().CurrentR;
    if (!source) return state.Abandon(Incomplete(line));
    auto author = std::make_shared<clsAuthor>();
    author->Line = state.lineNumber;
    author->Load(line);
    const auto twin = source->recAuthor.Item(author->Key());
    if (twin && twin->LASTNM == author->LASTNM && twin->INITNM == author->INITNM) return;
    source->recAuthor.Add(author, author->Key());
}

void ReadCompound(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    ForgetPending(state);
    state.inPure = true;
    globals.DataContext = "Pure";
    if (!globals.CurrentR) return state.Abandon(Incomplete(line));
    auto compound = std::make_shared<clsL>();
    compound->Line = state.lineNumber;
    if (!compound->Load(line)) {
        if (compound->RN.empty()) return state.Abandon(Incomplete(line));
        state.endsProgram = true;
        return state.AbandonSaid("Invalid RN: RN = " + compound->RN);
    }
    if (compound->REFPROP.empty()) return state.Abandon(Incomplete(line));
    if (!compound->NewRn.empty()) {
        WordReader words(line);
        words.NextWord();
        state.mendedRN[std::string(words.NextWord())] = compound->RN;
        globals.Saved = false;
    }
    if (const auto known = globals.CurrentR->FindL(compound->RN))
        compound = known;
    else
        compound->AttachTo(*globals.CurrentR);
    globals.CurrentL = compound;
    globals.CurrentS = nullptr;
}

/// The number with its check digit set right, told unless the ^L line has told it.
std::string MendedRN(const ReaderState& state, const std::string& rn) {
    const auto known = state.mendedRN.find(rn);
    if (known != state.mendedRN.end()) return known->second;
    const std::string mended = WithCheckDigit(rn);
    if (mended != rn) ui::Say("RN was corrected: from " + rn + " to " + mended);
    return mended;
}

/// ^N [old text] RN Formula Name. No formula is a bare number, so a second word that is one is the
/// RN.
void ReadCorrection(ReaderState& state, std::string_view line) {
    const auto source = Globals().CurrentR;
    if (!source) return;
    WordReader words(line);
    words.NextWord();
    std::string rn(words.NextWord());
    std::string formula(words.NextWord());
    if (IsNumeric(formula)) {
        rn = formula;
        formula = words.NextWord();
    }
    rn = MendedRN(state, rn);
    const auto compound = source->FindL(rn);
    if (!compound) return;
    compound->Name = WithoutPlaceholder(Trim(words.Rest()));
    compound->Formula = WithoutPlaceholder(formula);
    compound->isNew = true;
    compound->MMass = 0;
    compound->MMass = MolarMassOfRN(rn, source.get());
    compound->Refresh();
    if (!compound->NewRn.empty()) Globals().Saved = false;
}

std::unordered_map<int, std::shared_ptr<clsS>>& SamplesOf(ReaderState& state,
                                                          const clsL& compound) {
    const auto [entry, isFirst] = state.samples.try_emplace(&compound);
    if (isFirst) {
        for (const auto& sample : compound.recS)
            entry->second.try_emplace(static_cast<int>(ToInteger(Val(sample->SMPNM))), sample);
    }
    return entry->second;
}

void ReadSample(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    ForgetPending(state);
    if (!globals.CurrentL) return state.Abandon(Incomplete(line));
    auto sample = std::make_shared<clsS>();
    sample->Line = state.lineNumber;
    sample->Load(line);
    if (sample->SMPNM.empty()) return state.Abandon(Incomplete(line));
    const int number = static_cast<int>(ToInteger(Val(sample->SMPNM)));
    const auto [entry, isNew] = SamplesOf(state, *globals.CurrentL).try_emplace(number, sample);
    if (isNew) sample->AttachTo(*globals.CurrentL);
    globals.CurrentS = entry->second;
}

void ReadHeader(ReaderState& state, std::string_view line) {
    state.pending.Load(line);
    ++state.pendingLines;
}

void ReadFactor(ReaderState& state, std::string_view line) {
    constexpr std::size_t tagLength = 2;
    state.pending.Factor = Val(line.substr(tagLength));
    if (state.pending.Factor == 0 && state.lastNotKept)
        ++state.linesNotKept; // closes the record that was passed over
    else if (state.pending.Factor != 0)
        ++state.pendingLines;
}

/// "*" and "S1" mean the current sample; other texts are the number of one.
std::shared_ptr<clsS> SampleOf(ReaderState& state, const std::string& text) {
    const KVOGlobal& globals = Globals();
    const bool isCurrent = text == "*" || (text.starts_with('S') && IsNumeric(text.substr(1)));
    if (isCurrent || !globals.CurrentL) return globals.CurrentS;
    const auto& samples = SamplesOf(state, *globals.CurrentL);
    const auto found = samples.find(static_cast<int>(ToInteger(Val(text))));
    return found == samples.end() ? nullptr : found->second;
}

std::string SetKey(const clsZ& value) {
    return std::to_string(value.nVar) + " " + value.PRPCODE + " " + value.PRPSETNO;
}

/// Notes the set among those of its sample; false when its like is there already.
bool IsNewSet(ReaderState& state, const clsS& sample, const clsZ& value) {
    const auto [entry, isFirst] = state.setKeys.try_emplace(&sample);
    if (isFirst) {
        for (const auto& known : sample.recZ)
            entry->second.insert(SetKey(*known));
    }
    return entry->second.insert(SetKey(value)).second;
}

/// Where the read stands, as messages name it: source and compound, one a line.
std::string PlaceOfRead() {
    const KVOGlobal& globals = Globals();
    return (globals.CurrentR ? globals.CurrentR->Source() : std::string()) + "\n" +
           (globals.CurrentL ? globals.CurrentL->RN : std::string()) + "\n";
}

void ReadValue(ReaderState& state, std::string_view line) {
    if (!state.inPure) return PassOver(state);
    auto value = std::make_shared<clsZ>();
    value->Line = state.lineNumber;
    if (!value->Load(line)) return state.Abandon(Incomplete(line));
    const auto sample = SampleOf(state, value->SMPNM);
    if (!sample)
        return state.Abandon(PlaceOfRead() + std::string(Trim(line)), "Sample not specified");
    if (!IsNewSet(state, *sample, *value))
        return state.Abandon("This property set already exists\n" + PlaceOfRead() + "Sample # " +
                             value->SMPNM);
    value->TakePending(state.pending);
    value->AttachTo(*sample);
    state.pendingLines = 0;
    state.lastNotKept = false;
    state.value = value;
}

void ReadStatement(ReaderState& state, std::string_view line) {
    if (!state.value) {
        ++state.linesNotKept;
        return;
    }
    clsX item;
    item.Load(line);
    state.value->AddX(item);
}

void PassOverSystem(ReaderState& state, std::string_view) {
    PassOver(state);
    state.pending.Factor = 0;
    state.inPure = false;
}

void PassOverLine(ReaderState& state, std::string_view) {
    PassOver(state);
}

const std::unordered_map<std::string_view, Handler>& Handlers() {
    static const std::unordered_map<std::string_view, Handler> handlers = [] {
        std::unordered_map<std::string_view, Handler> table = {
            {"^R", ReadSource},     {"^J", ReadDescription}, {"^I", ReadAuthor},
            {"^N", ReadCorrection}, {"^L", ReadCompound},    {"BL", ReadCompound},
            {"^S", ReadSample},     {"^A", ReadHeader},      {"^a", ReadHeader},
            {"^M", ReadFactor},     {"^Z", ReadValue},       {"^z", ReadValue},
            {"^F", ReadValue},      {"^f", ReadValue},       {"^X", ReadStatement}};
        // Behind these the values and samples are those of a mixture, a reaction or a complex.
        for (const std::string_view tag : {"^B", "^T", "^Q", "CS", "SB"})
            table[tag] = PassOverSystem;
        for (const std::string_view tag :
             {"^1", "^2", "^3", "^D", "^d", "^G", "^g", "^Y", "^C", "^c", "^E",
              "^H", "BR", "B0", "BN", "BP", "BC", "BV", "BM", "BH", "BD", "BE",
              "CC", "CE", "SS", "GH", "SE", "XB", "XD", "XC", "XE"})
            table[tag] = PassOverLine;
        return table;
    }();
    return handlers;
}

} // namespace

void ReaderState::Abandon(const std::string& text, const std::string& title) {
    ui::Say(text, title);
    AbandonSaid(title.empty() ? text : title + ": " + text);
}

void ReaderState::AbandonSaid(const std::string& text) {
    isAbandoned = true;
    fault = text;
}

void ReadRecord(ReaderState& state, std::string_view line) {
    constexpr std::size_t tagLength = 2;
    const auto handler = Handlers().find(line.substr(0, tagLength));
    if (handler != Handlers().end()) handler->second(state, line);
}

} // namespace vexora
