#include "records/clsTwo.h"

#include "export/Constants.h"
#include "export/DataHead.h"
#include "export/SetRows.h"
#include "export/XmlWriter.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

// A boiling temperature without a pressure was measured under one atmosphere, and so was what is
// marked as being at fixed pressure.
bool IsUnderOneAtmosphere(const clsTwo& set) {
    // A pressure that the set gives itself goes before the assumption.
    const bool isPressure = set.HasVariable("P") || set.PRPCODE == "PV" || set.PRPCODE == "P";
    if (isPressure || !set.ConstantOf("P").empty()) return false;
    const bool boils = set.PRPCODE == "TB" && !HasTag(set.Header, "PB");
    return boils || HasTag(set.Header, "FP");
}

/// The tables say of each property against how many variables it may stand.
bool HasPlace(const clsTwo& set) {
    return !PureAvailable(set.PRPCODE, set.nVar == 1 ? "One" : "Two").empty();
}

} // namespace

void clsTwo::ExportAll(XmlWriter& xml) const {
    // A set outside a document has no compound to refer to.
    // Data of a complex do not leave.
    const auto* const compound = dynamic_cast<const clsL*>(Parent ? Parent->System() : nullptr);
    if (compound == nullptr) return;
    if (IsWithoutNumbers(*this)) return; // named behind all others
    const DataSubject subject = SubjectOf(*this, {{compound, SMPNM}});
    SetRows rows(*this);
    const std::string fault = HasPlace(*this) ? rows.Fault(subject) : NoPlaceInExport;
    if (!fault.empty()) return TellDataError(subject, fault);
    OpenData(xml, subject, Header);
    xml.Open("Property");
    ExportPropertyHead(xml, subject, PHASE1, Header);
    rows.ExportDefinition(xml, subject, REF_TEMP, REF_PRESSURE, REF_PHASE);
    rows.quantities[0].item.ExportX(xml, "Prop");
    xml.Close();
    ExportPhases(xml, subject, PhasesOfPure(PRPCODE, Header, Phases()));
    ExportConstants(xml, subject, ConstantsOf(*this));
    if (IsUnderOneAtmosphere(*this)) ExportAtmosphere(xml, subject);
    rows.ExportVariables(xml, subject);
    rows.ExportRows(xml, subject);
    xml.Close();
}

} // namespace vexora
