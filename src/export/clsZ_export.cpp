#include "records/clsZ.h"

#include "export/DataHead.h"
#include "export/Statements.h"
#include "export/XmlWriter.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

// A boiling temperature without a pressure was measured under one atmosphere, and so was what is
// marked as being at fixed pressure.
bool IsUnderOneAtmosphere(const clsZ& value) {
    const bool boiling = value.PRPCODE == "TB" && value.nVar == 0 && !HasTag(value.Header, "PB");
    if (!boiling && !HasTag(value.Header, "FP")) return false;
    return value.nVar == 0 || value.Variable() != "P";
}

void ExportProperty(XmlWriter& xml, const clsZ& value, const std::string& group) {
    xml.Open("Property");
    ExportPropertyHead(xml, NameOf(value), group, value.PHASE1, value.Header);
    // Single values are not stated relative to another state.
    xml.Element("ePresentation", "Direct value, X");
    value.Statements(0).ExportX(xml, "Prop");
    xml.Close();
}

ExportUnit PropertyUnitOf(const clsZ& value) {
    return {value.PropertyConversion(), value.isOriginalUnit};
}

/// A variable is intensive and needs no molar mass.
ExportUnit VariableUnitOf(const clsZ& value) {
    ExportUnit unit{value.VariableConversion(1), value.isOriginalUnit};
    unit.wavelength = value.Variable() == "WL";
    return unit;
}

/// A value with its statements; false when a repeatability was announced but has no figure.
bool ExportQuantity(XmlWriter& xml, const std::string& role, const std::string& typed,
                    const clsX& item, const ExportUnit& unit) {
    const ExportNumber number = ExportedValue(typed, unit);
    xml.Element("n" + role + "Number", "1");
    xml.Element("n" + role + "Value", number.text);
    xml.Element("n" + role + "Digits", std::to_string(number.digits));
    return ExportStatements(xml, item, role, typed, unit);
}

void ExportValues(XmlWriter& xml, const clsZ& value) {
    bool whole = true;
    xml.Open("NumValues");
    if (value.nVar == 1) {
        xml.Open("VariableValue");
        whole = ExportQuantity(xml, "Var", value.INDVARIABLE, value.Statements(1),
                               VariableUnitOf(value));
        xml.Close();
    }
    xml.Open("PropertyValue");
    // Both are written before the fault is told.
    whole &=
        ExportQuantity(xml, "Prop", value.PRPVALUE, value.Statements(0), PropertyUnitOf(value));
    xml.Close();
    xml.Close();
    if (!whole) TellDataError(NameOf(value), "Missing repeatability in ");
}

// Why the value cannot leave, in words for the user; empty when it can.
std::string FaultOf(const clsZ& value, const std::string& group) {
    const bool fixed = value.nVar == 1;
    const auto hasNoPlace = [](const std::string& element, const std::string& name) {
        return !IsXmlName(element) || name.empty();
    };
    if (hasNoPlace(group, XMLPropertyName(value.PRPCODE, value.DataContext()))) {
        return NoPlaceInExport;
    }
    const std::string variable = value.Variable();
    if (fixed && hasNoPlace(XMLVariableGroup(variable), XMLVariableName(variable)))
        return NoPlaceInExport;
    const auto isNumber = [](const std::string& text) { return IsNumeric(NormalizeNumber(text)); };
    if (!isNumber(value.PRPVALUE)) return "The value is no number: " + value.PRPVALUE;
    if (fixed && !isNumber(value.INDVARIABLE)) {
        return "The variable is no number: " + value.INDVARIABLE;
    }
    const std::string fault = ConversionFault(PropertyUnitOf(value));
    // The property's fault first: it is what the user looks for.
    return fault.empty() && fixed ? ConversionFault(VariableUnitOf(value)) : fault;
}

} // namespace

void clsZ::ExportZ(XmlWriter& xml) const {
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    const std::string group = XMLPropertyGroup(PRPCODE, DataContext());
    const std::string fault = FaultOf(*this, group);
    if (!fault.empty()) return TellDataError(NameOf(*this), fault);
    xml.Open("PureOrMixtureData");
    ExportComponent(xml, *Parent->Parent, SMPNM);
    ExportOrigin(xml, Header);
    ExportProperty(xml, *this, group);
    ExportPhases(xml, PRPCODE, Header, {PHASE1, PhaseBeside(), PHASE3});
    if (IsUnderOneAtmosphere(*this)) ExportAtmosphere(xml);
    if (nVar == 1) ExportVariable(xml, 1, Variable(), PHASE1, Statements(1));
    ExportValues(xml, *this);
    xml.Close();
}

} // namespace vexora
