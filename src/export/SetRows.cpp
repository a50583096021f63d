#include "export/SetRows.h"

#include <algorithm>

#include "export/DataHead.h"
#include "export/XmlWriter.h"
#include "records/DataSet.h"
#include "records/Presentation.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

// Texts of the schema (ePresentation), exact to the letter, beside the codes of results.
constexpr CodeText Presentations[] = {
    {"Direct value, X", "DIR"},
    {"Difference between upper and lower temperature, X(T2)-X(T1)", "DT"},
    {"Difference between upper and lower pressure, X(P2)-X(P1)", "DX"},
    {"Mean between upper and lower temperature, [X(T2)+X(T1)]/2", "MN"},
};

constexpr CodeText RelativePresentations[] = {
    {"Difference with the reference state, X-X(REF)", "D"},
    {"Ratio with the reference state, X/X(REF)", "R"},
    {"Ratio of difference with the reference state to the reference state, [X-X(REF)]/X(REF)", "K"},
};

std::string PresentationOf(const ResultDefinition& definition) {
    return definition.IsRelative() ? TextOfCode(RelativePresentations, definition.function)
                                   : TextOfCode(Presentations, definition.Code());
}

/// The state that results are relative to. What a comment describes has no text, and a mixture
/// knows other states than a compound.
std::string ReferenceState(const DataSet& set) {
    const std::string relation = set.Definition().relation;
    return IsOneOf(set.DataContext(), {"Bin", "Tern"}) ? TextOfCode(MixtureReferenceTexts, relation)
                                                       : ReferenceStateText(relation);
}

bool IsKnownDefinition(const DataSet& set) {
    const ResultDefinition definition = set.Definition();
    if (PresentationOf(definition).empty()) return false;
    return !definition.IsRelative() || definition.relation == "RX" || !ReferenceState(set).empty();
}

/// Reference states are kept in system units.
void ExportNumberAsTyped(XmlWriter& xml, const std::string& element, const std::string& digits,
                         const std::string& typed) {
    if (!IsNumeric(typed)) return;
    const ExportNumber number = ExportedValue(typed, ExportUnit());
    xml.Element(element, number.text);
    xml.Element(digits, std::to_string(number.digits));
}

ExportUnit UnitOf(const UnitConversion& conversion, bool converts) {
    return {conversion, converts};
}

// Statements that only some rows make announce themselves like those of the set.
void AnnounceRows(const DataSet& set, SetRows& rows) {
    for (const clsData& row : set.recData) {
        if (!row.Extras) continue;
        for (int n = 0; n <= set.nVar; ++n) {
            const RowStatements& own = row.StatementsOf(n);
            clsX& item = rows.quantities[static_cast<std::size_t>(n)].item;
            item.iDS = item.iDS || !own.DS.empty();
            item.iRep = item.iRep || !own.Rep.empty();
            rows.quantities[static_cast<std::size_t>(n)].repeatsInRows |= !own.Rep.empty();
            item.iUnc = item.iUnc || !own.Unc.empty();
        }
        clsX& property = rows.quantities[0].item;
        property.iCD = property.iCD || !row.Extras->CD.empty();
    }
}

constexpr const char* NoValidRows = "Rows without a valid number in ";

} // namespace

bool IsNumericRow(const clsData& row) {
    for (int n = 0; n <= row.nVar; ++n)
        if (!IsNumeric(row.Values[static_cast<std::size_t>(n)])) return false;
    return true;
}

bool IsWithoutNumbers(const DataSet& set) {
    return set.recData.IsEmpty() && !Presentation::Of(set.DATATYPE).HasNumbers();
}

SetRows::SetRows(const DataSet& ofSet) : set(ofSet) {
    if (set.ConvertsByRow()) masses.emplace(set);
    quantities[0].unit = UnitOf(set.PropertyConversion(), set.isOriginalUnit);
    ExportUnit& property = quantities[0].unit;
    // A difference of temperatures in degrees Celsius is one in kelvin.
    property.difference = set.Relation() == "D";
    // Looked up here and not for every row.
    if (property.factor <= 0 && IsUnitLong(property.code))
        property.factor = ConversionFactor(property.code, property.unit);
    for (int n = 1; n <= set.nVar; ++n) {
        ExportUnit& unit = quantities[static_cast<std::size_t>(n)].unit;
        unit = UnitOf(set.VariableConversion(n), set.isOriginalUnit);
        // Wavelengths have a rule of their own, for the schema wants nm and the system keeps
        // Angstroms.
        unit.wavelength = set.VARIABLE(n) == "WL";
    }
    for (std::size_t n = 0; n <= static_cast<std::size_t>(set.nVar); ++n) {
        quantities[n].item = set.UX[n];
        quantities[n].ofRow = quantities[n].unit;
        DropUnstated(quantities[n].item);
    }
    AnnounceRows(set, *this);
}

