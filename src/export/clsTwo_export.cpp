#include "records/clsTwo.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "export/PureData.h"
#include "export/RowExport.h"
#include "export/XmlWriter.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

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

bool IsRelative(const clsTwo& set) {
    return TextOfCode(Presentations, set.PROPERTY_FUNCT).empty() && set.Relation() != "A";
}

std::string PresentationOf(const clsTwo& set) {
    if (!IsRelative(set)) return TextOfCode(Presentations, set.PROPERTY_FUNCT);
    return TextOfCode(RelativePresentations, set.PROPERTY_FUNCT.substr(0, 1));
}

void ExportNumberAsTyped(XmlWriter& xml, const std::string& element, const std::string& digits,
                         const std::string& typed) {
    if (!IsNumeric(typed)) return;
    const ExportNumber number = ExportedValue(typed, {"S"});
    xml.Element(element, number.text);
    xml.Element(digits, std::to_string(number.digits));
}

void ExportReference(XmlWriter& xml, const clsTwo& set) {
    if (!IsRelative(set)) return;
    const std::string relation = set.PROPERTY_FUNCT.substr(1);
    xml.ElementIfAny("eRefStateType", ReferenceStateText(relation));
    if (relation == "FR" || relation == "PF")
        ExportNumberAsTyped(xml, "nRefTemp", "nRefTempDigits", set.REF_TEMP);
    if (relation == "FR" || relation == "FX" || relation == "TF")
        ExportNumberAsTyped(xml, "nRefPressure", "nRefPressureDigits", set.REF_PRESSURE);
    if (!IsBlankField(set.REF_PHASE)) ExportPhase(xml, "RefPhaseID", "eRefPhase", set.REF_PHASE);
}

bool HasVariable(const clsTwo& set, std::string_view code) {
    return set.VARIABLE1 == code || (set.nVar == 2 && set.VARIABLE2 == code);
}

// What the set states about a variable that stays the same, or null.
const clsX* StatementsOf(const clsTwo& set, const std::string& code) {
    const auto found = std::find_if(set.UX.begin(), set.UX.end(), [&](const clsX& item) {
        return item.N > set.nVar && item.PRPCODE == code && item.IsStated();
    });
    return found == set.UX.end() ? nullptr : &*found;
}

void ExportConstraints(XmlWriter& xml, const clsTwo& set) {
    for (const std::string code : {"T", "P", "WL", "WF"}) {
        const std::string value = set.ConstantOf(code);
        if (value.empty()) continue;
        ExportUnit unit{"S"};
        unit.wavelength = code == "WL";
        const ExportNumber number = ExportedValue(value, unit);
        const clsX* stated = StatementsOf(set, code);
        ExportConstraint(
            xml, XMLVariableGroup(code), XMLVariableName(code), number.text, number.digits, [&] {
                if (stated && !ExportConstraintStatements(xml, *stated, value, unit))
                    TellDataError(*set.Parent, set.PRPCODE, "Missing repeatability in ");
            });
    }
    const bool isPressure = HasVariable(set, "P") || set.PRPCODE == "PV" || set.PRPCODE == "P";
    const bool boils = set.PRPCODE == "TB" && !HasTag(set.Header, ":PB:");
    if (isPressure || !set.ConstantOf("P").empty()) return;
    if (boils || HasTag(set.Header, ":FP:")) ExportAtmosphere(xml);
}

ExportUnit UnitOf(const UnitConversion& conversion, bool converts) {
    return {conversion.code, conversion.factor, conversion.molarMass, converts};
}

// What stands behind a mark that is off is not stated, and says nothing about the rows either.
void DropUnstated(clsX& item) {
    if (!item.iDS) item.DSEvaluator = item.DSLevel = item.DSValue = "";
    if (!item.iRep) item.Repetitions = item.RValue = "";
    if (!item.iRep) item.RType = -1;
    if (!item.iUnc) item.ULevel = item.UValue = "";
    if (!item.iCD) item.CDRms = "";
}

