#include "records/clsMZ.h"

#include "export/Constants.h"
#include "export/MixtureParts.h"
#include "export/SingleValues.h"
#include "export/XmlWriter.h"
#include "records/clsMV.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

namespace {

/// What is told of a boiling, melting, azeotropic or eutectic state.
bool IsOfTransition(std::string_view code) {
    const bool isComposition = code.size() == 3 && code[2] >= '1' && code[2] <= '3';
    return IsOneOf(isComposition ? code.substr(0, 2) : code,
                   {"T", "TB", "TE", "TA", "PA", "XA", "WA", "XE", "WE"});
}

/// A state open to the air, or marked as being at fixed pressure; a vapour has a pressure of its
/// own.
bool IsUnderOneAtmosphere(const clsMZ& value) {
    const std::vector<std::string> phases = value.Phases();
    const auto has = [&](const char* phase) {
        return std::ranges::find(phases, phase) != phases.end();
    };
    return !has("G") && IsOfTransition(value.PRPCODE) && (HasTag(value.Header, "FP") || has("air"));
}

/// The kind of equilibrium that the phases make, told as of a set with them.
std::string ContextOf(const clsMZ& value) {
    const std::vector<std::string> phases = value.Phases();
    if (phases.empty()) return {};
    clsMV set;
    set.MixType = 3; // the most phases that a set can have
    set.PRPCODE = value.PRPCODE;
    set.PHASE1 = phases[0];
    for (std::size_t i = 1; i < phases.size() && i <= set.Constraints.size(); ++i)
        set.Constraints[i - 1].code = phases[i];
    return set.Context();
}

/// The composition at which solids form is that of the liquid.
std::string PhaseOfProperty(const DataSubject& subject, const clsMZ& value) {
    const bool isEutectic = subject.PropertyName().find("tectic") != std::string::npos;
    return isEutectic ? std::string("L") : value.PHASE(1);
}

std::string FaultOf(const clsMZ& value, const DataSubject& subject) {
    std::string fault = SystemFault(*value.Parent, subject);
    // What is measured against variables may be known at a single point as well.
    const bool isOffered = !MixtureAvailable(value.PRPCODE, "MixZ").empty() ||
                           !MixtureAvailable(value.PRPCODE, "MixV").empty();
    if (fault.empty() && !isOffered) fault = NoPlaceInExport;
    if (fault.empty() && value.NeedsMolarMass()) fault = NoMolarMass;
    return fault.empty() ? ValueFault(subject, value) : fault;
}

} // namespace

void clsMZ::ExportMZ(XmlWriter& xml) const {
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    const DataSubject subject = SubjectOf(*this, ComponentsOf(*Parent, *this), ContextOf(*this));
    const std::string fault = FaultOf(*this, subject);
    if (!fault.empty()) return TellDataError(subject, fault);
    OpenData(xml, subject, Header);
    const clsX item = Statements(0);
    ExportDirectProperty(xml, subject, *this, item, PhaseOfProperty(subject, *this));
    ExportPhases(xml, subject, PhasesOfMixture(subject, Phases()));
    // A state that is told goes before the assumption.
    const std::vector<ExportedConstant> constants = ConstantsOf(*this);
    ExportConstants(xml, subject, constants);
    if (constants.empty() && IsUnderOneAtmosphere(*this)) ExportAtmosphere(xml, subject);
    xml.Open("NumValues");
    const bool isWhole = ExportPropertyValue(xml, *this, item);
    xml.Close();
    if (!isWhole) TellDataError(subject, NoRepeatability);
    xml.Close();
}

} // namespace vexora
