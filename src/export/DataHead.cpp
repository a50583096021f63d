#include "export/DataHead.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "export/ExportDocument.h"
#include "export/RegNum.h"
#include "export/XmlWriter.h"
#include "globals/KVOGlobal.h"
#include "records/clsA.h"
#include "records/clsL.h"
#include "records/clsX.h"
#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

// Words of the public schema (ePhase) that are not those of the house.
constexpr CodeText PublicPhases[] = {{"Fluid (supercritical or subcritical phases)", "FL"}};

/// Their liquid is in equilibrium with its vapour, which records need not state.
bool IsBoilingProperty(std::string_view code) {
    return code == "PV" || code == "TB" || code == "HVP";
}

/// A method of the tables leaves as one of the schema's texts, any other in the author's words or
/// by its code; what the paper does not state is not guessed.
void ExportMethod(XmlWriter& xml, std::string_view propertyCode, const clsA& header) {
    const CommentTags tags(header.DATACOMMENT);
    const std::string code = tags.Value("Method");
    if (code == "UNKNOWN") return;
    if (code.empty() || code == "OTHER") {
        xml.ElementIfAny("sMethodName", tags.TrimmedValue("sMethod"));
    } else {
        const std::string text = XMLMethod(code, propertyCode);
        xml.Element(text.empty() ? "sMethodName" : "eMethodName", text.empty() ? code : text);
    }
}

} // namespace

void TellDataError(const DataName& data, const std::string& fault) {
    const std::string name = PropertyName(data.propertyCode, data.context);
    ui::Say(fault + "\nSystem: " + data.system +
                "\nProperty: " + (name.empty() ? std::string(data.propertyCode) : name),
            "Data Error!");
}

bool HasTag(const clsA& header, std::string_view tag) {
    return CommentTags(header.DATACOMMENT).Has(tag);
}

void ExportComponent(XmlWriter& xml, const clsL& compound, std::string_view sample) {
    xml.Open("Component");
    ExportRegNum(xml, compound);
    xml.Element("nSampleNm", Trim(sample));
    xml.Close();
}

void ExportOrigin(XmlWriter& xml, const clsA& header) {
    xml.ElementIfAny("eExpPurpose", TextOfCode(ExperimentPurposes, header.EXPPURPOSE));
    xml.ElementIfAny("sCompiler", Globals().UserName);
    xml.ElementIfAny("sContributor", Globals().Organization);
    xml.ElementIfAny("dateDateAdded", IsoDate(header.DATEADDED));
}

void ExportPropertyHead(XmlWriter& xml, const DataName& data, const std::string& group,
                        std::string_view phase, const clsA& header) {
    xml.Element("nPropNumber", "1");
    xml.Open("Property-MethodID");
    xml.Open("PropertyGroup");
    xml.Open(group);
    xml.Element("ePropName", XMLPropertyName(data.propertyCode, data.context));
    ExportMethod(xml, data.propertyCode, header);
    xml.Close();
    xml.Close();
    xml.Close();
    ExportPhase(xml, "PropPhaseID", "ePropPhase", phase);
}

void ExportPhase(XmlWriter& xml, std::string_view element, std::string_view inner,
                 std::string_view phase) {
    if (IsBlankField(phase)) return;
    const std::string publicName = xml.IsStrict() ? TextOfCode(PublicPhases, phase) : std::string();
    const std::string name = publicName.empty() ? PhaseName(phase) : publicName;
    xml.Open(element);
    xml.Element(inner, name.empty() ? phase : name); // the code where no table knows the phase
    xml.Close();
}

void ExportPhases(XmlWriter& xml, std::string_view code, const clsA& header,
                  const std::vector<std::string>& phases) {
    std::vector<std::string_view> known;
    const auto add = [&known](std::string_view phase) {
        const bool isKnown = std::find(known.begin(), known.end(), phase) != known.end();
        // Sets state the same phase at several places.
        if (!IsBlankField(phase) && !isKnown) known.push_back(phase);
    };
    for (const std::string& phase : phases)
        add(phase);
    // A value marked as under one atmosphere states its own phases.
    const bool boils = IsBoilingProperty(code) && !HasTag(header, "FP");
    if (HasTag(header, "PB") || boils) add("G");
    for (const std::string_view phase : known)
        ExportPhase(xml, "PhaseID", "ePhase", phase);
}

void ExportConstraint(XmlWriter& xml, const std::string& group, const std::string& name,
                      const std::string& value, int digits,
                      const std::function<void()>& statements) {
    xml.Open("Constraint");
    xml.Open("ConstraintID");
    xml.Open("ConstraintType");
    xml.Element(group, name);
    xml.Close();
    xml.Close();
    xml.Element("nConstraintValue", value);
    xml.Element("nConstrDigits", std::to_string(digits));
    // Behind the value, as in the schema.
    if (statements) statements();
    xml.Close();
}

void ExportAtmosphere(XmlWriter& xml) {
    ExportConstraint(xml, "ePressure", "Pressure, kPa", "101.325", 6);
}

void ExportVariable(XmlWriter& xml, int number, const std::string& code, std::string_view phase,
                    const clsX& item) {
    xml.Open("Variable");
    xml.Element("nVarNumber", std::to_string(number));
    xml.Open("VariableID");
    xml.Open("VariableType");
    xml.Element(XMLVariableGroup(code), XMLVariableName(code));
    xml.Close();
    xml.Close();
    ExportPhase(xml, "VarPhaseID", "eVarPhase", phase);
    item.ExportX(xml, "Var");
    xml.Close();
}

} // namespace vexora
