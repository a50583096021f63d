#include "export/ReactionParts.h"

#include "export/RegNum.h"
#include "export/Statements.h"
#include "export/XmlWriter.h"
#include "records/RegistryNumbers.h"
#include "records/clsA.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// A complex as well.
std::shared_ptr<Substance> CompoundOf(const clsQ& reaction, const std::string& rn) {
    return reaction.Parent && !NamesNoCompound(rn) ? reaction.Parent->FindSubstance(rn) : nullptr;
}

bool IsNone(std::string_view coefficient) {
    return IsBlankField(coefficient) || (IsNumeric(coefficient) && Val(coefficient) == 0);
}

/// The participant at a place; nothing at one without.
template <class Fill>
ReactionParticipants Participants(const clsQ* reaction, Fill fill) {
    ReactionParticipants participants;
    for (int i = 1; reaction != nullptr && i <= clsQ::MostParticipants; ++i) {
        if (reaction->RN(i).empty()) continue;
        ReactionParticipant one{i, CompoundOf(*reaction, reaction->RN(i)), {}, {}, {}, {}, {}};
        fill(one);
        if (!IsNone(one.coefficient)) participants.push_back(std::move(one));
    }
    return participants;
}

/// The phases of a set that name the participant.
std::vector<std::string> PhasesWith(const clsE& set, int place) {
    std::vector<std::string> phases;
    for (int i = 1; i <= clsE::Places; ++i) {
        const bool isThere =
            set.COMPONENTS_IN_PHASE(i).find(std::to_string(place)) != std::string::npos;
        if (isThere && !IsBlankField(set.PHASE(i))) phases.push_back(set.PHASE(i));
    }
    return phases;
}

/// What is there without taking part.
void ExportBystander(XmlWriter& xml, const char* element,
                     const std::shared_ptr<Substance>& compound) {
    if (!compound) return;
    xml.Open(element);
    ExportRegNum(xml, *compound);
    xml.Close();
}

} // namespace

std::string NumberFault(const std::string& what, const std::string& typed) {
    return IsNumeric(NormalizeNumber(typed)) ? "" : what + " is no number: " + typed;
}

void ExportParticipant(XmlWriter& xml, const ReactionParticipant& one) {
    xml.Open("Participant");
    ExportRegNum(xml, *one.compound);
    if (!IsBlankField(one.sample)) xml.Element("nSampleNm", Trim(one.sample));
    xml.Element("nStoichiometricCoef", ExportedValue(one.coefficient, {}).text);
    for (const std::string& phase : one.phases) {
        xml.Element("ePhase", PhaseText(xml, phase));
        if (xml.IsStrict()) break; // the public schema has room for one
    }
    if (!one.content.empty()) {
        const std::string text = TextOfCode(ParticipantCompositions, one.composition);
        xml.Element("eCompositionRepresentation", text.empty() ? one.composition : text);
        xml.Element("nNumericalComposition", ExportedValue(one.content, {}).text);
    }
    xml.Close();
}

ReactionParticipants ParticipantsOf(const clsC& value) {
    return Participants(value.Parent, [&value](ReactionParticipant& one) {
        const int i = one.place;
        one.coefficient = value.PARTICIPANT_COEFF(i);
        one.sample = value.SMPNM(i);
        if (!IsBlankField(value.PARTICIPANT_PHASE(i))) one.phases = {value.PARTICIPANT_PHASE(i)};
        if (IsBlankField(value.COMPOSITION(i)) || IsBlankField(value.COMPOSITION_VALUE(i))) return;
        one.composition = value.COMPOSITION(i);
        one.content = value.COMPOSITION_VALUE(i);
    });
}

ReactionParticipants ParticipantsOf(const clsE& set) {
    return Participants(set.Parent, [&set](ReactionParticipant& one) {
        const bool isOfSet = one.place <= clsE::Participants;
        one.coefficient = isOfSet ? set.PARTICIPANT_COEFF(one.place) : set.Parent->Coeff(one.place);
        one.sample = isOfSet ? set.SMPNM(one.place) : set.Parent->SMPNM(one.place);
        one.phases = PhasesWith(set, one.place);
    });
}

std::string ReactionFault(const clsQ& reaction, const DataSubject& subject, const clsA& header,
                          const ReactionParticipants& participants) {
    if (participants.empty()) return "No coefficients of the participants are stated";
    for (const ReactionParticipant& one : participants) {
        const std::string name = reaction.Name(one.place);
        if (!one.compound) return "Participant of reaction not described: " + name;
        std::string fault = NumberFault("The coefficient of " + name, one.coefficient);
        if (fault.empty() && !one.content.empty())
            fault = NumberFault("The composition of " + name, one.content);
        if (!fault.empty()) return fault;
    }
    for (const std::string& rn : {reaction.SOLVENTRN, reaction.INERTRN})
        if (!NamesNoCompound(rn) && !CompoundOf(reaction, rn))
            return "Solvent or catalyst of reaction not described: " + rn;
    const PropertyRow* const property = FindProperty(subject.propertyCode, subject.context);
    if (!property || !property->REACT || !subject.HasPlace()) return NoPlaceInExport;
    // Rather no values than values under a wrong meaning.
    return HasTag(header, "L") ? "Values reported as log(K) have no place in the export" : "";
}

void OpenReaction(XmlWriter& xml, const clsQ& reaction, const ReactionParticipants& participants,
                  const clsA& header) {
    xml.Open("ReactionData");
    xml.Element("nReactionDataNumber", std::to_string(xml.NextNumber("ReactionData")));
    ExportPurpose(xml, header);
    for (const ReactionParticipant& one : participants)
        ExportParticipant(xml, one);
    ExportCompiler(xml, header);
    xml.ElementIfAny("eReactionType", ReactionType(reaction.REACTCLASS));
}

void OpenReactionProperty(XmlWriter& xml, const clsQ& reaction, const DataSubject& subject,
                          const clsA& header) {
    xml.Open("Property");
    ExportPropertyHead(xml, subject, {}, header); // phases are those of the participants
    ExportBystander(xml, "Solvent", CompoundOf(reaction, reaction.SOLVENTRN));
    ExportBystander(xml, "Catalyst", CompoundOf(reaction, reaction.INERTRN));
}

} // namespace vexora
