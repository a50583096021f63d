#include "records/MixtureLetters.h"

#include "chem/CommentTags.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <cstdlib>
#include <vector>

namespace vexora {

namespace {

std::string Cased(std::string_view propertyClass, bool isLower) {
    const std::string_view letter = propertyClass.substr(0, 1);
    return isLower ? LowerAscii(letter) : std::string(letter);
}

/// Of one phase the fluids have the capital letter, of several the gas.
std::string ByPhases(char alone, char together, const PhaseCounts& phases) {
    const bool isCapital = phases.gas < 0 || (phases.all < 2 && phases.liquid < 0);
    const char letter = phases.all < 2 ? alone : together;
    return Cased({&letter, 1}, !isCapital);
}

std::string OfEquilibrium(const PhaseCounts& phases) {
    const PhaseCounts counts = phases.WithFluidAsMissing();
    if (std::abs(counts.liquid) == 1 && counts.gas != 0) return "P";
    if (counts.solid != 0) return "s";
    return std::abs(counts.liquid) > 1 ? "S" : "";
}

MixtureLetters::Letter Made(const std::string& propertyClass, const PhaseCounts& phases) {
    const std::string letter = MixtureLetter(propertyClass, phases);
    return {letter, letter.empty() && !propertyClass.empty()};
}

std::string KindOf(std::string_view code, const std::vector<std::string>& phases) {
    std::string kind(code);
    for (const std::string& phase : phases)
        kind += " " + phase;
    return kind;
}

/// A liquid at a fixed pressure has air above it, and an azeotrope its vapour, said or not.
bool HasGasUnsaid(const clsMZ& value) {
    return IsOneOf(value.PRPCODE, {"TA", "PA", "XA1", "XA2", "XA3", "WA1", "WA2", "WA3"}) ||
           CommentTags(value.Header.DATACOMMENT).Has("FP");
}

} // namespace

std::string MixtureLetter(std::string_view propertyClass, const PhaseCounts& phases) {
    if (IsOneOf(propertyClass, {"NN", "FF", "GG"})) return Cased(propertyClass, phases.solid < 0);
    if (IsOneOf(propertyClass, {"EE", "II", "WW", "ZZ", "XX", "AA", "YY"}))
        return Cased(propertyClass, phases.gas >= 0);
    if (propertyClass == "DD") return ByPhases('V', 'D', phases);
    if (propertyClass == "HH") return ByPhases('L', 'H', phases);
    if (propertyClass == "PP") return OfEquilibrium(phases);
    return std::string(propertyClass);
}

const MixtureLetters::Letter& MixtureLetters::Of(const clsMZ& value) {
    const std::vector<std::string> phases = value.Phases();
    const bool hasGas = HasGasUnsaid(value);
    const auto [entry, isNew] =
        known_.try_emplace((hasGas ? "ZG " : "Z ") + KindOf(value.PRPCODE, phases));
    if (!isNew) return entry->second;
    PhaseCounts counts{value.iSolid(), value.iLiquid(), value.iGas(), 0, value.MixType + 1};
    counts.fluid = PhaseCounts::Of(phases).fluid;
    if (hasGas && counts.gas == 0) counts.gas = 1;
    // Some properties are in the lists of sets only.
    std::string propertyClass = MixtureAvailable(value.PRPCODE, "MixZ");
    if (propertyClass.empty()) propertyClass = MixtureAvailable(value.PRPCODE, "MixV");
    entry->second = Made(propertyClass, counts);
    return entry->second;
}

const MixtureLetters::Letter& MixtureLetters::Of(const clsMV& set) {
    const std::vector<std::string> phases = set.Phases();
    const auto [entry, isNew] = known_.try_emplace("V " + KindOf(set.PRPCODE, phases));
    if (isNew) entry->second = Made(MixtureAvailable(set.PRPCODE, "MixV"), PhaseCounts::Of(phases));
    return entry->second;
}

} // namespace vexora
