#include "tables/ProcessWords.h"

#include <algorithm>

#include "records/MixtureWords.h"
#include "records/clsM.h"
#include "reference/Conversions.h"
#include "reference/MixtureCodes.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr std::string_view ThermalFunctions[] = {"CP", "CV", "CS",  "H", "H/T",
                                                 "S",  "G",  "G/T", "UA"};
constexpr char Contents[] = {'X', 'W', 'J', 'V'};
constexpr std::string_view PhasesOfMixture[] = {"L", "G", "L1", "L2", "L3", "Cp1", "Cp2", "Cp3"};

bool IsVariable(std::string_view code) {
    return code == "T" || code == "P" || IsComposition(code);
}

/// Components that share a name keep their numbers, or their columns could not be told apart.
void NameComponents(std::vector<HeadEntry>& entries, const clsM* mixture) {
    std::vector<std::string> texts;
    for (const HeadEntry& entry : entries)
        texts.push_back(WithComponents(entry.text, mixture));
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (std::ranges::count(texts, texts[i]) == 1) entries[i].text = texts[i];
}

std::string UnitOf(std::string_view quantity) {
    return IsVariable(quantity) ? UnitOfVariable(quantity) : UnitOfProperty(quantity, "Pure");
}

} // namespace

std::vector<HeadEntry> Headings(const clsM* mixture) {
    std::vector<HeadEntry> entries{{"", "Nothing"}, {"T", VariableName("T")}};
    if (mixture) {
        entries.push_back({"P", VariableName("P")});
        for (const char content : Contents)
            for (int n = 1; n <= mixture->MixType; ++n) {
                const std::string code = content + std::to_string(n);
                entries.push_back({code, VariableName(code)});
            }
        NameComponents(entries, mixture);
    } else {
        for (const std::string_view code : ThermalFunctions)
            entries.push_back({std::string(code), PropertyName(code, "Pure")});
    }
    entries.push_back({std::string(ProcessColumn::CombinedUncertainty), "Comb.Uncertainty"});
    return entries;
}

std::vector<HeadEntry> HeadPhases(const clsM* mixture) {
    std::vector<HeadEntry> entries;
    if (!mixture) {
        for (const std::string& name : PhaseList("Pure"))
            entries.push_back({PhaseCode(name), name});
        return entries;
    }
    for (const std::string_view code : PhasesOfMixture)
        if (mixture->MixType > 2 || !code.ends_with('3'))
            entries.push_back({std::string(code), PhaseName(code)});
    NameComponents(entries, mixture);
    return entries;
}

std::vector<HeadEntry> HeadUnits(std::string_view quantity) {
    const std::string unit = UnitOf(quantity);
    if (unit.empty()) return {};
    std::vector<HeadEntry> entries;
    for (const std::string& text : UnitList(unit, quantity))
        entries.push_back({ConversionCodeOf(text, unit), text});
    entries.push_back({std::string(ProcessColumn::ByFactor), std::string(OtherUnits)});
    return entries;
}

std::string HeadSystemUnit(std::string_view quantity) {
    const std::string unit = UnitOf(quantity);
    return unit == "1" ? std::string() : unit;
}

} // namespace vexora
