#include "records/clsR.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/MixtureLetters.h"
#include "records/OpenRecord.h"
#include "records/RegistryNumbers.h"
#include "records/Walk.h"
#include "records/clsAuthor.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsC.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsQ.h"
#include "records/clsS.h"
#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vexora {

namespace {

constexpr std::string_view SourceLetters = "AOXCLZ";

/// Digits only: the number stands in file names and in keys.
bool IsSequenceNumber(std::string_view text) {
    constexpr std::size_t mostDigits = 4;
    return !text.empty() && text.size() <= mostDigits &&
           text.find_first_not_of("0123456789") == text.npos &&
           text.find_first_not_of('0') != text.npos;
}

/// A field of a "#" line: the separator and line breaks cannot stand inside.
std::string HashField(std::string_view text) {
    return Replace(SingleLine(text), "#", " ");
}

/// Control characters and the parting mark of folders have no place in a name.
std::string ForFileName(std::string name) {
    for (char& c : name)
        if (c == '/' || c == '\x7f' || (c >= '\0' && c < ' ')) c = '_';
    return name;
}

bool IsOriginCode(std::string_view code) {
    return code.size() == 1 && SourceLetters.find(code) != std::string_view::npos;
}

bool HasGas(const clsE& set) {
    return std::ranges::any_of(set.Phases(), [](const std::string& phase) {
        return IsOneOf(phase, {"G", "IG"});
    });
}

/// What the source holds of reactions: property changes by the kind of reaction, equilibria by
/// whether a gas takes part.
std::string LettersOf(const clsQ& reaction) {
    std::string letters;
    if (!reaction.recC.IsEmpty())
        letters += IsOneOf(reaction.REACTCLASS, {"CMO", "CMX"}) ? "Q" : "R";
    for (const auto& set : reaction.recE)
        letters += HasGas(*set) ? "K" : "k";
    return letters;
}

/// The compounds of a complex and of its samples.
void EachCompoundOf(const clsComplex& complex, const std::function<void(const std::string&)>& act) {
    for (const ComplexComponent& component : complex.Components)
        act(component.RN);
    for (const auto& sample : complex.recS)
        for (const SampleComponent& component : sample->Components)
            act(component.RN);
}

/// Every header in the document says where the document comes from.
void Stamp(clsR& source) {
    Walk(source, [&source](Record& record) {
        if (auto* const data = dynamic_cast<OpenRecord*>(&record))
            data->Header.SOURCEDOC = source.SOURCEDOC;
    });
}

} // namespace

std::string clsR::Source() const {
    return YEARPUB + " " + AUTHOR1 + " " + AUTHOR2 + " " + AUTHORN;
}

void clsR::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentR = As<clsR>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "R";
}

void clsR::AttachTo() {
    Globals().recR.Add(As<clsR>(), Source());
    MakeNode(nullptr);
}

std::size_t clsR::Leave() {
    return LeaveFrom(Globals().recR);
}

bool clsR::Return(std::size_t place) {
    return ReturnTo(Globals().recR, place, Globals().recR.Item(std::size_t{1}));
}

void clsR::Synchronize() {
    Label(Source());
}

bool clsR::Load(std::string_view line, Notices& told) {
    WordReader words(line);
    words.NextWord();
    YEARPUB = words.NextWord();
    AUTHOR1 = words.NextWord();
    AUTHOR2 = OrPlaceholder(words.NextWord());
    AUTHORN = Trim(words.Rest());
    SOURCEDOC = "&";
    if (IsSequenceNumber(AUTHORN)) return true;
    told.push_back({"Invalid reference identification\n" + Source(), {}});
    if (AUTHORN.empty()) told.push_back({"Incomplete record: " + std::string(Trim(line)), {}});
    AUTHORN.clear();
    return false;
}

std::vector<std::string> clsR::PrepareOutput() {
    MarkCompounds();
    return UpdateRefInfo();
}

