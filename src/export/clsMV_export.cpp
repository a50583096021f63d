#include "records/clsMV.h"

#include "export/Constants.h"
#include "export/MixtureParts.h"
#include "export/SetRows.h"
#include "export/XmlWriter.h"
#include "reference/KVODefinitions.h"
#include "reference/MixtureCodes.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// The record bears the code; a text that is none is one of the author's.
std::string StandardStateOf(const clsMV& set) {
    if (IsBlankField(set.STANDARD_STATE)) return {};
    const std::string text = TextOfCode(StandardStates, set.STANDARD_STATE);
    return text.empty() ? Replace(set.STANDARD_STATE, "_", " ") : text;
}

/// Quantities of components that the mixture has not, and constraints that no table knows.
bool HasStrangeCodes(const clsMV& set) {
    const auto isBeyond = [&set](std::string_view code) { return ComponentOf(code) > set.MixType; };
    for (int n = 0; n <= set.nVar; ++n)
        if (isBeyond(set.VARIABLE(n))) return true;
    for (int n = 1; n <= set.ConstraintCount(); ++n) {
        const std::string& code = set.CONSTRAINT(n);
        if (code.empty() || NamesPhase(code)) continue;
        if (!IsConstraint(code) || isBeyond(code)) return true;
    }
    return false;
}

std::string FaultOf(const clsMV& set, const DataSubject& subject,
                    const std::vector<ExportedConstant>& constants, SetRows& rows) {
    std::string fault = SystemFault(*set.Parent, subject);
    const bool hasPlace = !MixtureAvailable(set.PRPCODE, "MixV").empty() && !HasStrangeCodes(set);
    if (fault.empty() && !hasPlace) fault = NoPlaceInExport;
    if (fault.empty()) fault = rows.Fault(subject);
    return fault.empty() ? ConstantFault(subject, constants) : fault;
}

void ExportProperty(XmlWriter& xml, const DataSubject& subject, const clsMV& set,
                    const SetRows& rows) {
    xml.Open("Property");
    ExportPropertyHead(xml, subject, set.PHASE1, set.Header);
    rows.ExportDefinition(xml, subject, set.REFERENCE_TEMPERATURE, set.REFERENCE_PRESSURE,
                          set.REFERENCE_PHASE);
    xml.ElementIfAny("eStandardState", StandardStateOf(set));
    ExportSolvent(xml, subject, set.PRPCODE);
    rows.quantities[0].item.ExportX(xml, "Prop");
    xml.Close();
}

} // namespace

void clsMV::ExportAll(XmlWriter& xml) const {
    // A set outside a document has no compounds to refer to.
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    if (IsWithoutNumbers(*this)) return; // named behind all others
    const DataSubject subject = SubjectOf(*this, ComponentsOf(*Parent, *this), Context(), SOLVENT);
    const std::vector<ExportedConstant> constants = ConstantsOf(*this);
    SetRows rows(*this);
    const std::string fault = FaultOf(*this, subject, constants, rows);
    if (!fault.empty()) return TellDataError(subject, fault);
    OpenData(xml, subject, Header);
    ExportProperty(xml, subject, *this, rows);
    ExportPhases(xml, subject, PhasesOfMixture(subject, Phases()));
    ExportConstants(xml, subject, constants);
    rows.ExportVariables(xml, subject);
    rows.ExportRows(xml, subject);
    xml.Close();
}

} // namespace vexora
