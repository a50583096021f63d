#include "records/clsBP.h"

#include <algorithm>

#include "export/BioParts.h"
#include "export/DataHead.h"
#include "export/XmlWriter.h"
#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// The group of a property. Those of a phase equilibrium are in the tables under the property that
/// a mixture would have.
std::string GroupOf(const clsBP& set, const BioQuantityText& property) {
    if (set.PrpType != "G") return std::string(property.group);
    return XMLPropertyGroup(property.code == "X" ? "X1" : property.code, "Bin");
}

std::string FaultOf(const clsBP& set, const BioParts& parts) {
    std::string fault = parts.Fault();
    if (!fault.empty()) return fault;
    for (const BioParts::Quantity& property : parts.Of(BioRole::Property))
        if (!IsXmlName(GroupOf(set, *property.text))) return NoPlaceInExport;
    return {};
}

/// A transition begins in the first phase; other sets may name one for each quantity.
std::string PhaseOf(const clsBP& set, const BioQuantity& property) {
    const bool ofSet = set.PrpType == "D" || IsBlankField(property.phase);
    return ofSet ? set.PHASE1 : property.phase;
}

/// A solubility is the content of the substance.
const std::string& ComponentOf(const clsBP& set, const BioQuantity& property) {
    return set.PrpType == "S" && property.component.empty() ? set.RN : property.component;
}

void ExportPhasesOf(XmlWriter& xml, const clsBP& set) {
    std::vector<std::string> known;
    for (const std::string& phase : {set.PHASE1, set.PHASE2, set.PHASE3, set.PHASE4}) {
        if (std::ranges::find(known, phase) == known.end())
            ExportBioPhase(xml, "PhaseID", "ePhase", phase);
        known.push_back(phase);
    }
}

} // namespace

void clsBP::ExportAll(XmlWriter& xml) const {
    // A set outside a document has no compounds to refer to.
    if (Parent == nullptr) return;
    const BioParts parts(*this);
    if (parts.TellsFault(FaultOf(*this, parts))) return;
    xml.Open("PureOrMixtureData");
    xml.Element("nPureOrMixtureDataNumber", std::to_string(xml.NextNumber("PureOrMixtureData")));
    ExportBioComponent(xml, *parts.Member(RN), {}, SMPNM);
    parts.ExportComponents(xml);
    ExportPurpose(xml, Header);
    ExportCompiler(xml, Header);
    for (const BioParts::Quantity& property : parts.Of(BioRole::Property)) {
        parts.OpenProperty(
            xml, property,
            {GroupOf(*this, *property.text), Method, ComponentOf(*this, property.stated)});
        ExportBioPhase(xml, "PropPhaseID", "ePropPhase", PhaseOf(*this, property.stated),
                       {State1, State2});
        xml.Element("ePresentation", "Direct value, X");
        BioParts::CloseProperty(xml, property);
    }
    ExportPhasesOf(xml, *this);
    parts.ExportNumbers(xml);
    xml.Close();
}

} // namespace vexora