SetRows::Leaving SetRows::Enter(const clsData& row) {
    if (!IsNumericRow(row)) return Leaving::WithoutNumber;
    // Rows of one set may stand in either unit, as they were typed or read.
    for (Quantity& quantity : quantities)
        quantity.ofRow.converts = row.inOriginalUnits;
    if (!masses) return Leaving::Whole;
    // What the set states may have to be converted where the row has not.
    double& molarMass = quantities[0].ofRow.molarMass;
    molarMass = masses->Of(row);
    return molarMass > 0 || !row.inOriginalUnits ? Leaving::Whole : Leaving::WithoutMass;
}

const ExportUnit& SetRows::UnitIn(int n) const {
    return quantities[static_cast<std::size_t>(n)].ofRow;
}

std::string SetRows::Fault(const DataSubject& subject) {
    bool hasPlace = subject.HasPlace();
    for (int n = 1; n <= set.nVar; ++n)
        hasPlace = hasPlace && VariableHasPlace(CodeInTables(subject, set.VARIABLE(n)));
    if (!hasPlace) return NoPlaceInExport;
    if (set.recData.IsEmpty()) return "No numerical data in ";
    if (std::none_of(set.recData.begin(), set.recData.end(), IsNumericRow)) return NoValidRows;
    // Rather no values than values under a wrong meaning.
    if (!IsKnownDefinition(set)) return "Unknown definition of results " + set.PROPERTY_FUNCT;
    ExportUnit property = quantities[0].unit;
    if (masses) property.molarMass = 1; // the rows have their own; here the unit is looked at
    std::string fault = ConversionFault(property);
    const auto leaves = [this](const clsData& row) { return Enter(row) == Leaving::Whole; };
    if (fault.empty() && std::ranges::none_of(set.recData, leaves)) fault = NoMolarMass;
    for (int n = 1; n <= set.nVar && fault.empty(); ++n)
        fault = ConversionFault(quantities[static_cast<std::size_t>(n)].unit);
    return fault;
}

void SetRows::ExportDefinition(XmlWriter& xml, const DataSubject& subject,
                               const std::string& temperature, const std::string& pressure,
                               const std::string& phase) const {
    const ResultDefinition definition = set.Definition();
    xml.Element("ePresentation", PresentationOf(definition));
    if (!definition.IsRelative()) return;
    xml.ElementIfAny("eRefStateType", ReferenceState(set));
    // Only what the state fixes: the other reference conditions are those of each row.
    if (definition.FixesTemperature())
        ExportNumberAsTyped(xml, "nRefTemp", "nRefTempDigits", temperature);
    if (definition.FixesPressure())
        ExportNumberAsTyped(xml, "nRefPressure", "nRefPressureDigits", pressure);
    ExportPhase(xml, subject, "RefPhaseID", "eRefPhase", phase);
}

void SetRows::ExportVariables(XmlWriter& xml, const DataSubject& subject) const {
    for (int n = 1; n <= set.nVar; ++n)
        ExportVariable(xml, subject, n, set.VARIABLE(n), set.PhaseFor(n),
                       quantities[static_cast<std::size_t>(n)].item);
}

void SetRows::ExportRows(XmlWriter& xml, const DataSubject& subject) {
    bool lacksNumbers = false, lacksMass = false;
    for (const clsData& row : set.recData) {
        const Leaving leaving = Enter(row);
        if (leaving == Leaving::Whole) row.ExportData(xml, *this);
        lacksNumbers = lacksNumbers || leaving == Leaving::WithoutNumber;
        lacksMass = lacksMass || leaving == Leaving::WithoutMass;
    }
    if (lacksNumbers) TellDataError(subject, NoValidRows);
    if (lacksMass) TellDataError(subject, NoMolarMass);
    if (lacksRepeatability) TellDataError(subject, NoRepeatability);
}

} // namespace vexora
