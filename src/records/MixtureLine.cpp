#include "records/MixtureLine.h"

#include "records/LineWriter.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace vexora {

namespace {

using Slots = std::array<ConstraintSlot, MixtureLine::MostSlots>;

constexpr std::string_view SolutionCodes[] = {"S", "S1", "S2"};
/// Contents of a component in a solvent; a binary has only one that can be the solvent.
constexpr std::string_view ContentLetters = "MNJOQBE";
/// The same of a mixed solvent, as files write them.
constexpr std::string_view ShortSolventCodes[] = {"XS", "WS", "OS", "QS", "BS"};
/// Partial enthalpies and Henry's constants, whose short form lacks the component.
constexpr std::string_view NumberedProperties[] = {"HEX", "PHM", "PHJ"};

template <class List>
bool IsOneOf(const List& list, std::string_view code) {
    return std::ranges::find(list, code) != std::end(list);
}

bool IsContentLetter(std::string_view code) {
    return code.size() == 1 && ContentLetters.find(code[0]) != std::string_view::npos;
}

/// The component that a solvent leaves as the solute: "1" the second of a binary, "D" (1+3) the
/// second, and so on; 0 for none.
char SoluteOf(std::string_view solvent) {
    if (solvent == "1" || solvent == "D") return '2';
    if (solvent == "2" || solvent == "E") return '1';
    return solvent == "3" || solvent == "C" ? '3' : '\0';
}

/// The solvent that the short code of this component is read by.
std::string SolventFor(char component, int mixType) {
    if (mixType == 2) return component == '1' ? "2" : "1";
    return component == '3' ? "C" : component == '2' ? "D" : "E";
}

/// What a line has in place of a code with the number of a component, "" when it has none.
std::string ShortForm(const std::string& code, int mixType) {
    if (code == "HSL") return "HA";
    const char last = code.empty() ? '\0' : code.back();
    if (last < '1' || last > '3') return {};
    std::string stem = code.substr(0, code.size() - 1);
    if (IsOneOf(NumberedProperties, stem)) return stem;
    return mixType == 2 && last != '3' && IsContentLetter(stem) ? stem : std::string();
}

// The amount of a phase value tells the variables that it covers: a sum of 1 and 2 for up to two
// variables; of three, the places of this table.
constexpr int SumsByAmount[] = {0, 1, 2, 4, 7, 5, 6, 3}; // bits 1, 2, 4 for variables 1, 2, 3

int VariablesOfAmount(int amount, int nVar) {
    if (amount < 0 || amount > 7) return 0;
    if (nVar == 3) return SumsByAmount[amount];
    return amount < (1 << nVar) ? amount : 0;
}

int AmountOfVariables(int variables, int nVar) {
    if (nVar < 3) return variables;
    return static_cast<int>(std::ranges::find(SumsByAmount, variables) - std::begin(SumsByAmount));
}

int AmountOf(const ConstraintSlot& slot) {
    constexpr int most = 8;
    if (!NamesPhase(slot.code) || slot.value.empty()) return 0;
    return static_cast<int>(
        std::min<long>(most, std::labs(std::strtol(slot.value.c_str(), nullptr, 10))));
}

} // namespace

bool NamesPhase(std::string_view code) {
    if (IsBlankField(code) || IsCriticalCurve(code)) return false;
    return IsOneOf(SolutionCodes, code) || PhaseValid(code);
}

bool IsConstraint(std::string_view code) {
    if (NamesPhase(code)) return false;
    const VariableRow* const row = FindVariable(code);
    return row && row->Constr;
}

int MixtureLine::SlotCount() const {
    return std::clamp(MixType + 1 - nVar, 0, MostSlots);
}

void MixtureLine::Arrange() {
    const auto count = static_cast<std::size_t>(SlotCount());
    std::vector<ConstraintSlot> phases, constraints, arranged, rest;
    for (std::size_t i = 0; i < count; ++i) {
        const ConstraintSlot& slot = slots[i];
        (NamesPhase(slot.code)     ? phases
         : IsConstraint(slot.code) ? constraints
                                   : rest)
            .push_back(slot);
    }
    const auto takeOf = [&](const auto& isMeant) {
        for (const ConstraintSlot& slot : constraints)
            if (isMeant(slot)) arranged.push_back(slot);
        std::erase_if(constraints, isMeant);
    };
    // What is meant in no phase that is there is meant in the main one.
    takeOf([&](const ConstraintSlot& slot) {
        return slot.phase == PHASE1 ||
               std::ranges::none_of(
                   phases, [&](const ConstraintSlot& phase) { return phase.code == slot.phase; });
    });
    for (const ConstraintSlot& phase : phases) {
        arranged.push_back(phase);
        takeOf([&](const ConstraintSlot& slot) { return slot.phase == phase.code; });
    }
    arranged.insert(arranged.end(), rest.begin(), rest.end());
    std::ranges::copy(arranged, slots.begin());
}

