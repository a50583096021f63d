#include "records/CarriedData.h"

#include "chem/CommentTags.h"
#include "records/RecordChecks.h"
#include "records/SetLines.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

void Override(std::string& ofSet, const std::string& own) {
    if (!own.empty()) ofSet = own;
}

bool SayTheSame(clsX one, clsX other) {
    if (!one.IsKept() && !other.IsKept()) return true;
    for (clsX* item : {&one, &other}) {
        item->Name.clear();
        item->Unit.clear();
        item->Verbatim.clear();
        // Figures of the property stand in the unit of its values in any case.
        if (item->N == 0) item->inSystemUnits = false;
    }
    return one == other;
}

} // namespace

clsData CarriedRow(const clsData& row, const std::vector<int>& places) {
    clsData carried;
    carried.nVar = static_cast<std::int8_t>(places.size() - 1);
    carried.isDigit = row.isDigit;
    carried.inOriginalUnits = row.inOriginalUnits;
    carried.PRPUNCERTY = row.PRPUNCERTY;
    carried.TIELINE = row.TIELINE;
    for (std::size_t n = 0; n < places.size(); ++n) {
        const auto from = static_cast<std::size_t>(places[n]);
        carried.Values[n] = row.Values[from];
        carried.Digits[n] = row.Digits[from];
        if (row.Extras) carried.Statements(static_cast<int>(n)) = row.StatementsOf(places[n]);
    }
    if (row.Extras) {
        carried.Extras->userCU = row.Extras->userCU;
        carried.Extras->CD = row.Extras->CD;
    }
    return carried;
}

clsX CarriedStatement(const clsX& ofSet, const clsData& row) {
    clsX item = ofSet;
    item.Verbatim.clear();
    item.KVOUValue = row.PRPUNCERTY;
    const RowStatements& own = row.StatementsOf(0);
    Override(item.DSValue, own.DS);
    Override(item.RValue, own.Rep);
    Override(item.Repetitions, own.Repetitions);
    Override(item.UValue, own.Unc);
    if (!row.Extras) return item;
    Override(item.CValue, row.Extras->userCU);
    Override(item.CDRms, row.Extras->CD);
    return item;
}

void CarryFigures(SingleValue& value, const DataSet& set, const clsX& ofSet, const clsData& row) {
    value.PROPERTY_UNIT = set.PROPERTY_UNIT;
    value.isOriginalUnit = row.inOriginalUnits;
    value.Factor = row.inOriginalUnits ? set.Factor : 0;
    value.FallbackMolarMass = 0;
    value.commentInSystemUnits = set.commentInSystemUnits;
    value.PRPVALUE = row.PRPVALUE();
    const clsX item = CarriedStatement(ofSet, row);
    if (item.IsKept() || !item.KVOUValue.empty()) value.Statements(0, item);
}

HeldConstant InSystemUnit(const HeldConstant& constant) {
    HeldConstant system = constant;
    system.value =
        DataSet::ConversionOf(constant.code, constant.unit).Converted(constant.value).text;
    system.unit = "S";
    return system;
}

clsX InSystemUnit(const clsX& statement, const HeldConstant& constant) {
    clsX system = statement;
    if (statement.inSystemUnits) return system;
    const UnitConversion unit = DataSet::ConversionOf(constant.code, constant.unit);
    for (std::string* figure : {&system.DSValue, &system.RValue, &system.UValue, &system.CDRms,
                                &system.CValue, &system.KVOUValue})
        *figure = unit.DifferenceText(*figure);
    return system;
}

void StateConstant(CommentTags& tags, const HeldConstant& constant) {
    const bool isAtmosphere = constant.code == "P" && Equal(Val(constant.value), NormalPressure);
    tags.Set(isAtmosphere ? "FP" : constant.code + " = " + constant.value, true);
}

std::string KeyOfUnit(const std::string& unit) {
    return IsSystemUnit(unit) ? "S" : unit;
}

std::string KeyOfUnit(const std::string& unit, double factor, bool isOriginal,
                      const std::string& systemUnit) {
    if (!isOriginal) return UnitField(unit);
    const double ofUnit =
        factor <= 0 && IsUnitLong(unit) ? ConversionFactor(unit, systemUnit) : factor;
    return ofUnit > 0 ? "*" + NumberText(ofUnit) : KeyOfUnit(UnitField(unit));
}

std::string KeyOfUnit(const DataSet& set) {
    return KeyOfUnit(set.PROPERTY_UNIT, set.Factor, set.isOriginalUnit,
                     UnitOfProperty(set.PRPCODE, set.DataContext()));
}

std::string KeyOfUnit(const SingleValue& value) {
    return KeyOfUnit(value.PROPERTY_UNIT, value.Factor, value.isOriginalUnit,
                     UnitOfProperty(value.PRPCODE, value.DataContext()));
}

std::string KeyOfConstants(const clsA& header) {
    const CommentTags tags(header.DATACOMMENT);
    std::string key;
    for (const QuantityText& quantity : StateVariables) {
        const std::string value = tags.Constant(quantity.code);
        const bool isAtmosphere = quantity.code == "P" && value.empty() && tags.Has("FP");
        if (!isAtmosphere && !IsNumeric(value)) continue;
        key += std::string(quantity.code) + "=" +
               KeyOfNumber(isAtmosphere ? NormalPressure : Val(value)) + ";";
    }
    return key;
}

std::string KeyOfMethod(const clsA& header) {
    const CommentTags tags(header.DATACOMMENT);
    return tags.TrimmedValue("Method") + "\n" + tags.TrimmedValue("sMethod");
}

std::string KeyOfPhase(std::string_view phase) {
    return IsBlankField(phase) ? "&" : std::string(phase);
}

std::string KeyOfRow(const clsData& row) {
    std::string key = row.inOriginalUnits ? "o" : "s";
    for (int n = 0; n <= row.nVar; ++n)
        key += "\n" + std::string(row.Values[static_cast<std::size_t>(n)]) + " " +
               std::to_string(row.DigitCount(n));
    return IsBlankField(row.TIELINE) ? key : key + "\n" + std::string(row.TIELINE);
}

bool StateTheSame(const DataSet& one, const DataSet& other) {
    for (std::size_t n = 0; n < one.UX.size(); ++n)
        if (!SayTheSame(one.UX[n], other.UX[n])) return false;
    return true;
}

} // namespace vexora
