#include "export/ElementNames.h"

#include <utility>

namespace vexora {

namespace {

constexpr std::pair<std::string_view, ElementKind> Kinds[] = {
    {"PureOrMixtureData", ElementKind::Data},
    {"ReactionData", ElementKind::Reaction},
    {"NumValues", ElementKind::NumValues},
    {"Sample", ElementKind::Sample},
    {"Component", ElementKind::Component},
    {"Participant", ElementKind::Participant},
    {"Solvent", ElementKind::Outsider},
    {"Catalyst", ElementKind::Outsider},
    {"Compound", ElementKind::Compound},
    {"RegNum", ElementKind::RegNum},
    {"PropertyValue", ElementKind::PropertyValue},
    {"VariableValue", ElementKind::VariableValue},
    {"VariableType", ElementKind::VariableType},
    {"nOrgNum", ElementKind::OrgNum},
    {"nPureOrMixtureDataNumber", ElementKind::DataNumber},
    {"nReactionDataNumber", ElementKind::ReactionNumber},
    {"nSampleNm", ElementKind::SampleNumber},
    {"nPropNumber", ElementKind::PropNumber},
    {"nVarNumber", ElementKind::VarNumber},
    {"nPropValue", ElementKind::PropValue},
    {"nVarValue", ElementKind::VarValue},
    {"ePropName", ElementKind::PropName},
    {"nConstraintValue", ElementKind::ConstraintValue},
    {"nStoichiometricCoef", ElementKind::HeadValue},
    {"nNumericalComposition", ElementKind::HeadValue},
    {"nTemperature-K", ElementKind::HeadValue},
    {"nPressure-kPa", ElementKind::HeadValue},
};

} // namespace

const ElementName& ElementNames::Found(std::string_view name) {
    const auto [found, isNew] = names_.try_emplace(std::string(name));
    ElementName& element = found->second;
    if (!isNew) return element;
    element.text = name;
    for (const auto& [text, kind] : Kinds)
        if (text == name) element.kind = kind;
    element.isNumber = name.size() > 1 && name[0] == 'n' && name[1] >= 'A' && name[1] <= 'Z';
    element.isDigits = name.ends_with("Digits");
    return element;
}

} // namespace vexora
