#include "records/clsBR.h"

#include "export/BioParts.h"
#include "export/DataHead.h"
#include "export/ReactionParts.h"
#include "export/XmlWriter.h"
#include "records/Substance.h"
#include "records/clsR.h"
#include "reference/KVODefinitions.h"
#include "reference/Text.h"

namespace vexora {

namespace {

// Texts of the schema (eStandardState) for apparent constants: the state follows from the measure
// of content that they are made of.
constexpr CodeText StandardStateTexts[] = {
    {"Hypothetical unit molality solute", "KM"},
    {"Hypothetical unit molarity solute", "KJ"},
    {"Hypothetical pure solute", "KX"},
};

ReactionParticipants BioParticipants(const clsBR& set) {
    ReactionParticipants participants;
    for (const BioParticipant& one : set.Participants) {
        ReactionParticipant& participant = participants.emplace_back();
        participant.place = static_cast<int>(participants.size());
        participant.compound = set.Parent->FindSubstance(one.RN);
        participant.coefficient = one.coefficient;
        participant.sample = one.SMPNM;
        if (!IsBlankField(one.phase)) participant.phases = {one.phase};
    }
    return participants;
}

std::string FaultOf(const clsBR& set, const ReactionParticipants& participants,
                    const BioParts& parts) {
    if (participants.empty()) return "No coefficients of the participants are stated";
    for (const ReactionParticipant& one : participants) {
        const std::string& rn = set.Participants[static_cast<std::size_t>(one.place - 1)].RN;
        const std::string name = set.CompoundName(rn);
        if (!one.compound) return "Participant of reaction not described: " + name;
        std::string fault = NumberFault("The coefficient of " + name, one.coefficient);
        if (!fault.empty()) return fault;
    }
    return parts.Fault();
}

} // namespace

void clsBR::ExportAll(XmlWriter& xml) const {
    // A set outside a document has no compounds to refer to.
    if (Parent == nullptr) return;
    const ReactionParticipants participants = BioParticipants(*this);
    const BioParts parts(*this);
    if (parts.TellsFault(FaultOf(*this, participants, parts))) return;
    xml.Open("ReactionData");
    xml.Element("nReactionDataNumber", std::to_string(xml.NextNumber("ReactionData")));
    for (const ReactionParticipant& one : participants)
        ExportParticipant(xml, one);
    parts.ExportComponents(xml);
    ExportPurpose(xml, Header);
    ExportCompiler(xml, Header);
    xml.Element("eReactionType", "Other reactions");
    for (const BioParts::Quantity& property : parts.Of(BioRole::Property)) {
        parts.OpenProperty(xml, property,
                           {std::string(property.text->group),
                            IsBlankField(Method) ? "Error" : Method, property.stated.component});
        xml.ElementIfAny("eStandardState", TextOfCode(StandardStateTexts, property.stated.code));
        BioParts::CloseProperty(xml, property);
    }
    parts.ExportNumbers(xml);
    xml.Close();
}

} // namespace vexora
