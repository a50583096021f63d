#include "records/clsComplex.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/RegistryNumbers.h"
#include "records/SetLines.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr const char* UnknownFormula = "Error";

using Contents = std::vector<std::pair<std::string, ComplexContent>>;

/// The source of a complex, or the one in hand for a complex that is being made.
const clsR* SourceOf(const clsComplex& complex) {
    return complex.Parent ? complex.Parent : Globals().CurrentR.get();
}

Contents ContentsOf(const clsComplex& complex) {
    Contents contents;
    for (const ComplexComponent& component : complex.Components)
        contents.emplace_back(component.RN, component.content);
    return contents;
}

} // namespace

int clsComplex::SetNo() const {
    return static_cast<int>(-ToInteger(Val(RN)));
}

void clsComplex::SetNo(int number) {
    RN = "-" + std::to_string(number);
}

std::string clsComplex::Name() const {
    const clsR* const source = SourceOf(*this);
    std::string names;
    for (const ComplexComponent& component : Components) {
        const auto compound = source ? source->FindL(component.RN) : nullptr;
        names += (names.empty() ? "" : " + ") + (compound ? compound->ShowKey() : component.RN);
    }
    return CType + " (" + names + ")";
}

std::string clsComplex::Formula() const {
    return FormulaOfContents(ContentsOf(*this), SourceOf(*this));
}

double clsComplex::MMass() const {
    return MolarMassOfContents(ContentsOf(*this), SourceOf(*this));
}

const ComplexComponent* clsComplex::FindComponent(std::string_view rn) const {
    const auto found = std::ranges::find(Components, rn, &ComplexComponent::RN);
    return found == Components.end() ? nullptr : &*found;
}

bool clsComplex::Uses(std::string_view rn) const {
    return FindComponent(rn) ||
           std::ranges::any_of(recS, [rn](const auto& s) { return s->FindComponent(rn); });
}

bool clsComplex::UsesSample(std::string_view rn, std::string_view sample) const {
    const auto takes = [&](const auto& component) {
        return component.RN == rn && !component.SMPNM.empty() &&
               ToInteger(Val(component.SMPNM)) == ToInteger(Val(sample));
    };
    if (std::ranges::any_of(Components, takes)) return true;
    for (const auto& one : recS)
        if (std::ranges::any_of(one->Components, takes)) return true;
    return false;
}

void clsComplex::TakeDefinition(const clsComplex& other) {
    CType = other.CType;
    Components = other.Components;
}

std::string clsComplex::Key() const {
    return "RX" + std::to_string(SetNo());
}

void clsComplex::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentComplex = As<clsComplex>();
    globals.CurrentL = globals.CurrentComplex;
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RX";
    globals.DataContext = "Complex";
    if (Parent) Parent->SetMe();
}

void clsComplex::AttachTo(clsR& source) {
    Parent = &source;
    source.recComplex.Add(As<clsComplex>(), Key());
    if (source.tNode) MakeNode(source.tNode);
}

std::size_t clsComplex::Leave() {
    return Parent ? LeaveFrom(Parent->recComplex) : 0;
}

bool clsComplex::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recComplex, place, Parent->FindComplex(RN));
}

std::vector<std::shared_ptr<SubstanceSample>> clsComplex::Samples() const {
    return {recS.begin(), recS.end()};
}

bool clsComplex::Load(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    const std::string_view number = words.NextWord();
    if (!IsNumeric(number) || Val(number) < 1) return false;
    SetNo(static_cast<int>(ToInteger(Val(number))));
    CType = WithoutPlaceholder(Trim(words.Rest()));
    return true;
}

bool clsComplex::LoadComponent(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    ComplexComponent component;
    component.RN = NextField(words);
    component.SMPNM = NextField(words);
    component.function = UnderscoresToBlanks(NextField(words));
    component.content = ContentOf(words.Rest());
    if (NamesNoCompound(component.RN)) return false;
    Components.push_back(std::move(component));
    return true;
}

void clsComplex::PrintComplex(LineWriter& out) const {
    out.Fields({"CS", std::to_string(SetNo())}, CType);
    for (const ComplexComponent& component : Components)
        out.Fields({"CC", component.RN, component.SMPNM, BlanksToUnderscores(component.function)},
                   ContentText(component.content));
    out.Line("CE");
}

void clsComplex::EachChild(const std::function<void(Record&)>& visit) const {
    for (const auto& sample : recS)
        visit(*sample);
}

std::shared_ptr<clsComplexSample> clsComplex::FindS(int number, std::size_t* index) const {
    if (index) *index = 0;
    auto sample = recS.Item("Sample " + std::to_string(number));
    if (sample && index) *index = recS.Position(sample.get());
    return sample;
}

int clsComplex::NextSampleNumber() const {
    int number = static_cast<int>(recS.Count()) + 1;
    while (FindS(number))
        ++number;
    return number;
}

int NextComplexNumber(const clsR& source) {
    int number = static_cast<int>(source.recComplex.Count()) + 1;
    while (source.FindComplex("-" + std::to_string(number)))
        ++number;
    return number;
}

std::string ContentText(const ComplexContent& content) {
    if (content.value.empty() && content.kind.empty()) return "&";
    return OrPlaceholder(BlanksToUnderscores(content.value)) + " " + OrPlaceholder(content.kind);
}

ComplexContent ContentOf(std::string_view text) {
    WordReader words(text);
    const std::string value = NextField(words);
    return {value, WithoutPlaceholder(Trim(words.Rest()))};
}

std::string FormulaOfContents(const Contents& contents, const clsR* source) {
    std::string text;
    for (const auto& [rn, content] : contents) {
        const auto compound = source ? source->FindL(rn) : nullptr;
        if (!compound || compound->Formula.empty() || !IsNumeric(content.value))
            return UnknownFormula;
        text += "(" + compound->Formula + ")" + content.value;
    }
    return text.empty() ? UnknownFormula : text;
}

double MolarMassOfContents(const Contents& contents, const clsR* source) {
    double mass = 0;
    for (const auto& [rn, content] : contents) {
        const double ofCompound = MolarMassOfRN(rn, source);
        const bool isKnown = ofCompound > 0 && IsNumeric(content.value) && Val(content.value) >= 0;
        // A mole fraction counts by the whole, moles by the formula: they make no sum.
        if (!isKnown || content.kind != contents.front().second.kind) return 0;
        mass += Val(content.value) * ofCompound;
    }
    return mass;
}

} // namespace vexora
