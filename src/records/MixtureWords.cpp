#include "records/MixtureWords.h"

#include "records/PropertyLabels.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/MixtureCodes.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr std::string_view ComponentWord = "component ";

/// Phases that there is only one of are spoken of with the article.
bool HasNumber(std::string_view name) {
    return name.find_first_of("123") != std::string_view::npos || name.find(" s") != name.npos;
}

/// Temperature and pressure are those of all phases together.
bool IsOfAllPhases(std::string_view code) {
    return code == "T" || code == "P";
}

} // namespace

std::string FirstSmall(std::string text) {
    for (const std::string_view person : {"Henry", "Gibbs", "Helmholtz"})
        if (text.starts_with(person)) return text;
    if (!text.empty()) text[0] = LowerAscii(text.substr(0, 1))[0];
    return text;
}

std::string FirstCapital(std::string text) {
    if (!text.empty()) text[0] = UpperAscii(text.substr(0, 1))[0];
    return text;
}

std::string WithComponents(std::string_view text, const clsM* mixture) {
    std::string words(text);
    if (mixture == nullptr) return words;
    for (int n = 1; n <= mixture->MixType; ++n) {
        const auto compound = mixture->Component(n);
        if (compound)
            words =
                Replace(words, std::string(ComponentWord) + std::to_string(n), compound->ShowKey());
    }
    return words;
}

std::string InPhase(std::string_view phaseCode) {
    if (IsBlankField(phaseCode)) return {};
    const std::string name = PhaseName(phaseCode);
    if (name.empty()) return " in phase " + std::string(phaseCode);
    const std::string words = FirstSmall(name);
    if (words.starts_with("air ")) return " in " + words;
    return (HasNumber(words) ? " in " : " in the ") + words;
}

std::string VariableInWords(const clsMV& set, std::string_view code) {
    const std::string name = VariableName(code, set.DataContext());
    return WithComponents(name.empty() ? code : name, set.Parent);
}

std::string QuantityInWords(const clsMV& set, int n) {
    const bool isProperty = n == 0;
    const std::string& code = n <= set.nVar ? set.VARIABLE(n) : set.CONSTRAINT(n - set.nVar);
    std::string words;
    if (isProperty) {
        words = WithComponents(PropertyLabels::Of(set).name, set.Parent);
    } else {
        words = VariableInWords(set, code);
    }
    const bool saysPhase =
        IsComposition(code) || (isProperty && set.nPhases() > 1 && !IsOfAllPhases(code));
    const std::string& phase = set.PhaseFor(n);
    return FirstSmall(words) + (saysPhase ? InPhase(phase) : std::string());
}

std::string NameOnForms(const clsMV& set, std::string_view code, const std::string& name,
                        std::string_view phase) {
    const bool isOfPhase = !IsOfAllPhases(code) && !IsBlankField(phase);
    const bool saysPhase = isOfPhase && set.nPhases() > 1;
    return WithComponents(saysPhase ? name + ", " + PhaseName(phase) : name, set.Parent);
}

} // namespace vexora
