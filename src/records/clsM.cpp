#include "records/clsM.h"

#include "chem/clsMMM.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/MixtureLetters.h"
#include "records/clsL.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

const std::string NoText;

template <class Set>
std::shared_ptr<Set> FindByKey(const ui::Collection<Set>& sets, std::string_view key,
                               std::size_t* index) {
    std::size_t place = 0;
    for (const auto& set : sets) {
        ++place;
        if (set->Key() != key && set->ShowKey() != key) continue;
        if (index) *index = place;
        return set;
    }
    if (index) *index = 0;
    return nullptr;
}

template <class Set>
std::string CountsOf(const Set& set) {
    const auto count = [](const char* name, int number) {
        return std::string("\n") + name + " = " + std::to_string(number);
    };
    const int phases = static_cast<int>(set.Phases().size());
    return count("iSolid", set.iSolid()) + count("iLiquid", set.iLiquid()) +
           count("iGas", set.iGas()) + count("nPhases", phases) + "\n" + set.ShowKey();
}

template <class Set>
std::string PhaseError(const Set& set) {
    return "Phase error" + CountsOf(set);
}

} // namespace

const std::string& clsM::RN(int n) const {
    return n == 1 ? RN1 : n == 2 ? RN2 : n == 3 ? RN3 : NoText;
}

void clsM::RN(int n, std::string_view number) {
    if (n >= 1 && n <= 3) (n == 1 ? RN1 : n == 2 ? RN2 : RN3) = number;
}

std::string clsM::COMPOSITION() const {
    return RN1 + "+" + RN2 + (MixType > 2 ? "+" + RN3 : std::string());
}

std::string clsM::Key() const {
    const std::array<int, 4> order = AscendingOrder();
    std::string text;
    for (int n = 1; n <= MixType; ++n)
        text += (n == 1 ? "" : "+") + RN(order[static_cast<std::size_t>(n)]);
    return text;
}

/// The components from the lowest registry number to the highest, from place 1 on.
/// Numbers have up to ten digits; those of equal value keep their order.
std::array<int, 4> clsM::AscendingOrder() const {
    std::array<int, 4> order = {0, 1, 2, 3};
    const auto first = order.begin() + 1;
    std::stable_sort(first, first + MixType, [this](int a, int b) {
        return ToInteger(Val(RN(a))) < ToInteger(Val(RN(b)));
    });
    return order;
}

std::shared_ptr<clsL> clsM::Component(int n) const {
    return Parent ? Parent->FindL(RN(n)) : nullptr;
}

std::string clsM::ShowKey() const {
    std::string text;
    for (int n = 1; n <= MixType; ++n) {
        const auto compound = Component(n);
        text += (n == 1 ? "" : " + ") + (compound ? compound->ShowKey() : RN(n));
    }
    return text;
}

std::string clsM::Mixture(std::string* fault) const {
    for (int n = 1; n <= MixType; ++n) {
        if (Component(n)) continue;
        if (fault) {
            *fault = (Parent ? Parent->Source() : NoText) +
                     "\nComponent of mixture not described: " + RN(n);
        }
        return {};
    }
    return ShowKey();
}

std::array<double, 3> clsM::MolarMasses() const {
    std::array<double, 3> masses{};
    for (int n = 1; n <= MixType; ++n)
        masses[static_cast<std::size_t>(n - 1)] = MolarMassOfRN(RN(n), Parent);
    return masses;
}

void SetMixture(clsMMM& calculator, const clsM& mixture) {
    calculator.SetComponents(mixture.MixType, mixture.MolarMasses());
}

void clsM::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentM = As<clsM>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RM";
    globals.DataContext = MixType == 2 ? "Bin" : "Tern";
    globals.CurrentMixType = MixType;
    if (Parent) Parent->SetMe();
}

void clsM::AttachTo(clsR& source) {
    Parent = &source;
    source.recM.Add(As<clsM>(), Key());
    if (source.tNode) MakeNode(source.tNode);
}

std::size_t clsM::Leave() {
    return Parent ? LeaveFrom(Parent->recM) : 0;
}

bool clsM::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recM, place, Parent->recM.Item(Key()));
}

