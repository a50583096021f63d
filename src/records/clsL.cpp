#include "records/clsL.h"

#include "chem/clsAtom.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/RegistryNumbers.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <map>
#include <tuple>

namespace vexora {

namespace {

/// Letters of the reference properties. A document holds few kinds of data in many sets, so each
/// kind is looked up once.
class LetterFinder {
public:
    std::string LetterOf(const clsZ& value) {
        return LetterOf(value.PRPCODE, value.nVar == 0 ? "Single" : "Fixed", value.PHASE1);
    }
    std::string LetterOf(const clsTwo& set) {
        return LetterOf(set.PRPCODE, set.nVar == 1 ? "One" : "Two", set.PHASE1);
    }

private:
    std::string LetterOf(const std::string& code, const std::string& mode,
                         const std::string& phase) {
        const auto kind = std::make_tuple(code, mode, phase);
        const auto known = letters_.find(kind);
        if (known != letters_.end()) return known->second;
        const std::string kindOfProperty = PureAvailable(code, mode);
        // Of one state variable, or none, such a property can only hold along the boundary.
        const bool onBoundary = kindOfProperty == "DD" && (mode == "Single" || mode == "One");
        return letters_[kind] = PureLetter(kindOfProperty, onBoundary, phase).value_or("");
    }

    std::map<std::tuple<std::string, std::string, std::string>, std::string> letters_;
};

std::string Field(WordReader& words) {
    return WithoutPlaceholder(words.NextWord());
}

} // namespace

std::string clsL::ShowKey() const {
    return Name.empty() ? RN : Name;
}

void clsL::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentL = As<clsL>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RL";
    globals.DataContext = "Pure";
    if (Parent) Parent->SetMe();
}

void clsL::AttachTo(clsR& source) {
    Parent = &source;
    source.recL.Add(As<clsL>(), RN);
    if (source.tNode) MakeNode(source.tNode);
}

std::size_t clsL::Leave() {
    return Parent ? LeaveFrom(Parent->recL) : 0;
}

bool clsL::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recL, place, Parent->FindL(RN));
}

double clsL::MolarMass() const {
    return MMass > 0 ? MMass : MolarMassOfFormula(Formula);
}

std::vector<std::shared_ptr<SubstanceSample>> clsL::Samples() const {
    return {recS.begin(), recS.end()};
}

std::shared_ptr<clsL> CurrentCompound() {
    return std::dynamic_pointer_cast<clsL>(Globals().CurrentL);
}

bool clsL::Load(std::string_view line, Notices& told) {
    WordReader words(line);
    const bool bioLine = words.NextWord() == "BL";
    RN = words.NextWord();
    if (RN.empty()) return false;
    // Data of a compound that nobody can name would go to whatever came before.
    if (!IsNumeric(RN)) {
        told.push_back({"RN = " + RN, "Invalid RN"});
        return false;
    }
    MendCheckDigit(told);
    if (bioLine)
        LoadBio(words);
    else
        LoadPlain(words);
    return true;
}

void clsL::MendCheckDigit(Notices& told) {
    const std::string mended = WithCheckDigit(RN);
    if (mended == RN) return;
    told.push_back({"Old RN = " + RN + "\nNew RN = " + mended,
                    "Control digit in RN will be corrected\nPlease review the data!"});
    RN = NewRn = mended;
}

void clsL::LoadPlain(WordReader& words) {
    SYSTYPES = words.NextWord();
    REFPROP = Trim(words.Rest());
    TakeKnownIdentity();
}

void clsL::TakeKnownIdentity() {
    Name = NameOfRN(RN);
    Formula = FormulaOfRN(RN);
    if (Name.empty() || Formula.empty()) {
        // The file keeps name and formula only of compounds that the database does not know.
        const auto rows = CompoundsOf(ToInteger(Val(RN)));
        if (!rows.empty() && Name.empty()) Name = rows.front().NAME;
        if (!rows.empty() && Formula.empty()) Formula = rows.front().FORMULA;
    }
    MMass = MolarMassOfFormula(Formula);
}

void clsL::LoadBio(WordReader& words) {
    // Bio compounds are never in the reference database, so their line carries all of it.
    isBio = isNew = true;
    SYSTYPES = "NNNNN";
    REFPROP = "&";
    EC = UnderscoresToBlanks(Field(words));
    PDB = UnderscoresToBlanks(Field(words));
    Formula = Field(words);
    Charge = static_cast<std::int32_t>(ToInteger(Val(words.NextWord())));
    Name = WithoutPlaceholder(Trim(words.Rest()));
    MMass = MolarMassOfFormula(Formula);
}

void clsL::PrintL(LineWriter& out) const {
    if (isNew && isBio) {
        out.Fields({"BL", RN, BlanksToUnderscores(EC), BlanksToUnderscores(PDB), Formula,
                    std::to_string(Charge)},
                   Name);
        return;
    }
    const std::string letters = OrPlaceholder(REFPROP);
    // Data of a kind that has no letter: the tables are at fault, not the user.
    if (!SYSTYPES.starts_with('N') && letters == "&") out.Tell("REFPROP internal error");
    out.Fields({"^L", RN, SYSTYPES, letters});
    if (isNew || isNamed) out.Fields({"^N", RN, isNew ? Formula : ""}, Name);
}

void clsL::Print(LineWriter& out) const {
    if (isNew || isUsed || !recS.IsEmpty() || out.WritesAll) PrintL(out);
}

void clsL::EachChild(const std::function<void(Record&)>& visit) const {
    for (const auto& sample : recS)
        visit(*sample);
}

std::shared_ptr<clsS> clsL::FindS(int number, std::size_t* index) const {
    if (index) *index = 0;
    for (std::size_t i = 1; i <= recS.Count(); ++i) {
        // By value: "01" is sample 1.
        if (ToInteger(Val(recS.Item(i)->SMPNM)) != number) continue;
        if (index) *index = i;
        return recS.Item(i);
    }
    return nullptr;
}

void clsL::UpdateInfo() {
    LetterFinder letters;
    if (SYSTYPES.empty()) SYSTYPES = "N";
    SYSTYPES[0] = 'N';
    REFPROP.clear();
    for (const auto& sample : recS) {
        if (!sample->recZ.IsEmpty() || !sample->recTwo.IsEmpty()) SYSTYPES[0] = 'D';
        const auto add = [this](const std::string& letter) {
            if (REFPROP.find(letter) == std::string::npos) REFPROP += letter;
        };
        for (const auto& value : sample->recZ)
            add(letters.LetterOf(*value));
        for (const auto& set : sample->recTwo)
            add(letters.LetterOf(*set));
    }
    if (REFPROP.empty()) REFPROP = "&";
}

int clsL::NextSampleNumber() const {
    // A sample that was deleted leaves a gap, and then one above the count may be taken.
    int number = static_cast<int>(recS.Count()) + 1;
    while (FindS(number))
        ++number;
    return number;
}

} // namespace vexora
