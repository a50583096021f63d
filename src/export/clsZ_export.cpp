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
#include "reference/Numbers.h"
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

// The name of a phase, its code where no table knows it.
std::string PhaseText(const std::string& code) {
    if (IsBlankField(code)) return {};
    const std::string name = PhaseName(code);
    return name.empty() ? code : name;
}

void ExportPhase(XmlWriter& xml, std::string_view group, std::string_view element,
                 const std::string& code) {
    if (IsBlankField(code)) return;
    xml.Open(group);
    xml.Element(element, PhaseText(code));
    xml.Close();
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
    ExportPhase(xml, "PropPhaseID", "ePropPhase", value.PHASE1);
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
    for (const std::string& phase : PhasesOf(value))
        ExportPhase(xml, "PhaseID", "ePhase", phase);
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
    ExportPhase(xml, "VarPhaseID", "eVarPhase", value.PHASE1);
    value.UX[1].ExportX(xml, "Var");
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
        whole = ExportQuantity(xml, "Var", value.INDVARIABLE, value.UX[1], VariableUnitOf(value));
        xml.Close();
    }
    xml.Open("PropertyValue");
    whole &= ExportQuantity(xml, "Prop", value.PRPVALUE, value.UX[0], PropertyUnitOf(value));
    xml.Close();
    xml.Close();
    if (!whole) TellDataError(value, "Missing repeatability in ");
}

// Why the value cannot leave, in words for the user; empty when it can.
std::string WhyNotExported(const clsZ& value, const std::string& group) {
    const bool fixed = value.nVar == 1;
    if (!IsXmlName(group) || (fixed && !IsXmlName(XMLVariableGroup(value.Variable())))) {
        return "The reference tables have no place for these data in the export";
    }
    const auto isNumber = [](const std::string& text) { return IsNumeric(NormalizeNumber(text)); };
    if (!isNumber(value.PRPVALUE)) return "The value is no number: " + value.PRPVALUE;
    if (fixed && !isNumber(value.INDVARIABLE)) {
        return "The variable is no number: " + value.INDVARIABLE;
    }
    const std::string fault = WhyNotConvertible(PropertyUnitOf(value));
    return fault.empty() && fixed ? WhyNotConvertible(VariableUnitOf(value)) : fault;
}

} // namespace

void clsZ::ExportZ(XmlWriter& xml) const {
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    const std::string group = XMLPropertyGroup(PRPCODE, "Pure");
    if (const std::string fault = WhyNotExported(*this, group); !fault.empty()) {
        TellDataError(*this, fault);
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