/// The letters of compounds but the first one: binary and ternary data, reaction changes and
/// equilibria.
void clsR::MarkCompounds() {
    for (const auto& compound : recL) {
        compound->SYSTYPES = compound->SYSTYPES.substr(0, 1) + "NNNN";
        compound->isUsed = false;
    }
    for (const auto& mixture : recM) {
        for (int n = 1; n <= mixture->MixType; ++n) {
            const auto compound = mixture->Component(n);
            if (!compound) continue;
            compound->isUsed = true;
            if (mixture->HasData())
                compound->SYSTYPES[static_cast<std::size_t>(mixture->MixType - 1)] = 'D';
        }
    }
    constexpr std::size_t change = 3, equilibrium = 4;
    for (const auto& reaction : recQ) {
        for (const std::string& rn : {reaction->SOLVENTRN, reaction->INERTRN})
            if (const auto compound = FindL(rn)) compound->isUsed = true;
        for (int i = 1; i <= clsQ::MostParticipants; ++i) {
            const auto compound = reaction->Compound(i);
            if (!compound) continue;
            compound->isUsed = true;
            if (!reaction->recC.IsEmpty()) compound->SYSTYPES[change] = 'D';
            if (!reaction->recE.IsEmpty()) compound->SYSTYPES[equilibrium] = 'D';
        }
    }
    MarkCompoundsOfBioSets();
    for (const auto& complex : recComplex)
        EachCompoundOf(*complex, [this](const std::string& rn) {
            if (const auto compound = FindL(rn)) compound->isUsed = true;
        });
}

void clsR::PrintR(LineWriter& out) const {
    out.Blank();
    out.Fields({"^R", YEARPUB, AUTHOR1, AUTHOR2}, AUTHORN);
    // Of a known source the database has all this, and its text may be better by now.
    if (isNew) PrintDescription(out);
    for (const auto& author : recAuthor)
        author->Print(out);
}

void clsR::PrintDescription(LineWriter& out) const {
    std::string line = "^J";
    for (const std::string& field :
         {TYPDOC, OrPlaceholder(SOURCEDOC), SSOURCE, TTITLE, KEYWORDS, ABSTRACT, NOTE, PRPCLASS,
          std::to_string(recAuthor.Count()), CASCIT, CODEN, ISSN, BULCT})
        line += "#" + HashField(field);
    out.Line(line);
}

std::string clsR::QuestionOfOrigin() const {
    if (IsOriginCode(SOURCEDOC)) return {};
    return "Enter the source of document " + Source() +
           "\nO - original"
           "\nA - Chemical Abstracts"
           "\nL - Beilstein, on-line"
           "\nZ - extracted from another data base"
           "\nX - other document";
}

void clsR::TakeOrigin(std::string_view answer) {
    const std::string letter = UpperAscii(Trim(answer)).substr(0, 1);
    SOURCEDOC = IsOriginCode(letter) ? letter : "&";
    // Left open it is asked again: a guess would stand in every header.
    if (IsOriginCode(letter)) Stamp(*this);
}

void clsR::TakeOriginOfData() {
    if (!IsBlankField(SOURCEDOC)) return;
    Walk(*this, [this](const Record& record) {
        const auto* const data = dynamic_cast<const OpenRecord*>(&record);
        if (data && IsBlankField(SOURCEDOC)) SOURCEDOC = OrPlaceholder(data->Header.SOURCEDOC);
    });
}

void clsR::EachChild(const std::function<void(Record&)>& visit) const {
    for (const auto& compound : recL)
        visit(*compound);
    for (const auto& complex : recComplex)
        visit(*complex);
    for (const auto& mixture : recM)
        visit(*mixture);
    for (const auto& reaction : recQ)
        visit(*reaction);
    for (const auto& set : recBR)
        visit(*set);
    for (const auto& set : recBP)
        visit(*set);
}

