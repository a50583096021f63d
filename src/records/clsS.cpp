#include "records/clsS.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <optional>
#include <vector>

namespace vexora {

namespace {

// Low ratings are the good ones: any method beats none.
constexpr int NoRatingYet = 255;
constexpr int UnknownMethod = 252;
constexpr std::string_view FreeTextMethod = "y";

/// Words between blanks, commas and semicolons; a text in round brackets is one word.
std::vector<std::string> WordsOf(std::string_view description) {
    std::vector<std::string> words(1);
    int depth = 0;
    for (const char c : description) {
        if (c == '(') ++depth;
        const bool parts = depth <= 0 && (c == ' ' || c == ',' || c == ';');
        if (c == ')') --depth;
        if (!parts)
            words.back() += c;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

/// Free text may speak of per cent without stating a purity.
bool HoldsOneOf(std::string_view word, std::initializer_list<std::string_view> units) {
    if (word.starts_with('(')) return false;
    for (const std::string_view unit : units)
        if (word.find(unit) != word.npos) return true;
    return false;
}

/// The number in front of the unit, whose letter stands before the "%"; nothing outside 0 to 100.
std::optional<double> PerCentOf(std::string_view word) {
    const std::string_view number = TrimBlanks(word.substr(0, word.find('%') - 1));
    const double value = Val(number);
    if (!IsNumeric(number) || value <= 0 || value > 100) return std::nullopt;
    return value;
}

int RatingOf(std::string_view method) {
    return PurityRating(method.starts_with('(') ? FreeTextMethod : method).value_or(UnknownMethod);
}

} // namespace

std::string clsS::Key() const {
    return "Sample " + SMPNM + " (" + SMPDESC + ")";
}

void clsS::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentS = As<clsS>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RLS";
    if (Parent) Parent->SetMe();
}

void clsS::AttachTo(clsL& compound) {
    Parent = &compound;
    compound.recS.Add(As<clsS>(), Key());
    if (compound.tNode) MakeNode(compound.tNode);
}

std::size_t clsS::Leave() {
    return Parent ? LeaveFrom(Parent->recS) : 0;
}

bool clsS::Return(std::size_t place) {
    return Parent &&
           ReturnTo(Parent->recS, place, Parent->FindS(static_cast<int>(ToInteger(Val(SMPNM)))));
}

void clsS::Load(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    SMPNM = words.NextWord();
    SMPDESC = WithoutPlaceholder(Trim(words.Rest()));
    AssessPurity();
}

void clsS::PrintS(LineWriter& out) const {
    out.Fields({"^S", SMPNM}, SMPDESC);
}

void clsS::AssessPurity() {
    Purity = 0;
    if (SMPDESC.find(';') == std::string::npos) return;
    int best = NoRatingYet;
    const std::vector<std::string> words = WordsOf(SMPDESC);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool isPurity = HoldsOneOf(words[i], {"m%", "w%", "x%", "v%"});
        if (!isPurity && !HoldsOneOf(words[i], {"g%", "h%", "i%", "j%"})) continue;
        const std::optional<double> value = PerCentOf(words[i]);
        ++i; // the word behind is the method
        if (isPurity) {
            const int rating = RatingOf(i < words.size() ? words[i] : std::string());
            // Of methods rated alike the last counts: it stands behind the last step.
            if (rating > best || !value) continue;
            Purity = *value;
            best = rating;
        } else if (value && 100 - *value < Purity) {
            // No sample is purer than its impurity leaves room for.
            Purity = 100 - *value;
        }
    }
}

Substance* clsS::System() const {
    return Parent;
}

std::string clsS::Formula() const {
    return Parent ? Parent->Formula : std::string();
}

double clsS::MolarMass() const {
    // Of its own source, which need not be the current one.
    return Parent ? MolarMassOfRN(Parent->RN, Parent->Parent) : 0;
}

std::shared_ptr<clsS> CurrentCompoundSample() {
    return std::dynamic_pointer_cast<clsS>(Globals().CurrentS);
}

} // namespace vexora
