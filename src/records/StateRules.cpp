#include "records/StateRules.h"

#include <algorithm>

#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

std::string InWords(std::string_view code) {
    const QuantityText* quantity = QuantityByCode(StateVariables, code);
    return LowerAscii(quantity ? quantity->text : code);
}

/// It varies, also between two limits, or one value of it is stated for all rows.
bool IsGiven(const DataSet& set, const std::string& code) {
    return set.HasVariable(code) || set.HasVariable(code + "U") || set.HasVariable(code + "L") ||
           !set.ConstantOf(code).empty();
}

/// On a phase boundary, and of what is derived, the variables say it all.
bool LacksTemperature(const clsTwo& set) {
    return IsOneOf(set.CONSTRAINT, {"FP", "FT"}) && !IsTemperature(set.PRPCODE) &&
           !IsGiven(set, "T");
}

void AddLimits(const clsTwo& set, std::vector<std::string>& unstated) {
    const std::string& function = set.PROPERTY_FUNCT;
    const std::string code = IsOneOf(function, {"DT", "MN"}) ? "T" : function == "DX" ? "P" : "";
    if (code.empty()) return;
    for (const char* limit : {"U", "L"}) {
        const std::string one = code + limit;
        if (!set.HasVariable(one) && set.ConstantOf(one).empty()) unstated.push_back(InWords(one));
    }
}

void AddReference(const clsTwo& set, std::vector<std::string>& unstated) {
    const ResultDefinition definition = set.Definition();
    if (!definition.IsRelative()) return;
    if (definition.FixesTemperature() && !IsNumeric(set.REF_TEMP))
        unstated.emplace_back("reference temperature");
    if (definition.FixesPressure() && !IsNumeric(set.REF_PRESSURE))
        unstated.emplace_back("reference pressure");
    if (definition.NamesPhase() && IsBlankField(set.REF_PHASE))
        unstated.emplace_back("reference phase");
}

} // namespace

bool IsTemperature(std::string_view property) {
    return IsOneOf(property, {"T", "TB", "TF", "TG", "TTR", "TDC"});
}

bool IsPressure(std::string_view property) {
    return IsOneOf(property, {"P", "PV"});
}

std::string_view SpectralVariable(std::string_view property) {
    return property == "RPX" ? "WF" : property == "RIX" ? "WL" : "";
}

std::vector<std::string> UnstatedOf(const clsTwo& set) {
    std::vector<std::string> unstated;
    if (set.LacksPressure()) unstated.push_back(InWords("P"));
    if (LacksTemperature(set)) unstated.push_back(InWords("T"));
    const std::string spectral(SpectralVariable(set.PRPCODE));
    if (!spectral.empty() && !IsGiven(set, spectral)) unstated.push_back(InWords(spectral));
    AddLimits(set, unstated);
    AddReference(set, unstated);
    return unstated;
}

std::vector<std::string> UnstatedOf(const clsZ& value) {
    const PropertyRow* property = FindProperty(value.PRPCODE, value.DataContext());
    const bool needsVariable = property && property->Fixed && !property->Single;
    if (value.nVar > 0 || !needsVariable) return {};
    return {InWords(IndVarFixed(value.PRPCODE))};
}

} // namespace vexora