std::vector<std::string> clsR::UpdateRefInfo() {
    std::vector<std::string> faults;
    PRPCLASS.clear();
    const auto add = [this](const std::string& letters) {
        for (const char letter : letters) {
            if (letter != '&' && PRPCLASS.find(letter) == std::string::npos) PRPCLASS += letter;
        }
    };
    for (const auto& compound : recL) {
        compound->UpdateInfo();
        add(compound->REFPROP);
    }
    MixtureLetters letters;
    for (const auto& mixture : recM) {
        std::ranges::move(mixture->UpdateInfo(letters), std::back_inserter(faults));
        add(mixture->REFPRP);
    }
    for (const auto& reaction : recQ)
        add(LettersOf(*reaction));
    if (PRPCLASS.empty()) PRPCLASS = "&";
    return faults;
}

void clsR::MakeCompound(const std::string& rn) {
    if (NamesNoCompound(rn) || NamesComplex(rn) || FindL(rn)) return;
    auto compound = std::make_shared<clsL>();
    compound->RN = rn;
    compound->TakeKnownIdentity();
    compound->AttachTo(*this);
}

void clsR::CheckPresence() {
    for (const auto& mixture : recM) {
        // Data need a sample of each component; a compound that lacks there is told, not made up.
        if (mixture->HasData()) continue;
        for (int n = 1; n <= mixture->MixType; ++n)
            MakeCompound(mixture->RN(n));
    }
    for (const auto& reaction : recQ) {
        for (int i = 1; i <= clsQ::MostParticipants; ++i)
            MakeCompound(reaction->RN(i));
        MakeCompound(reaction->SOLVENTRN);
        MakeCompound(reaction->INERTRN);
    }
    for (const auto& complex : recComplex)
        EachCompoundOf(*complex, [this](const std::string& rn) { MakeCompound(rn); });
}

std::shared_ptr<clsComplex> clsR::FindComplex(std::string_view rn, std::size_t* index) const {
    if (index) *index = 0;
    if (!NamesComplex(rn)) return nullptr;
    auto complex = recComplex.Item("RX" + std::string(rn.substr(1)));
    if (complex && index) *index = recComplex.Position(complex.get());
    return complex;
}

std::shared_ptr<Substance> clsR::FindSubstance(std::string_view rn) const {
    if (NamesComplex(rn)) return FindComplex(rn);
    return FindL(rn);
}

std::shared_ptr<clsL> clsR::FindL(std::string_view rn, std::size_t* index) const {
    auto compound = recL.Item(rn);
    if (index) *index = compound ? recL.Position(compound.get()) : 0;
    return compound;
}

std::shared_ptr<clsM> clsR::FindM(const clsM& mixture) const {
    return recM.Item(mixture.Key());
}

std::shared_ptr<clsM> clsR::FindM(std::string_view composition) const {
    if (auto mixture = recM.Item(composition)) return mixture;
    if (composition.find(" + ") == composition.npos) return nullptr; // no names
    for (const auto& mixture : recM)
        if (mixture->Mixture() == composition) return mixture;
    return nullptr;
}

std::shared_ptr<clsQ> clsR::FindQ(const clsQ& reaction) const {
    return recQ.Item(reaction.Key());
}

bool clsR::Names(std::string_view rn) const {
    const auto compound = FindL(rn);
    return std::ranges::any_of(recM,
                               [&](const auto& m) { return compound && m->PlaceOf(*compound); }) ||
           std::ranges::any_of(recQ, [&](const auto& reaction) { return reaction->Uses(rn); }) ||
           std::ranges::any_of(recComplex,
                               [&](const auto& complex) { return complex->Uses(rn); }) ||
           StandsInBioSets(rn);
}

std::string clsR::ProposedName() const {
    const bool isManuscript = TYPDOC == "S" && isNew && !ManuscriptID.empty();
    return isManuscript ? ForFileName(ManuscriptID) : IdentityName();
}

std::string clsR::IdentityName() const {
    std::string name;
    for (const std::string& part : {YEARPUB, AUTHOR1, AUTHOR2, AUTHORN})
        name += WithoutPlaceholder(part);
    return ForFileName(std::move(name));
}

} // namespace vexora
