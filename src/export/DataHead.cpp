#include "export/DataHead.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "export/ExportDocument.h"
#include "export/RegNum.h"
#include "export/XmlWriter.h"
#include "globals/KVOGlobal.h"
#include "records/OpenRecord.h"
#include "records/ReactionText.h"
#include "records/Substance.h"
#include "records/clsX.h"
#include "reference/KVODefinitions.h"
#include "reference/MixtureCodes.h"
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

/// By its number in the file; nothing for a component that the system has not, 0 among them. Of a
/// pure compound there is nothing to tell apart.
void ExportCompound(XmlWriter& xml, const DataSubject& subject, int n) {
    const auto& components = subject.components;
    if (components.size() < 2 || n < 1 || n > static_cast<int>(components.size())) return;
    const Substance* const compound = components[static_cast<std::size_t>(n - 1)].compound;
    if (compound != nullptr) ExportRegNum(xml, *compound);
}

bool IsOfReaction(const DataSubject& subject) {
    return subject.context == "React";
}

} // namespace

bool DataSubject::HasPlace() const {
    return IsXmlName(PropertyGroup()) && !PropertyName().empty();
}

bool VariableHasPlace(std::string_view code) {
    return IsXmlName(XMLVariableGroup(code)) && !XMLVariableName(code).empty();
}

std::string CodeInTables(const DataSubject& subject, std::string_view code) {
    return IsOfReaction(subject) ? ParticipantCodeOf(code).code : std::string(code);
}

void TellDataError(const DataSubject& subject, const std::string& fault) {
    const std::string name =
        PropertyName(subject.propertyCode, subject.context, subject.propertyContext);
    TellDataError(subject.system, name.empty() ? std::string(subject.propertyCode) : name, fault);
}

void TellDataError(const std::string& system, const std::string& property,
                   const std::string& fault) {
    ui::Say(fault + "\nSystem: " + system + "\nProperty: " + property, "Data Error!");
}

bool HasTag(const clsA& header, std::string_view tag) {
    return CommentTags(header.DATACOMMENT).Has(tag);
}

void ExportRecord(XmlWriter& xml, const OpenRecord& data) {
    Globals().LineInHand = data.Line;
    xml.Mark(&data);
    data.ExportAll(xml);
}

void OpenData(XmlWriter& xml, const DataSubject& subject, const clsA& header) {
    xml.Open("PureOrMixtureData");
    xml.Element("nPureOrMixtureDataNumber", std::to_string(xml.NextNumber("PureOrMixtureData")));
    for (const SystemComponent& component : subject.components) {
        xml.Open("Component");
        ExportRegNum(xml, *component.compound);
        xml.Element("nSampleNm", Trim(component.sample));
        xml.Close();
    }
    ExportPurpose(xml, header);
    ExportCompiler(xml, header);
}

void ExportPurpose(XmlWriter& xml, const clsA& header) {
    xml.ElementIfAny("eExpPurpose", TextOfCode(ExperimentPurposes, header.EXPPURPOSE));
}

void ExportCompiler(XmlWriter& xml, const clsA& header) {
    xml.ElementIfAny("sCompiler", Globals().UserName);
    xml.ElementIfAny("sContributor", Globals().Organization);
    xml.ElementIfAny("dateDateAdded", IsoDate(header.DATEADDED));
}

void ExportPropertyHead(XmlWriter& xml, const DataSubject& subject, std::string_view phase,
                        const clsA& header) {
    xml.Element("nPropNumber", "1");
    xml.Open("Property-MethodID");
    xml.Open("PropertyGroup");
    xml.Open(subject.PropertyGroup());
    xml.Element("ePropName", subject.PropertyName());
    ExportMethod(xml, subject.propertyCode, header);
    xml.Close();
    xml.Close();
    ExportComponentOf(xml, subject, subject.propertyCode);
    xml.Close();
    ExportPhase(xml, subject, "PropPhaseID", "ePropPhase", phase);
}

void ExportComponentOf(XmlWriter& xml, const DataSubject& subject, std::string_view code) {
    ExportCompound(xml, subject,
                   IsOfReaction(subject) ? ParticipantCodeOf(code).participant : ComponentOf(code));
}

void ExportSolvent(XmlWriter& xml, const DataSubject& subject, std::string_view code) {
    if (!NeedsSolvent(code)) return;
    // The public schema has one element for all of them.
    const std::vector<int> components = ComponentsOfSolvent(subject.solvent);
    const int most = static_cast<int>(subject.components.size());
    if (components.empty() || components.back() > most) return;
    xml.Open("Solvent");
    for (const int n : components) {
        if (n != components.front() && !xml.IsStrict()) {
            xml.Close();
            xml.Open("Solvent");
        }
        ExportCompound(xml, subject, n);
    }
    xml.Close();
}

std::string PhaseText(const XmlWriter& xml, std::string_view phase) {
    const std::string publicName = xml.IsStrict() ? TextOfCode(PublicPhases, phase) : std::string();
    const std::string name = publicName.empty() ? PhaseName(phase) : publicName;
    return name.empty() ? std::string(phase) : name;
}

void ExportPhase(XmlWriter& xml, const DataSubject& subject, std::string_view element,
                 std::string_view inner, std::string_view phase) {
    if (IsBlankField(phase)) return;
    const bool ofComponent = phase.size() == 3 && phase.starts_with("Cp");
    xml.Open(element);
    xml.Element(inner, PhaseText(xml, ofComponent ? phase.substr(0, 1) : phase));
    if (ofComponent) ExportComponentOf(xml, subject, phase);
    xml.Close();
}

void ExportPhases(XmlWriter& xml, const DataSubject& subject,
                  const std::vector<std::string>& phases) {
    for (auto phase = phases.begin(); phase != phases.end(); ++phase)
        // Sets state the same phase at several places.
        if (std::find(phases.begin(), phase, *phase) == phase)
            ExportPhase(xml, subject, "PhaseID", "ePhase", *phase);
}

std::vector<std::string> PhasesOfPure(std::string_view code, const clsA& header,
                                      std::vector<std::string> phases) {
    // A value marked as under one atmosphere states its own phases.
    const bool boils = IsBoilingProperty(code) && !HasTag(header, "FP");
    if (HasTag(header, "PB") || boils) phases.emplace_back("G");
    return phases;
}

void ExportVariable(XmlWriter& xml, const DataSubject& subject, int number, const std::string& code,
                    std::string_view phase, const clsX& item) {
    xml.Open("Variable");
    xml.Element("nVarNumber", std::to_string(number));
    xml.Open("VariableID");
    xml.Open("VariableType");
    const std::string inTables = CodeInTables(subject, code);
    xml.Element(XMLVariableGroup(inTables), XMLVariableName(inTables));
    xml.Close();
    ExportComponentOf(xml, subject, code);
    xml.Close();
    ExportPhase(xml, subject, "VarPhaseID", "eVarPhase", phase);
    ExportSolvent(xml, subject, code);
    item.ExportX(xml, "Var");
    xml.Close();
}

} // namespace vexora