bool clsM::Load(std::string_view line) {
    WordReader words(line);
    MixType = words.NextWord() == "^B" ? 2 : 3;
    for (int n = 1; n <= MixType; ++n)
        RN(n, WithoutPlaceholder(words.NextWord()));
    REFPRP = OrPlaceholder(Trim(words.Rest()));
    return !RN(MixType).empty();
}

void clsM::PrintM(LineWriter& out) const {
    if (MixType == 2)
        out.Fields({"^B", RN1, RN2, REFPRP});
    else
        out.Fields({"^T", RN1, RN2, RN3, REFPRP});
}

bool clsM::HasData() const {
    return !recMZ.IsEmpty() || !recMV.IsEmpty();
}

void clsM::Print(LineWriter& out) const {
    if (HasData() || out.WritesAll) PrintM(out);
}

void clsM::EachChild(const std::function<void(Record&)>& visit) const {
    for (const auto& value : recMZ)
        visit(*value);
    for (const auto& set : recMV)
        visit(*set);
}

std::shared_ptr<clsMZ> clsM::FindMZ(std::string_view key, std::size_t* index) const {
    return FindByKey(recMZ, key, index);
}

std::shared_ptr<clsMV> clsM::FindMV(std::string_view key, std::size_t* index) const {
    return FindByKey(recMV, key, index);
}

std::vector<std::string> clsM::UpdateInfo(MixtureLetters& letters) {
    std::vector<std::string> faults;
    REFPRP.clear();
    const auto add = [&](auto& set) {
        const MixtureLetters::Letter& letter = letters.Of(set);
        if (REFPRP.find(letter.text) == REFPRP.npos) REFPRP += letter.text;
        const std::string fault = letter.isFault ? PhaseError(set) : std::string();
        if (!fault.empty() && !std::exchange(set.isPhaseErrorTold, true)) faults.push_back(fault);
    };
    for (const auto& value : recMZ)
        add(*value);
    for (const auto& set : recMV) {
        add(*set);
        bool isKnown = true;
        set->Context(&isKnown);
        if (!isKnown && !std::exchange(set->isContextTold, true))
            faults.push_back("Unrecognized Context" + CountsOf(*set));
    }
    if (REFPRP.empty()) REFPRP = "&";
    return faults;
}

std::string clsM::Abbreviate(int n) const {
    const auto name = [this](int component) {
        const auto compound = Component(component);
        return compound ? compound->ShowKey() : RN(component);
    };
    std::string full = name(n);
    const std::size_t length = CodePointCount(full);
    constexpr std::size_t least = 6, mostBehind = 3;
    if (MixType == 2 || length < least) return full;
    std::vector<std::string> others;
    for (int other = 1; other <= MixType; ++other)
        if (other != n) others.push_back(name(other));
    for (std::size_t count = least; count + least <= length; ++count) {
        const std::string front = Substring(full, 1, count);
        const bool isOwn = std::ranges::none_of(
            others, [&](const std::string& other) { return Substring(other, 1, count) == front; });
        // The last character is left out, as in all files that name compounds so.
        const std::size_t behind = std::min(mostBehind, length - count);
        if (isOwn) return front + "..." + Substring(full, length - behind, behind);
    }
    return full;
}

bool clsM::CheckSamples() const {
    for (int n = 1; n <= MixType; ++n) {
        const auto compound = Component(n);
        if (!compound || compound->recS.IsEmpty()) return false;
    }
    return true;
}

int clsM::PlaceOf(const clsL& compound) const {
    for (int n = 1; n <= MixType; ++n)
        if (RN(n) == compound.RN) return n;
    return 0;
}

bool IsUsedInMixtures(const clsS& sample) {
    const clsL* const compound = sample.Parent;
    if (compound == nullptr || compound->Parent == nullptr) return false;
    for (const auto& mixture : compound->Parent->recM) {
        const int n = mixture->PlaceOf(*compound);
        // "01" names sample 1 too.
        const auto isOfSample = [&](const auto& record) {
            return ToInteger(Val(record->SMPNM(n))) == ToInteger(Val(sample.SMPNM));
        };
        if (n != 0 && (std::ranges::any_of(mixture->recMZ, isOfSample) ||
                       std::ranges::any_of(mixture->recMV, isOfSample)))
            return true;
    }
    return false;
}

} // namespace vexora
