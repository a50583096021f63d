#include "records/clsComplexSample.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/RegistryNumbers.h"
#include "records/SetLines.h"
#include "records/clsBP.h"
#include "records/clsCrS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

std::vector<std::pair<std::string, ComplexContent>> ContentsOf(const clsComplexSample& sample) {
    std::vector<std::pair<std::string, ComplexContent>> contents;
    for (const SampleComponent& component : sample.Components)
        contents.emplace_back(component.RN, component.content);
    return contents;
}

template <class Set>
std::shared_ptr<Set> FindByNumber(const ui::Collection<Set>& sets, int number) {
    for (const auto& set : sets)
        if (set->SetNo == number) return set;
    return nullptr;
}

} // namespace

int clsComplexSample::SetNo() const {
    return static_cast<int>(ToInteger(Val(SMPNM)));
}

void clsComplexSample::SetNo(int number) {
    SMPNM = std::to_string(number);
}

const SampleComponent* clsComplexSample::FindComponent(std::string_view rn) const {
    const auto found = std::ranges::find(Components, rn, &SampleComponent::RN);
    return found == Components.end() ? nullptr : &*found;
}

void clsComplexSample::TakeDefinition(const clsComplexSample& other) {
    Components = other.Components;
    HasPreparation = other.HasPreparation;
    PrepT = other.PrepT;
    PrepP = other.PrepP;
    aComp = other.aComp;
    Method = other.Method;
    Header = other.Header;
}

void clsComplexSample::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentComplexSample = As<clsComplexSample>();
    globals.CurrentS = globals.CurrentComplexSample;
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RXS";
    if (Parent) Parent->SetMe();
}

void clsComplexSample::AttachTo(clsComplex& complex) {
    Parent = &complex;
    complex.recS.Add(As<clsComplexSample>(), Key());
    if (complex.tNode) MakeNode(complex.tNode);
}

std::size_t clsComplexSample::Leave() {
    return Parent ? LeaveFrom(Parent->recS) : 0;
}

bool clsComplexSample::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recS, place, Parent->FindS(SetNo()));
}

std::string clsComplexSample::Formula() const {
    if (Components.empty()) return Parent ? Parent->Formula() : std::string();
    return FormulaOfContents(ContentsOf(*this), Parent ? Parent->Parent : nullptr);
}

double clsComplexSample::MolarMass() const {
    if (Components.empty()) return Parent ? Parent->MMass() : 0;
    return MolarMassOfContents(ContentsOf(*this), Parent ? Parent->Parent : nullptr);
}

bool clsComplexSample::Load(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    const std::string_view number = words.NextWord();
    if (!IsNumeric(number) || Val(number) < 1) return false;
    SetNo(static_cast<int>(ToInteger(Val(number))));
    return true;
}

bool clsComplexSample::LoadComponent(std::string_view line, bool* isWhole) {
    WordReader words(line);
    words.NextWord();
    SampleComponent component;
    component.RN = NextField(words);
    component.content.value = NextField(words);
    component.content.kind = NextField(words);
    component.SMPNM = NextField(words);
    if (isWhole) *isWhole = words.AtEnd();
    if (NamesNoCompound(component.RN)) return false;
    Components.push_back(std::move(component));
    return true;
}

void clsComplexSample::LoadPreparation(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    HasPreparation = true;
    PrepT = NextField(words);
    PrepP = NextField(words);
    aComp = NextField(words);
    Method = WithoutPlaceholder(Trim(words.Rest()));
}

void clsComplexSample::PrintComplex(LineWriter& out) const {
    clsA header;
    header.COMPILER = Header.COMPILER;
    header.CONTRIBUTOR = Header.CONTRIBUTOR;
    header.DATEADDED = Header.DATEADDED;
    header.PrintHeader(out, Header.DATACOMMENT);
    out.Fields({"SB", SMPNM});
    for (const SampleComponent& component : Components)
        out.Fields({"SS", component.RN, BlanksToUnderscores(component.content.value),
                    component.content.kind, component.SMPNM});
    if (isGH()) out.Fields({"GH", PrepT, PrepP, BlanksToUnderscores(aComp)}, Method);
    out.Line("SE");
}

void clsComplexSample::EachChild(const std::function<void(Record&)>& visit) const {
    SubstanceSample::EachChild(visit);
    for (const auto& set : recBP)
        visit(*set);
    for (const auto& structure : recCrS)
        visit(*structure);
}

std::shared_ptr<clsBP> clsComplexSample::FindBP(int number) const {
    return FindByNumber(recBP, number);
}

std::shared_ptr<clsCrS> clsComplexSample::FindCrS(int number) const {
    return FindByNumber(recCrS, number);
}

} // namespace vexora
