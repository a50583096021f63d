// What the property changes and the equilibria of a reaction share in the export.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "export/DataHead.h"
#include "records/clsQ.h"

namespace vexora {

class clsC;
class clsE;

/// A participant with what the data say of it. A place without a compound or a coefficient has
/// none.
struct ReactionParticipant {
    int place = 0;                       // in the reaction, from 1
    std::shared_ptr<Substance> compound; // null for one that the source does not describe
    std::string coefficient, sample;
    std::vector<std::string> phases;
    std::string composition, content; // code of its kind and value, both or neither
};
using ReactionParticipants = std::vector<ReactionParticipant>;

ReactionParticipants ParticipantsOf(const clsC& value);
/// The last two are those of the reaction.
ReactionParticipants ParticipantsOf(const clsE& set);

/// The components are the places of the reaction, so that codes find their participant; places
/// without one are null. Holds as long as the participants do.
template <class Data>
DataSubject SubjectOf(const Data& data, const ReactionParticipants& participants) {
    std::vector<SystemComponent> components(clsQ::MostParticipants);
    for (const ReactionParticipant& one : participants)
        components[static_cast<std::size_t>(one.place - 1)] = {one.compound.get(), one.sample};
    return SubjectOf(data, std::move(components));
}

/// Why data of this reaction cannot leave, in words for the user, or empty.
std::string ReactionFault(const clsQ& reaction, const DataSubject& subject, const clsA& header,
                          const ReactionParticipants& participants);
/// Opens the element of a value or set: number, purpose, participants, compiler, kind of reaction.
void OpenReaction(XmlWriter& xml, const clsQ& reaction, const ReactionParticipants& participants,
                  const clsA& header);
/// Opens the property: name, method, solvent and catalyst.
void OpenReactionProperty(XmlWriter& xml, const clsQ& reaction, const DataSubject& subject,
                          const clsA& header);

/// Who takes part, with what the data say of it.
void ExportParticipant(XmlWriter& xml, const ReactionParticipant& one);
/// Why a typed number cannot leave, in words for the user, or empty; what names the number.
std::string NumberFault(const std::string& what, const std::string& typed);

/// What the final state of a value that leaves has besides the initial one: the format keeps one
/// state only.
std::vector<std::string> FinalStateWarnings(const clsC& value);

} // namespace vexora
