#include "records/clsE.h"

#include "export/Constants.h"
#include "export/ReactionParts.h"
#include "export/SetRows.h"
#include "export/XmlWriter.h"
#include "records/ReactionText.h"
#include "reference/KVODefinitions.h"

#include <algorithm>

namespace vexora {

namespace {

// Texts of the schema (eStandardState), which names other states than the dialogs do.
constexpr CodeText StandardStateTexts[] = {
    {"Pure compound", "P"},
    {"Hypothetical pure solute", "L"},
    {"Hypothetical unit molality solute", "M"},
    {"Hypothetical unit molarity solute", "J"},
    {"Infinite dilution solute", "I"},
};

/// A quantity of what takes no part in the reaction.
bool HasStrangeCode(const clsE& set, const ReactionParticipants& participants) {
    const auto isStrange = [&participants](std::string_view code) {
        const int place = ParticipantCodeOf(code).participant;
        return place != 0 && std::ranges::find(participants, place, &ReactionParticipant::place) ==
                                 participants.end();
    };
    for (int n = 1; n <= set.nVar; ++n)
        if (isStrange(set.VARIABLE(n))) return true;
    const auto constants = set.Constants();
    return std::ranges::any_of(constants, isStrange, &HeldConstant::code);
}

std::string FaultOf(const clsE& set, const DataSubject& subject,
                    const ReactionParticipants& participants,
                    const std::vector<ExportedConstant>& constants, SetRows& rows) {
    std::string fault = ReactionFault(*set.Parent, subject, set.Header, participants);
    if (fault.empty() && HasStrangeCode(set, participants)) fault = NoPlaceInExport;
    if (fault.empty()) fault = rows.Fault(subject);
    return fault.empty() ? ConstantFault(subject, constants) : fault;
}

} // namespace

void clsE::ExportE(XmlWriter& xml) const {
    // A set outside a document has no compounds to refer to.
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    if (IsWithoutNumbers(*this)) return; // named behind all others
    const ReactionParticipants participants = ParticipantsOf(*this);
    const DataSubject subject = SubjectOf(*this, participants);
    const std::vector<ExportedConstant> constants = ConstantsOf(*this);
    SetRows rows(*this);
    const std::string fault = FaultOf(*this, subject, participants, constants, rows);
    if (!fault.empty()) return TellDataError(subject, fault);
    OpenReaction(xml, *Parent, participants, Header);
    OpenReactionProperty(xml, *Parent, subject, Header);
    xml.ElementIfAny("eStandardState", TextOfCode(StandardStateTexts, STANDARD_STATE));
    rows.quantities[0].item.ExportX(xml, "Prop");
    xml.Close();
    ExportConstants(xml, subject, constants);
    rows.ExportVariables(xml, subject);
    rows.ExportRows(xml, subject);
    xml.Close();
}

} // namespace vexora
