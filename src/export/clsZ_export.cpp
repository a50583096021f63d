#include "records/clsZ.h"

#include "export/PureData.h"
#include "export/Statements.h"
#include "export/XmlWriter.h"
#include "records/clsS.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

// A boiling temperature without a pressure was measured under one atmosphere, and so was what is
// marked as being at fixed pressure.
bool IsUnderOneAtmosphere(const clsZ& value) {
    const bool boiling = value.PRPCODE == "TB" && value.nVar == 0 && !HasTag(value.Header, ":PB:");
    if (!boiling && !HasTag(value.Header, ":FP:")) return false;
    return value.nVar == 0 || value.Variable() != "P";
}

void ExportProperty(XmlWriter& xml, const clsZ& value, const std::string& group) {
    xml.Open("Property");
    ExportPropertyHead(xml, value.PRPCODE, group, value.PHASE1, value.Header);
    xml.Element("ePresentation", "Direct value, X");
    value.UX[0].ExportX(xml, "Prop");
    xml.Close();
}

ExportUnit PropertyUnitOf(const clsZ& value) {
    return {value.PROPERTY_UNIT, value.Factor, value.MolarMass(), value.isOriginalUnit};
}

ExportUnit VariableUnitOf(const clsZ& value) {
    ExportUnit unit{value.VARIABLE_UNIT, 0, 0, value.isOriginalUnit};
    unit.wavelength = value.Variable() == "WL";
    return unit;
}

void TellMissingRepeatability(const clsZ& value) {
    TellDataError(*value.Parent, value.PRPCODE, "Missing repeatability in ");
}

void ExportVariableValue(XmlWriter& xml, const clsZ& value) {
    const ExportUnit unit = VariableUnitOf(value);
    const ExportNumber number = ExportedValue(value.INDVARIABLE, unit);
    xml.Open("VariableValue");
    xml.Element("nVarNumber", "1");
    xml.Element("nVarValue", number.text);
    xml.Element("nVarDigits", std::to_string(number.digits));
    if (ExportStatements(xml, value.UX[1], "Var", value.INDVARIABLE, unit)) {
        TellMissingRepeatability(value);
    }
    xml.Close();
}

void ExportValues(XmlWriter& xml, const clsZ& value) {
    xml.Open("NumValues");
    if (value.nVar == 1) ExportVariableValue(xml, value);
    const ExportUnit unit = PropertyUnitOf(value);
    const ExportNumber number = ExportedValue(value.PRPVALUE, unit);
    xml.Open("PropertyValue");
    xml.Element("nPropNumber", "1");
    xml.Element("nPropValue", number.text);
    xml.Element("nPropDigits", std::to_string(number.digits));
    if (ExportStatements(xml, value.UX[0], "Prop", value.PRPVALUE, unit)) {
        TellMissingRepeatability(value);
    }
    xml.Close();
    xml.Close();
}

// Why the value cannot be exported, or empty.
std::string FaultOf(const clsZ& value, const std::string& group) {
    if (!IsXmlName(group) || (value.nVar == 1 && !IsXmlName(XMLVariableGroup(value.Variable()))))
        return NoPlaceInExport;
    const std::string fault = ConversionFault(PropertyUnitOf(value));
    return fault.empty() && value.nVar == 1 ? ConversionFault(VariableUnitOf(value)) : fault;
}

} // namespace

void clsZ::ExportZ(XmlWriter& xml) const {
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    const std::string group = XMLPropertyGroup(PRPCODE, "Pure");
    const std::string fault = FaultOf(*this, group);
    if (!fault.empty()) return TellDataError(*Parent, PRPCODE, fault);
    xml.Open("PureOrMixtureData");
    ExportOrigin(xml, *Parent, Header);
    ExportProperty(xml, *this, group);
    ExportPhases(xml, PRPCODE, Header, {PHASE1, PHASE2, PHASE3});
    if (IsUnderOneAtmosphere(*this)) ExportAtmosphere(xml);
    if (nVar == 1) ExportVariable(xml, 1, Variable(), PHASE1, UX[1]);
    ExportValues(xml, *this);
    xml.Close();
}

} // namespace vexora