// Statements that only some rows make announce themselves like those of the set.
void AnnounceRows(const clsTwo& set, RowExport& rows) {
    for (const auto& row : set.recData) {
        if (!row->Extras) continue;
        for (int n = 0; n <= set.nVar; ++n) {
            const RowStatements& own = row->StatementsOf(n);
            clsX& item = rows.quantities[static_cast<std::size_t>(n)].item;
            item.iDS = item.iDS || !own.DS.empty();
            item.iRep = item.iRep || !own.Rep.empty();
            item.iUnc = item.iUnc || !own.Unc.empty();
        }
        clsX& property = rows.quantities[0].item;
        property.iCD = property.iCD || !row->Extras->CD.empty();
    }
}

RowExport RowExportOf(const clsTwo& set) {
    RowExport rows;
    rows.quantities[0] = {UnitOf(set.PropertyConversion(), set.isOriginalUnit), set.UX[0]};
    rows.quantities[0].unit.difference = set.Relation() == "D";
    for (int n = 1; n <= set.nVar; ++n) {
        const auto place = static_cast<std::size_t>(n);
        ExportUnit unit{set.VAR_UNIT(n), 0, 0, set.isOriginalUnit};
        unit.wavelength = set.VARIABLE(n) == "WL";
        if (!unit.wavelength) unit = UnitOf(set.VariableConversion(n), set.isOriginalUnit);
        rows.quantities[place] = {unit, set.UX[place]};
    }
    for (RowExport::Quantity& quantity : rows.quantities)
        DropUnstated(quantity.item);
    AnnounceRows(set, rows);
    return rows;
}

bool IsNumericRow(const clsData& row) {
    for (int n = 0; n <= row.nVar; ++n)
        if (!IsNumeric(row.Values[static_cast<std::size_t>(n)])) return false;
    return true;
}

constexpr const char* NoValidRows = "Rows without a valid number in ";

// Why the set cannot be exported, or empty.
std::string FaultOf(const clsTwo& set, const std::string& group, const RowExport& rows) {
    bool hasPlace = IsXmlName(group);
    for (int n = 1; n <= set.nVar; ++n)
        hasPlace = hasPlace && IsXmlName(XMLVariableGroup(set.VARIABLE(n)));
    if (!hasPlace) return NoPlaceInExport;
    if (set.recData.IsEmpty()) return "No numerical data in ";
    if (std::none_of(set.recData.begin(), set.recData.end(),
                     [](const auto& row) { return IsNumericRow(*row); }))
        return NoValidRows;
    if (PresentationOf(set).empty()) return "Unknown definition of results " + set.PROPERTY_FUNCT;
    std::string fault = ConversionFault(rows.quantities[0].unit);
    for (int n = 1; n <= set.nVar && fault.empty(); ++n)
        fault = ConversionFault(rows.quantities[static_cast<std::size_t>(n)].unit);
    return fault;
}

void ExportRows(XmlWriter& xml, const clsTwo& set, RowExport& rows) {
    bool leftOut = false;
    for (const auto& row : set.recData) {
        if (IsNumericRow(*row))
            row->ExportData(xml, rows);
        else
            leftOut = true;
    }
    if (leftOut) TellDataError(*set.Parent, set.PRPCODE, NoValidRows);
    if (rows.lacksRepeatability)
        TellDataError(*set.Parent, set.PRPCODE, "Missing repeatability in ");
}

} // namespace

void clsTwo::ExportAll(XmlWriter& xml) const {
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    const std::string group = XMLPropertyGroup(PRPCODE, "Pure");
    RowExport rows = RowExportOf(*this);
    const std::string fault = FaultOf(*this, group, rows);
    if (!fault.empty()) return TellDataError(*Parent, PRPCODE, fault);
    xml.Open("PureOrMixtureData");
    ExportOrigin(xml, *Parent, Header);
    xml.Open("Property");
    ExportPropertyHead(xml, PRPCODE, group, PHASE1, Header);
    xml.Element("ePresentation", PresentationOf(*this));
    ExportReference(xml, *this);
    rows.quantities[0].item.ExportX(xml, "Prop");
    xml.Close();
    ExportPhases(xml, PRPCODE, Header, {PHASE1, PHASE2});
    ExportConstraints(xml, *this);
    for (int n = 1; n <= nVar; ++n)
        ExportVariable(xml, n, VARIABLE(n), PHASE1,
                       rows.quantities[static_cast<std::size_t>(n)].item);
    ExportRows(xml, *this, rows);
    xml.Close();
}

} // namespace vexora
