#include "records/ReaderState.h"

#include "chem/clsMethod.h"
#include "globals/KVOGlobal.h"
#include "records/BioReader.h"
#include "records/ComplexReader.h"
#include "records/DataReader.h"
#include "records/LineWriter.h"
#include "records/MixtureReader.h"
#include "records/OpenRecord.h"
#include "records/ReactionReader.h"
#include "records/RecordReader.h"
#include "records/RegistryNumbers.h"
#include "records/StructureReader.h"
#include "records/clsAuthor.h"
#include "records/clsCrS.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <array>

namespace vexora {

namespace {

using Handler = void (*)(ReaderState&, std::string_view);

constexpr const char* NothingBehind = "no value or set stands under this header";

/// How a line is lost that a later one takes the place of.
std::string ReplacedBy(const std::string& what, const ReaderState& state) {
    return what + " once more in line " + std::to_string(state.lineNumber) +
           ", which takes its place";
}

/// A header and a compound as a save writes them.
std::string LineOf(const clsA& header) {
    LineWriter out;
    header.PrintHeader(out, header.DATACOMMENT);
    return out.Text();
}

std::string LinesOf(const clsL& compound) {
    LineWriter out;
    compound.PrintL(out);
    return out.Text();
}

void ReadSource(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.BeginSystem(nullptr);
    LeaveBioSet(state);
    state.lastBioReaction = nullptr;
    auto source = std::make_shared<clsR>();
    source->Line = state.lineNumber;
    Notices told;
    const bool isValid = source->Load(line, told);
    state.Tell(told);
    if (!isValid)
        return state.AbandonSaid("Invalid reference identification: " + std::string(Trim(line)));
    // Two heads of one identity are one source: the first stays, and what follows adds to it.
    if (const auto known = globals.recR.Item(source->Source()))
        source = known;
    else
        source->AttachTo();
    globals.CurrentR = source;
    if (globals.CurrentMethod)
        globals.CurrentMethod->Year = static_cast<std::int32_t>(ToInteger(Val(source->YEARPUB)));
    // A sample in front of the first compound would otherwise go to one of the source before.
    globals.CurrentL = nullptr;
    globals.CurrentS = nullptr;
    globals.CurrentQ = nullptr;
    globals.CurrentComplex = nullptr;
    globals.CurrentComplexSample = nullptr;
}

void ReadDescription(ReaderState& state, std::string_view line) {
    const auto source = Globals().CurrentR;
    if (!source) return state.AbandonIncomplete(line);
    const auto [entry, isFirst] =
        state.descriptions.try_emplace(source.get(), state.lineNumber, Trim(line));
    if (!isFirst) {
        auto& [before, text] = entry->second;
        if (text != Trim(line)) state.Lose(before, ReplacedBy("the source is described", state));
        entry->second = {state.lineNumber, std::string(Trim(line))};
    }
    const std::string question = source->LoadJ(line);
    source->toSettle = !question.empty() && !state.talk.Confirm(question);
    if (!question.empty() && !source->toSettle) state.Tell({source->TakeNextNumber()});
    source->Synchronize();
}

void ReadAuthor(ReaderState& state, std::string_view line) {
    const auto source = Globals().CurrentR;
    if (!source) return state.AbandonIncomplete(line);
    auto author = std::make_shared<clsAuthor>();
    author->Line = state.lineNumber;
    state.Tell(author->Load(line));
    // A source that comes twice brings its authors twice.
    const auto twin = source->recAuthor.Item(author->Key());
    if (twin && twin->LASTNM == author->LASTNM && twin->INITNM == author->INITNM) return;
    // Authors of one number are told apart without trying all numbers in between.
    const int copies = ++state.authorKeys[source.get()][author->Key()];
    source->recAuthor.Add(author, author->Key() +
                                      (copies > 1 ? "~" + std::to_string(copies) : std::string()));
}

void ReadCompound(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.BeginSystem(&PureLines);
    globals.DataContext = "Pure";
    if (!globals.CurrentR) return state.AbandonIncomplete(line);
    auto compound = std::make_shared<clsL>();
    compound->Line = state.lineNumber;
    Notices told;
    const bool isValid = compound->Load(line, told);
    state.Tell(told);
    if (!isValid) {
        if (compound->RN.empty()) return state.AbandonIncomplete(line);
        state.endsProgram = true;
        return state.AbandonSaid("Invalid RN: RN = " + compound->RN);
    }
    // An empty field would be "&", so the line has been cut short.
    if (compound->REFPROP.empty()) return state.AbandonIncomplete(line);
    // The file still has the number that was wrong.
    if (!compound->NewRn.empty()) {
        WordReader words(line);
        words.NextWord();
        state.mendedRN[std::string(words.NextWord())] = compound->RN;
        globals.Saved = false;
    }
    // A repeat keeps the first, with all that hangs on it; what follows is added there.
    if (const auto known = globals.CurrentR->FindL(compound->RN)) {
        if (compound->isBio && LinesOf(*compound) != LinesOf(*known))
            state.Lose(state.lineNumber, "the compound is described before, in another way");
        compound = known;
    } else
        compound->AttachTo(*globals.CurrentR);
    globals.CurrentL = compound;
    globals.CurrentS = nullptr;
}

/// True for a line that brings no formula because the reference database has one.
bool BringsNameOnly(const clsL& compound, std::string_view formula) {
    return !compound.isNew && WithoutPlaceholder(formula).empty() &&
           !CompoundsOf(ToInteger(Val(compound.RN))).empty();
}

void TakeIdentity(clsL& compound, const std::string& formula, const clsR& source) {
    compound.Formula = WithoutPlaceholder(formula);
    compound.isNew = true;
    // A mass that is known would be given back unasked, though the formula is another now.
    compound.MMass = 0;
    compound.MMass = MolarMassOfRN(compound.RN, &source);
}

/// ^N [old text] RN Formula Name. No formula is a bare number, so a second word that is one is the
/// RN.
void ReadCorrection(ReaderState& state, std::string_view line) {
    const auto source = Globals().CurrentR;
    WordReader words(line);
    words.NextWord();
    std::string rn(words.NextWord());
    std::string formula(words.NextWord());
    if (IsNumeric(formula)) {
        rn = formula;
        formula = words.NextWord();
    }
    rn = state.MendedRN(rn);
    const auto compound = source ? source->FindL(rn) : nullptr;
    if (!compound) return state.Lose(state.lineNumber, "no compound " + rn + " stands before it");
    const std::string name = WithoutPlaceholder(Trim(words.Rest()));
    compound->isNamed = BringsNameOnly(*compound, formula) && !name.empty();
    if (!compound->isNamed) TakeIdentity(*compound, formula, *source);
    compound->Name = name;
    compound->Refresh();
    if (!compound->NewRn.empty()) Globals().Saved = false;
}

void ReadSample(ReaderState& state, std::string_view line) {
    KVOGlobal& globals = Globals();
    state.BeginSystem(state.lines);
    const auto compound = CurrentCompound();
    if (!compound) return state.AbandonIncomplete(line);
    auto sample = std::make_shared<clsS>();
    sample->Line = state.lineNumber;
    sample->Load(line);
    if (sample->SMPNM.empty()) return state.AbandonIncomplete(line);
    const int number = static_cast<int>(ToInteger(Val(sample->SMPNM)));
    const auto [entry, isNew] = state.SamplesOf(*compound).try_emplace(number, sample);
    // As with compounds, a repeat keeps the first and adds to it.
    if (isNew)
        sample->AttachTo(*compound);
    else if (sample->SMPDESC != entry->second->SMPDESC)
        state.Lose(state.lineNumber, "sample " + sample->SMPNM + " is described before, as " +
                                         OrPlaceholder(entry->second->SMPDESC));
    globals.CurrentS = entry->second;
}

/// Whether the header that takes the place of another one loses what that says; ^a leaves all but
/// the comment in force.
bool LosesHeader(const clsA& before, const clsA& now, std::string_view line) {
    const bool saysNothing =
        line.starts_with("^a") ? before.DATACOMMENT.empty() : LineOf(before) == LineOf(clsA());
    return !saysNothing && LineOf(before) != LineOf(now);
}

void ReadHeader(ReaderState& state, std::string_view line) {
    const bool isUnused = state.headerLine != 0;
    const clsA before = isUnused ? state.pending : clsA();
    // In a mixture or reaction nothing else closes the factor of a set.
    const bool isShared = state.lines == &MixtureLines || state.lines == &ReactionLines;
    if (isShared && line.starts_with("^A")) {
        state.LeaveFactor();
        state.pending.Factor = 0;
    }
    state.Tell(state.pending.Load(line));
    ++state.pendingLines;
    state.hasHeader = true;
    if (isUnused && LosesHeader(before, state.pending, line))
        state.Lose(state.headerLine, NothingBehind);
    state.headerLine = state.lineNumber;
}

void ReadFactor(ReaderState& state, std::string_view line) {
    constexpr std::size_t tagLength = 2;
    // All behind the tag, for the blank may lack.
    const std::string_view number = line.substr(tagLength);
    state.LeaveFactor();
    state.pending.Factor = state.statedFactor = Val(number);
    if (state.pending.Factor != 0)
        state.factorLine = state.lineNumber;
    else if (!IsNumeric(number) && !Trim(number).empty())
        state.Lose(state.lineNumber, "the factor is no number");
    if (state.pending.Factor == 0 && state.lastNotKept)
        ++state.linesNotKept; // closes the record that was passed over
    else if (state.pending.Factor != 0)
        ++state.pendingLines;
}

/// Upper and lower case are different tags: by them values in system units and in those of the
/// paper are told apart.
const std::unordered_map<std::string_view, Handler>& Handlers() {
    static const std::unordered_map<std::string_view, Handler> handlers = [] {
        std::unordered_map<std::string_view, Handler> table = {
            {"^R", ReadSource},     {"^J", ReadDescription}, {"^I", ReadAuthor},
            {"^N", ReadCorrection}, {"^L", ReadCompound},    {"BL", ReadCompound},
            {"^S", ReadSample},     {"^A", ReadHeader},      {"^a", ReadHeader},
            {"^M", ReadFactor},     {"^X", ReadStatement},   {"^Y", ReadRowStatements}};
        for (const std::string_view tag : {"^Z", "^z", "^F", "^f"})
            table[tag] = ReadValue;
        for (const std::string_view tag : {"^1", "^2", "^3"})
            table[tag] = ReadSet;
        for (const std::string_view tag : {"^D", "^d", "^G", "^g"})
            table[tag] = ReadRow;
        for (const std::string_view tag : {"^B", "^T"})
            table[tag] = ReadMixture;
        table["^Q"] = ReadReaction;
        table["^q"] = ReadCoefficients;
        for (const std::string_view tag : {"^C", "^c"})
            table[tag] = ReadPropertyChange;
        for (const std::string_view tag : {"^E", "^H"})
            table[tag] = ReadEquilibrium;
        table["BR"] = ReadBioReaction;
        table["BN"] = ReadBioProperty;
        table["BP"] = ReadBioCompound;
        table["BH"] = ReadBioKind;
        table["BC"] = ReadBioComponent;
        table["BV"] = ReadBioQuantity;
        table["BE"] = ReadBioEnd;
        table["BM"] = ReadBioMethod;
        table["B0"] = ReadBioFlags;
        table["BD"] = ReadBioRow;
        table["CS"] = ReadComplex;
        table["CC"] = ReadComplexComponent;
        table["CE"] = CloseComplex;
        table["SB"] = ReadComplexSample;
        table["SS"] = ReadSampleComponent;
        table["GH"] = ReadPreparation;
        table["SE"] = CloseComplexSample;
        table["XB"] = ReadStructure;
        table["XD"] = ReadDistance;
        table["XE"] = ReadStructureEnd;
        table["XC"] = ReadAtom;
        return table;
    }();
    return handlers;
}

/// The handler of the tag in front of the line, null when nobody knows it. Nearly all tags are "^"
/// and a letter; these are found by the letter, without a look into the table.
Handler HandlerOf(std::string_view line) {
    constexpr std::size_t tagLength = 2;
    static const auto ofLetters = [] {
        std::array<Handler, 256> table{};
        for (const auto& [tag, handler] : Handlers())
            if (tag.front() == '^') table[static_cast<unsigned char>(tag.back())] = handler;
        return table;
    }();
    if (line.size() >= tagLength && line.front() == '^')
        return ofLetters[static_cast<unsigned char>(line[1])];
    const auto handler = Handlers().find(line.substr(0, tagLength));
    return handler == Handlers().end() ? nullptr : handler->second;
}

} // namespace

std::string ReaderState::MendedRN(const std::string& rn) {
    const auto known = mendedRN.find(rn);
    if (known != mendedRN.end()) return known->second;
    std::string mended = WithCheckDigit(rn);
    if (mended != rn) Tell({{"RN was corrected: from " + rn + " to " + mended, {}}});
    return mended;
}

void ReaderState::BeginSystem(const DataLines* itsLines) {
    LoseOpenComplex(*this);
    LeaveFactor();
    LeaveStructure();
    OpenNext();
    // A factor that nothing closed must not reach the data of somebody else.
    pending.Factor = 0;
    lastNotKept = false;
    lines = itsLines;
}

void ReaderState::OpenNext(std::shared_ptr<OpenRecord> next) {
    // The one before has all its lines now, and by its rows it is in the units of the paper or not.
    if (open && open->StandsByFactor()) factorLine = 0;
    statementLines.clear();
    rowStatementsLine = 0;
    open = std::move(next);
}

void ReaderState::Lose(int line, const std::string& what) {
    lost.push_back({line, what});
}

void ReaderState::LeaveFactor() {
    if (factorLine != 0 && !(open && open->StandsByFactor()))
        Lose(factorLine, "no value stands in the unit of the factor " + NumberText(statedFactor));
    factorLine = 0;
}

void ReaderState::LeaveStructure() {
    if (structureLines > 0) {
        linesNotKept += structureLines;
        Lose(structure->Line, "the structure that begins here has no end");
    }
    structureLines = 0;
    structure = nullptr;
}

void ReaderState::Finish() {
    LoseOpenComplex(*this);
    LeaveFactor();
    LeaveBioSet(*this);
    LeaveStructure();
    OpenNext();
    // A header with no record behind it goes lost, too.
    linesNotKept += pendingLines;
    if (headerLine != 0) Lose(headerLine, NothingBehind);
}

void ReaderState::PassOver() {
    linesNotKept += pendingLines + 1;
    pendingLines = 0;
    OpenNext();
    // Its header is not that of the next record.
    pending = clsA();
    hasHeader = false;
    headerLine = factorLine = 0;
    lastNotKept = true;
}

void ReaderState::AbandonIncomplete(std::string_view line) {
    Abandon("Incomplete record: " + std::string(Trim(line)));
}

void ReaderState::Tell(const Notices& notices) {
    for (const Notice& notice : notices) {
        talk.Say(notice);
        told.push_back({lineNumber, Replace(notice.text, "\n", " ")});
    }
}

void ReaderState::Abandon(const std::string& text, const std::string& title) {
    talk.Say({text, title});
    AbandonSaid(title.empty() ? text : title + ": " + text);
}

void ReaderState::AbandonSaid(const std::string& text) {
    isAbandoned = true;
    fault = text;
}

void ReadRecord(ReaderState& state, std::string_view line) {
    if (const Handler handler = HandlerOf(line)) return handler(state, line);
    // Known to a later edition, perhaps: no fault, but it has to stay in the file. What begins like
    // a data record may have rows behind it, which are none of the record before.
    state.Lose(state.lineNumber, "nobody knows this tag: " + std::string(Trim(line)));
    if (line.starts_with('^'))
        state.PassOver();
    else
        ++state.linesNotKept;
}

} // namespace vexora
