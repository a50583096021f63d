#include "records/clsZ.h"

#include "export/Constants.h"
#include "export/DataHead.h"
#include "export/SingleValues.h"
#include "export/XmlWriter.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

// A boiling temperature without a pressure was measured under one atmosphere, and so was what is
// marked as being at fixed pressure.
bool IsUnderOneAtmosphere(const clsZ& value) {
    const bool boiling = value.PRPCODE == "TB" && value.nVar == 0 && !HasTag(value.Header, "PB");
    if (!boiling && !HasTag(value.Header, "FP")) return false;
    return value.nVar == 0 || value.Variable() != "P";
}

/// A variable is intensive and needs no molar mass.
ExportUnit VariableUnitOf(const clsZ& value) {
    ExportUnit unit{value.VariableConversion(1), value.isOriginalUnit};
    unit.wavelength = value.Variable() == "WL";
    return unit;
}

std::string VariableFault(const clsZ& value) {
    if (!VariableHasPlace(value.Variable())) return NoPlaceInExport;
    if (!IsNumeric(NormalizeNumber(value.INDVARIABLE)))
        return "The variable is no number: " + value.INDVARIABLE;
    return ConversionFault(VariableUnitOf(value));
}

// The property's fault first: it is what the user looks for.
std::string FaultOf(const DataSubject& subject, const clsZ& value) {
    const std::string fault = ValueFault(subject, value);
    return fault.empty() && value.nVar == 1 ? VariableFault(value) : fault;
}

void ExportValues(XmlWriter& xml, const DataSubject& subject, const clsZ& value, const clsX& item) {
    bool isWhole = true;
    xml.Open("NumValues");
    if (value.nVar == 1) {
        xml.Open("VariableValue");
        isWhole = ExportQuantity(xml, "Var", value.INDVARIABLE, value.Statements(1),
                                 VariableUnitOf(value));
        xml.Close();
    }
    // Both are written before the fault is told.
    isWhole &= ExportPropertyValue(xml, value, item);
    xml.Close();
    if (!isWhole) TellDataError(subject, NoRepeatability);
}

} // namespace

void clsZ::ExportZ(XmlWriter& xml) const {
    // Data of a complex do not leave.
    const auto* const compound = dynamic_cast<const clsL*>(Parent ? Parent->System() : nullptr);
    if (compound == nullptr) return;
    const DataSubject subject = SubjectOf(*this, {{compound, SMPNM}});
    const std::string fault = FaultOf(subject, *this);
    if (!fault.empty()) return TellDataError(subject, fault);
    OpenData(xml, subject, Header);
    const clsX item = Statements(0);
    ExportDirectProperty(xml, subject, *this, item, PHASE1);
    ExportPhases(xml, subject, PhasesOfPure(PRPCODE, Header, {PHASE1, PhaseBeside(), PHASE3}));
    if (IsUnderOneAtmosphere(*this)) ExportAtmosphere(xml, subject);
    if (nVar == 1) ExportVariable(xml, subject, 1, Variable(), PHASE1, Statements(1));
    ExportValues(xml, subject, *this, item);
    xml.Close();
}

} // namespace vexora
