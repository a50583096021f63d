#include "reference/KVODefinitions.h"
#include "reference/Vocabulary.h"
#include "reference/VocabularyTables.h"

namespace vexora {

namespace {

/// Names of ThermoML end with their unit.
std::string WithUnit(std::string_view name, std::string_view unit) {
    const bool isPlain = unit.empty() || unit == "1" || name.empty();
    return isPlain ? std::string(name) : std::string(name).append(", ").append(unit);
}

} // namespace

std::string XMLPropertyGroup(std::string_view code, std::string_view context,
                             std::string_view propertyContext) {
    const PropertyRow* property = FindProperty(code, context, propertyContext);
    if (!property) return {};
    const PropertyGroupRow* group =
        Kept(&VocabularyTables::PropertyGroups).First(&PropertyGroupRow::GROUP, property->GROUP);
    return group ? group->XMLGroup : std::string();
}

std::string XMLPropertyName(std::string_view code, std::string_view context,
                            std::string_view propertyContext) {
    const PropertyRow* property = FindProperty(code, context, propertyContext);
    if (!property) return {};
    return property->XMLNAME.empty() ? WithUnit(property->Property, property->Unit)
                                     : property->XMLNAME;
}

std::string XMLMethod(std::string_view methodCode, std::string_view propertyCode) {
    for (const MethodOfProperty* row :
         Kept(&VocabularyTables::Methods).With(&MethodOfProperty::Code, propertyCode))
        if (row->MethodCode == methodCode) return row->Method;
    return {};
}

std::string XMLVariableGroup(std::string_view code) {
    const VariableRow* variable = FindVariable(code);
    if (variable && !variable->XMLGroup.empty()) return variable->XMLGroup;
    if (code.empty()) return {};
    // Codes of the tables go before this; it serves variables that only files have: X mole
    // fraction, W mass fraction, V volume fraction, M molality, J molarity, O, Q, B ratios, with
    // "s" behind for the solvent.
    const bool solvent =
        code.size() > 1 && (code.back() == 's' || (code.size() > 2 && code.back() == 'S'));
    if (solvent && std::string_view("XWVMJOQB").find(code.front()) != std::string_view::npos)
        return "eSolventComposition";
    // The number of the component stands behind the letter.
    const bool composition = code.size() == 1 || (code[1] >= '0' && code[1] <= '9');
    if (composition && std::string_view("MXJEWVBNOQ").find(code.front()) != std::string_view::npos)
        return "eComponentComposition";
    return "eMiscellaneous";
}

std::string XMLVariableName(std::string_view code) {
    const VariableRow* variable = FindVariable(code);
    if (!variable) return {};
    return variable->XMLNAME.empty() ? WithUnit(variable->IndVariable, variable->Unit)
                                     : variable->XMLNAME;
}

std::string XMLBioPropertyName(const BioQuantityText& quantity) {
    return WithUnit(quantity.text, quantity.unit);
}

std::string XMLBioVariableName(const BioQuantityText& quantity) {
    const VariableRow* row = FindVariable(quantity.code);
    return row && row->Unit == quantity.unit ? XMLVariableName(quantity.code)
                                             : WithUnit(quantity.text, quantity.unit);
}

std::string ReferenceStateText(std::string_view code) {
    return TextOfCode(PureReferenceTexts, code);
}

} // namespace vexora
