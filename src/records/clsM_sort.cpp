// Mixtures with their components in ascending order: what names a component bears its number.
#include "chem/CommentTags.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "reference/Text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vexora {

namespace {

/// The new number of each component, by its old one.
using Numbers = std::array<int, 4>;

/// What stands in front of the number in codes of quantities and phases.
constexpr std::string_view NumberedCodes[] = {"X",   "W",   "V",  "M",  "N",  "J",  "O",   "Q",
                                              "B",   "E",   "P",  "AC", "AP", "ND", "HEX", "PHM",
                                              "PHJ", "PHX", "VP", "VA", "VV", "XU", "XL",  "XA",
                                              "XE",  "XC",  "WU", "WL", "WA", "WE", "WC",  "Cp"};

bool IsComponent(char c) {
    return c >= '1' && c <= '3';
}

char Renumbered(char component, const Numbers& number) {
    return static_cast<char>('0' + number[static_cast<std::size_t>(component - '0')]);
}

/// X1, AC2, Cp3; X1S of a mixed solvent. Numbers of phases (L1, S2) are others.
std::string RenumberedCode(const std::string& code, const Numbers& number) {
    std::string renumbered = code;
    const std::size_t length = code.size();
    constexpr std::size_t solventCode = 3;
    if (length == solventCode && code.back() == 'S' && IsComponent(code[1])) {
        renumbered[1] = Renumbered(code[1], number);
    } else if (length > 1 && IsComponent(code.back()) &&
               std::ranges::find(NumberedCodes, code.substr(0, length - 1)) !=
                   std::end(NumberedCodes)) {
        renumbered.back() = Renumbered(code.back(), number);
    }
    return renumbered;
}

/// One component, or a letter for two of them: C leaves out the third, D the second, E the first.
std::string RenumberedSolvent(const std::string& solvent, const Numbers& number) {
    if (solvent.size() != 1) return solvent;
    const char c = solvent[0];
    if (IsComponent(c)) return {Renumbered(c, number)};
    if (c < 'C' || c > 'E') return solvent;
    const char leftOut = static_cast<char>('3' - (c - 'C'));
    return {static_cast<char>('C' + ('3' - Renumbered(leftOut, number)))};
}

/// A code, or what a solvent may be, or two components by their numbers.
std::string RenumberedComposition(const std::string& text, const Numbers& number) {
    if (text.size() == 2 && IsComponent(text[0]) && IsComponent(text[1])) {
        std::string pair = {Renumbered(text[0], number), Renumbered(text[1], number)};
        std::ranges::sort(pair);
        return pair;
    }
    return RenumberedSolvent(RenumberedCode(text, number), number);
}

template <class Set>
void SortSamples(Set& set, const Numbers& number) {
    std::array<std::string, 4> samples;
    for (int n = 1; n <= set.MixType; ++n)
        samples[static_cast<std::size_t>(number[static_cast<std::size_t>(n)])] = set.SMPNM(n);
    for (int n = 1; n <= set.MixType; ++n)
        set.SMPNM(n, samples[static_cast<std::size_t>(n)]);
}

/// Keys bear samples and codes, so all of them are new at once.
template <class Set>
void SortSets(ui::Collection<Set>& sets, const Numbers& number) {
    const std::vector<std::shared_ptr<Set>> inOrder(sets.begin(), sets.end());
    sets.Clear();
    for (const auto& set : inOrder) {
        set->Sort(number);
        sets.Add(set, set->Key());
    }
}

} // namespace

void clsMZ::Sort(const std::array<int, 4>& number) {
    const auto renumbered = [&number](const std::string& code) {
        return RenumberedCode(code, number);
    };
    SortSamples(*this, number);
    PRPCODE = renumbered(PRPCODE);
    for (int n = 1; n <= MixType + 2; ++n)
        PHASE(n, renumbered(PHASE(n)));
    ChangeCodes(renumbered);
}

void clsMV::Sort(const std::array<int, 4>& number) {
    const auto renumbered = [&number](const std::string& code) {
        return RenumberedCode(code, number);
    };
    SortSamples(*this, number);
    for (std::string* code : {&PRPCODE, &PHASE1, &REFERENCE_PHASE})
        *code = renumbered(*code);
    for (MixtureVariable& variable : Variables)
        variable = {renumbered(variable.code), variable.unit, renumbered(variable.phase)};
    for (ConstraintSlot& slot : Constraints) {
        slot.code = renumbered(slot.code);
        slot.phase = renumbered(slot.phase);
    }
    SOLVENT = RenumberedSolvent(SOLVENT, number);
    COMPOSITION = RenumberedComposition(COMPOSITION, number);
    for (clsX& item : UX)
        item.ChangeCodes(renumbered);
    for (clsX& item : OtherX)
        item.ChangeCodes(renumbered);
    CommentTags tags(Header.DATACOMMENT);
    tags.ChangePrecisionCodes(renumbered);
    Header.DATACOMMENT = tags.Stored();
}

bool clsM::Sort() {
    const std::array<int, 4> order = AscendingOrder();
    if (std::ranges::is_sorted(order)) return false;
    Numbers number{};
    const std::array<std::string, 3> before = {RN1, RN2, RN3};
    for (int n = 1; n <= MixType; ++n) {
        const auto old = static_cast<std::size_t>(order[static_cast<std::size_t>(n)]);
        number[old] = n;
        RN(n, before[old - 1]);
    }
    SortSets(recMZ, number);
    SortSets(recMV, number);
    return true;
}

} // namespace vexora
