#include "records/clsZ.h"

#include <algorithm>
#include <vector>

#include "chem/CommentTags.h"
#include "export/ExportDocument.h"
#include "export/RegNum.h"
#include "export/Statements.h"
#include "export/XmlWriter.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

void TellDataError(const clsZ& value, const std::string& fault) {
    ui::Say(fault + "\nSystem: " + value.Parent->Parent->ShowKey() +
                "\nProperty: " + PropertyName(value.PRPCODE, "Pure"),
            "Data Error!");
}

bool HasTag(const clsZ& value, std::string_view tag) {
    return CommentTagPart(value.Header.DATACOMMENT).find(tag) != std::string::npos;
}

// The text of a tag behind ":Name:", up to the next colon.
std::string TagText(const clsZ& value, std::string_view tag) {
    const std::string tags = CommentTagPart(value.Header.DATACOMMENT);
    const std::size_t at = tags.find(tag);
    if (at == std::string::npos) return {};
    const std::size_t from = at + tag.size();
    return tags.substr(from, tags.find(':', from) - from);
}

bool IsBoilingProperty(std::string_view code) {
    return code == "PV" || code == "TB" || code == "HVP";
}

void ExportOrigin(XmlWriter& xml, const clsZ& value) {
    xml.Open("Component");
    ExportRegNum(xml, *value.Parent->Parent);
    xml.Element("nSampleNm", Trim(value.Parent->SMPNM));
    xml.Close();
    xml.ElementIfAny("eExpPurpose", TextOfCode(ExperimentPurposes(), value.Header.EXPPURPOSE));
    xml.ElementIfAny("sCompiler", Globals().UserName);
    xml.ElementIfAny("sContributor", Globals().Organization);
    xml.ElementIfAny("dateDateAdded", IsoDate(value.Header.DATEADDED));
}

void ExportMethod(XmlWriter& xml, const clsZ& value) {
    const std::string code = TagText(value, ":Method:");
    if (code == "UNKNOWN") return;
    if (code.empty() || code == "OTHER") {
        xml.ElementIfAny("sMethodName", Trim(TagText(value, ":sMethod:")));
    } else {
        xml.ElementIfAny("eMethodName", XMLMethod(code, value.PRPCODE));
    }
}

void ExportProperty(XmlWriter& xml, const clsZ& value, const std::string& group) {
    xml.Open("Property");
    xml.Element("nPropNumber", "1");
    xml.Open("Property-MethodID");
    xml.Open("PropertyGroup");
    xml.Open(group);
    xml.Element("ePropName", XMLPropertyName(value.PRPCODE, "Pure"));
    ExportMethod(xml, value);
    xml.Close();
    xml.Close();
    xml.Close();
    xml.Open("PropPhaseID");
    xml.Element("ePropPhase", PhaseName(value.PHASE1));
    xml.Close();
    xml.Element("ePresentation", "Direct value, X");
    value.UX[0].ExportX(xml, "Prop");
    xml.Close();
}

std::vector<std::string> PhasesOf(const clsZ& value) {
    std::vector<std::string> phases;
    const auto add = [&phases](const std::string& code) {
        const bool known = std::find(phases.begin(), phases.end(), code) != phases.end();
        if (!IsBlankField(code) && !known) phases.push_back(code);
    };
    add(value.PHASE1);
    add(value.PHASE2);
    add(value.PHASE3);
    const bool fixedPressure = HasTag(value, ":FP:");
    if (HasTag(value, ":PB:") || (IsBoilingProperty(value.PRPCODE) && !fixedPressure)) add("G");
    return phases;
}

void ExportPhases(XmlWriter& xml, const clsZ& value) {
    for (const std::string& phase : PhasesOf(value)) {
        xml.Open("PhaseID");
        xml.Element("ePhase", PhaseName(phase));
        xml.Close();
    }
}

// A boiling temperature without a pressure was measured under one atmosphere, and so was what is
// marked as being at fixed pressure.
void ExportAtmosphere(XmlWriter& xml, const clsZ& value) {
    const bool boiling = value.PRPCODE == "TB" && value.nVar == 0 && !HasTag(value, ":PB:");
    if (!boiling && !HasTag(value, ":FP:")) return;
    if (value.nVar == 1 && value.Variable() == "P") return;
    xml.Open("Constraint");
    xml.Open("ConstraintID");
    xml.Open("ConstraintType");
    xml.Element("ePressure", "Pressure, kPa");
    xml.Close();
    xml.Close();
    xml.Element("nConstraintValue", "101.325");
    xml.Element("nConstrDigits", "6");
    xml.Close();
}

void ExportVariable(XmlWriter& xml, const clsZ& value) {
    if (value.nVar != 1) return;
    const std::string code = value.Variable();
    xml.Open("Variable");
    xml.Element("nVarNumber", "1");
    xml.Open("VariableID");
    xml.Open("VariableType");
    xml.Element(XMLVariableGroup(code), XMLVariableName(code));
    xml.Close();
    xml.Close();
    xml.Open("VarPhaseID");
    xml.Element("eVarPhase", PhaseName(value.PHASE1));
    xml.Close();
    value.UX[1].ExportX(xml, "Var");
    xml.Close();
}

ExportUnit PropertyUnitOf(const clsZ& value) {
    return {value.PROPERTY_UNIT, value.Factor, MolarMassOfRN(value.Parent->Parent->RN),
            value.isOriginalUnit};
}

ExportUnit VariableUnitOf(const clsZ& value) {
    ExportUnit unit{value.VARIABLE_UNIT, 0, 0, value.isOriginalUnit};
    unit.wavelength = value.Variable() == "WL";
    return unit;
}

void ExportVariableValue(XmlWriter& xml, const clsZ& value) {
    const ExportUnit unit = VariableUnitOf(value);
    const ExportNumber number = ExportedValue(value.INDVARIABLE, unit);
    xml.Open("VariableValue");
    xml.Element("nVarNumber", "1");
    xml.Element("nVarValue", number.text);
    xml.Element("nVarDigits", std::to_string(number.digits));
    if (ExportStatements(xml, value.UX[1], "Var", value.INDVARIABLE, unit)) {
        TellDataError(value, "Missing repeatability in ");
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
        TellDataError(value, "Missing repeatability in ");
    }
    xml.Close();
    xml.Close();
}

} // namespace

void clsZ::ExportZ(XmlWriter& xml) const {
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    const std::string group = XMLPropertyGroup(PRPCODE, "Pure");
    if (!IsXmlName(group) || (nVar == 1 && !IsXmlName(XMLVariableGroup(Variable())))) {
        TellDataError(*this, "The reference tables have no place for these data in the export");
        return;
    }
    if (!IsConvertible(PropertyUnitOf(*this))) {
        TellDataError(*this, "Molar mass of the compound is not known");
        return;
    }
    xml.Open("PureOrMixtureData");
    ExportOrigin(xml, *this);
    ExportProperty(xml, *this, group);
    ExportPhases(xml, *this);
    ExportAtmosphere(xml, *this);
    ExportVariable(xml, *this);
    ExportValues(xml, *this);
    xml.Close();
}

} // namespace vexora
