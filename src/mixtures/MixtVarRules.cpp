#include "mixtures/MixtVarRules.h"

#include "records/StateRules.h"
#include "reference/MixtureCodes.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr std::size_t SolventsOfBinary = 2;

int ComponentsOf(std::string_view context) {
    return context == "Tern" ? 3 : 2;
}

bool IsVirial(std::string_view property) {
    return IsOneOf(property, {"VVB", "VVC", "VVI", "VVE", "VV1", "VV2"});
}

bool IsPartialPressure(std::string_view variable) {
    return IsOneOf(variable, {"P1", "P2", "P3"});
}

std::vector<std::string> Numbers(int first, int last) {
    std::vector<std::string> numbers;
    for (int n = first; n <= last; ++n)
        numbers.push_back(std::to_string(n));
    return numbers;
}

bool IsTemperatureOfMixture(std::string_view property) {
    return IsTemperature(property) || IsOneOf(property, {"TA", "TC", "TUC", "TLC", "TE"});
}

bool IsPressureOfMixture(std::string_view property) {
    return IsPressure(property) || IsOneOf(property, {"PA", "PC", "PUC", "PLC"});
}

/// A boiling temperature is not measured against temperature. A content is, against the same in
/// another phase.
bool IsSameQuantity(std::string_view property, std::string_view variable) {
    if (IsTemperatureOfMixture(property)) return variable == "T";
    if (IsPressureOfMixture(property)) return variable == "P";
    return variable == property && !IsComposition(variable);
}

} // namespace

int MixtVarDraft::VariableCount() const {
    if (phaseCount == NotChosen || constraintCount == NotChosen) return NotChosen;
    return MixType() + 1 - (phaseCount - 1) - constraintCount;
}

std::vector<std::string> OfferPhaseCounts(std::string_view property, std::string_view context) {
    if (IsOneOf(property, {"IST", "IIT"})) return {"2"};
    if (IsVirial(property)) return {"1"};
    return Numbers(1, ComponentsOf(context) + 1);
}

std::vector<std::string> OfferConstraintCounts(std::string_view context) {
    return Numbers(0, ComponentsOf(context));
}

std::vector<std::string> OfferPhasesOfSet(std::string_view property, std::string_view context) {
    std::vector<std::string> codes;
    for (const std::string& name : PhaseList(context)) {
        const std::string code = PhaseCode(name);
        // A critical state is what phases become, none that is there beside others.
        if (IsCriticalCurve(code)) continue;
        if (IsVirial(property) && code != "G") continue;
        const bool isFluid = IsLiquidPhase(code) || IsOneOf(code, {"G", "FL", "air"});
        if (property == "IST" && !isFluid) continue;
        codes.push_back(code);
    }
    return codes;
}

std::vector<VariableRow> OfferMixtureVariables(std::string_view property, std::string_view context,
                                               bool constraintsOnly) {
    std::vector<VariableRow> rows = VariablesOf(context, constraintsOnly);
    std::erase_if(rows, [&](const VariableRow& row) {
        // A curve is a condition: nothing can be plotted against it.
        if (!constraintsOnly && IsCriticalCurve(row.IndVarCode)) return true;
        if (IsExcess(property) && NeedsSolvent(row.IndVarCode)) return true;
        return IsSameQuantity(property, row.IndVarCode);
    });
    return rows;
}

CodeTexts SolventTexts(std::string_view context) {
    const CodeTexts all = MixtureSolvents;
    return context == "Tern" ? all : all.first(SolventsOfBinary);
}

std::vector<CodeText> MixtureFunctions() {
    std::vector<CodeText> functions = {MixtureReferenceStates[0]};
    for (const CodeText& entry : ReferenceRelations)
        functions.push_back(entry);
    for (const CodeText& entry : MixtureReferenceStates)
        if (IsOneOf(entry.code, {"DT", "MN"})) functions.push_back(entry);
    return functions;
}

std::vector<CodeText> MixtureRelations() {
    std::vector<CodeText> relations;
    for (const CodeText& entry : MixtureReferenceStates)
        if (!IsOneOf(entry.code, {"DIR", "DT", "MN"})) relations.push_back(entry);
    return relations;
}

bool IsOfOnePhase(std::string_view code) {
    return IsComposition(code) || IsPartialPressure(code) ||
           IsOneOf(code, {"VM", "VS", "VDN", "VDM", "S"});
}

bool CanBeOf(std::string_view code, std::string_view phase) {
    if (IsPartialPressure(code)) return IsOneOf(phase, {"G", "IG", "FL", "air"});
    return !IsComposition(code) || !IsOneOf(phase, {"Cp1", "Cp2", "Cp3", "air"});
}

bool NeedsSolvent(const MixtVarDraft& draft) {
    const auto needs = [](const MixtVarQuantity& one) { return NeedsSolvent(one.code); };
    return NeedsSolvent(draft.property) || std::ranges::any_of(draft.variables, needs) ||
           std::ranges::any_of(draft.constraints, needs);
}

std::string_view SolventOfProperty(std::string_view property) {
    if (property == "HEX1") return "E";
    if (property == "HEX2") return "D";
    return property == "HEX3" ? "C" : "";
}

int SoluteOf(std::string_view code) {
    const bool isOfSolvent = IsComposition(code) && code.ends_with('S');
    return NeedsSolvent(code) && !isOfSolvent ? ComponentOf(code) : 0;
}

std::string_view SolventOfBinary(const MixtVarDraft& draft) {
    if (draft.MixType() != 2) return {};
    bool isSolute[3] = {};
    isSolute[SoluteOf(draft.property)] = true;
    for (const MixtVarQuantity& one : draft.variables)
        isSolute[SoluteOf(one.code)] = true;
    for (const MixtVarQuantity& one : draft.constraints)
        isSolute[SoluteOf(one.code)] = true;
    if (isSolute[1] == isSolute[2]) return {};
    return isSolute[1] ? "2" : "1";
}

bool IsExcess(std::string_view property) {
    return IsOneOf(property, {"CEX", "VEX", "HEX"});
}

bool NeedsStandardState(std::string_view property) {
    return property.starts_with("AC") || property.starts_with("AP");
}

bool NeedsPhaseOfSolute(std::string_view property) {
    return property == "HSL";
}

bool NeedsReferencePhase(std::string_view relation) {
    return IsOneOf(relation, {"FR", "PF", "TF", "PH", "EQ"});
}

std::string OpenSpectralVariable(const MixtVarDraft& draft) {
    const std::string_view spectral = SpectralVariable(draft.property);
    const auto isIt = [&](const MixtVarQuantity& one) { return one.code == spectral; };
    const bool isThere =
        std::ranges::any_of(draft.variables, isIt) || std::ranges::any_of(draft.constraints, isIt);
    return isThere ? std::string() : std::string(spectral);
}

int ConstraintsFor(int variables, int phases, std::string_view context) {
    const int constraints = ComponentsOf(context) + 1 - variables - (phases - 1);
    return constraints >= 0 && constraints <= ComponentsOf(context) ? constraints
                                                                    : MixtVarDraft::NotChosen;
}

std::string_view PresetFunction(std::string_view property) {
    return IsOneOf(property, {"UA", "U", "G", "H"}) ? "D" : "DIR";
}

} // namespace vexora