void MixtureLine::Dearrange() {
    std::stable_partition(slots.begin(), slots.begin() + SlotCount(),
                          [](const ConstraintSlot& slot) { return NamesPhase(slot.code); });
}

void MixtureLine::Encode() {
    for (int i = 0; i < SlotCount(); ++i) {
        ConstraintSlot& slot = slots[static_cast<std::size_t>(i)];
        if (!NamesPhase(slot.code)) continue;
        int covered = 0;
        for (int n = 0; n < nVar; ++n) {
            const std::string& phase = variables[static_cast<std::size_t>(n)].phase;
            if (phase == slot.code && phase != PHASE1) covered |= 1 << n;
        }
        slot.value = covered == 0 ? "" : "-" + std::to_string(AmountOfVariables(covered, nVar));
    }
}

void MixtureLine::Decode() {
    for (MixtureVariable& variable : variables)
        variable.phase.clear();
    for (int n = 0; n < nVar; ++n)
        variables[static_cast<std::size_t>(n)].phase = PHASE1;
    const std::string* before = &PHASE1; // the phase that stands nearest in front
    for (int i = 0; i < SlotCount(); ++i) {
        ConstraintSlot& slot = slots[static_cast<std::size_t>(i)];
        slot.phase.clear();
        if (NamesPhase(slot.code)) {
            const int covered = VariablesOfAmount(AmountOf(slot), nVar);
            for (int n = 0; n < nVar; ++n)
                if ((covered & (1 << n)) != 0)
                    variables[static_cast<std::size_t>(n)].phase = slot.code;
            slot.value.clear();
            before = &slot.code;
        } else if (IsConstraint(slot.code)) {
            slot.phase = *before;
        }
    }
}

std::string MixtureLine::Translate(const std::string& code) {
    if (code == "HA") return PROPERTY_FUNCT == "DPT" ? "HSL" : code;
    if (code == "HEX") {
        const bool isMixed = SOLVENT == "C" || SOLVENT == "D" || SOLVENT == "E";
        return MixType == 3 && isMixed ? code + SoluteOf(SOLVENT) : code;
    }
    if (IsOneOf(ShortSolventCodes, code)) return {code[0], SOLVENT == "E" ? '2' : '1', 'S'};
    if (!IsContentLetter(code) && !IsOneOf(NumberedProperties, code)) return code;
    const char solute = SoluteOf(SOLVENT);
    return solute == '\0' ? code : code + solute;
}

std::string MixtureLine::PushBack(const std::string& code) {
    std::string brief = ShortForm(code, MixType);
    if (brief.empty()) return code;
    MixtureLine read = *this;
    if (code == "HSL") {
        read.PROPERTY_FUNCT = PROPERTY_FUNCT == "DIR" ? "DPT" : "";
    } else if (read.SOLVENT.empty()) {
        read.SOLVENT = SolventFor(code.back(), MixType);
    }
    // A reader has nothing but the short code and the solvent of the line.
    if (read.Translate(brief) != code) return code;
    SOLVENT = read.SOLVENT;
    PROPERTY_FUNCT = read.PROPERTY_FUNCT;
    return brief;
}

bool MixtureLine::IsAmbiguous(std::string_view code) const {
    if (!IsContentLetter(code)) return false;
    return SOLVENT == "3" || (MixType == 3 && (SOLVENT == "1" || SOLVENT == "2"));
}

/// Phases bear no component, and one of a letter could be taken for a content.
template <class Change>
void MixtureLine::ForEachCode(Change change) {
    change(PRPCODE);
    for (int i = 0; i < SlotCount(); ++i) {
        std::string& code = slots[static_cast<std::size_t>(i)].code;
        if (!NamesPhase(code)) change(code);
    }
    for (int n = 0; n < nVar; ++n)
        change(variables[static_cast<std::size_t>(n)].code);
}

std::vector<std::string> MixtureLine::Codes() const {
    std::vector<std::string> codes;
    MixtureLine copy = *this;
    copy.ForEachCode([&codes](const std::string& code) { codes.push_back(code); });
    return codes;
}

void MixtureLine::ToFile() {
    Arrange();
    Encode();
    MixtureLine brief = *this;
    brief.ForEachCode([&brief](std::string& code) { code = brief.PushBack(code); });
    // A solvent that one code fills in must not give a meaning to another that had none.
    MixtureLine read = brief;
    read.TranslateCodes();
    if (read.Codes() == Codes()) *this = std::move(brief);
}

/// False when the reading of one is unsure.
bool MixtureLine::TranslateCodes() {
    bool isSure = true;
    const bool isBrief = PRPCODE == "HA";
    ForEachCode([&](std::string& code) {
        isSure = isSure && !IsAmbiguous(code);
        code = Translate(code);
    });
    if (PRPCODE == "HSL" && (isBrief || PROPERTY_FUNCT.empty())) PROPERTY_FUNCT = "DIR";
    return isSure;
}

bool MixtureLine::ToMemory() {
    const bool isSure = TranslateCodes();
    Decode();
    Dearrange();
    return isSure;
}

} // namespace vexora
