#include "records/DataSet.h"

#include "records/RowMasses.h"
#include "records/SetLines.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <utility>

namespace vexora {

UnitConversion DataSet::PropertyConversion(double molarMass) const {
    if (Relation() == "R") return {}; // a ratio has no unit
    const bool byMass = Factor <= 0 && IsMassBased(PROPERTY_UNIT);
    std::string unit = UnitOfProperty(PRPCODE, DataContext());
    std::string code(CodeInField(PROPERTY_UNIT, unit));
    return {std::move(code), Factor, byMass ? molarMass : 0, std::move(unit)};
}

UnitConversion DataSet::PropertyConversion() const {
    return PropertyConversion(MolarMass());
}

UnitConversion DataSet::PropertyConversion(const clsData& row) const {
    return PropertyConversion(MolarMass(row));
}

UnitConversion DataSet::ConversionOf(const std::string& variable, const std::string& field) {
    std::string unit = UnitOfVariable(variable);
    std::string code(CodeInField(field, unit));
    // The factor is looked up once here, not for every row.
    const double factor = IsUnitLong(code) ? ConversionFactor(code, unit) : 0;
    return {std::move(code), factor, 0, std::move(unit)};
}

UnitConversion DataSet::VariableConversion(int n) const {
    return ConversionOf(VARIABLE(n), VAR_UNIT(n));
}

UnitConversion DataSet::Conversion(int n) const {
    if (n == 0) return PropertyConversion();
    if (n <= nVar) return VariableConversion(n);
    for (const HeldConstant& constant : Constants())
        if (constant.item == n) return ConversionOf(constant.code, constant.unit);
    return {};
}

bool DataSet::ConvertsByRow() const {
    return MolarMassFollowsRows() && NeedsMolarMass() && Relation() != "R";
}

bool DataSet::CanAdjustUnits(const std::vector<UnitConversion>& units) const {
    for (const HeldConstant& constant : Constants())
        if (!ConversionOf(constant.code, constant.unit).IsPossible()) return false;
    if (!isOriginalUnit) return true;
    const bool byRow = ConvertsByRow();
    for (std::size_t n = byRow ? 1 : 0; n < units.size(); ++n)
        if (!units[n].IsPossible()) return false;
    if (!byRow) return true;
    RowMasses masses(*this);
    return IsConversionOf(units[0].code, units[0].unit) &&
           std::all_of(recData.begin(), recData.end(), [&masses](const clsData& row) {
               return !row.inOriginalUnits || masses.Of(row) > 0;
           });
}

bool DataSet::AdjustUnits() {
    std::vector<UnitConversion> units;
    for (int n = 0; n <= nVar; ++n)
        units.push_back(Conversion(n));
    // All is asked before the first change: a set that is converted in part tells nothing true.
    if (!CanAdjustUnits(units)) return false;
    const bool byRow = ConvertsByRow();
    // Between two values the zero point of a scale drops out.
    const bool isDifference = Relation() == "D";
    if (isOriginalUnit) AdjustStatements();
    AdjustConstants();
    RowMasses masses(*this);
    for (clsData& row : recData) {
        if (!row.inOriginalUnits) continue;
        if (byRow) units[0].molarMass = masses.Of(row);
        for (int n = 0; n <= nVar; ++n)
            row.Convert(n, units[static_cast<std::size_t>(n)], n == 0 && isDifference);
        row.inOriginalUnits = false;
    }
    isOriginalUnit = false;
    return true;
}

/// The statements of the whole set and the precisions of the comment go along with the rows.
void DataSet::AdjustStatements() {
    Header.DATACOMMENT = CommentOfLine();
    if (!commentInSystemUnits)
        Header.DATACOMMENT = CommentInSystemUnits(
            Header.DATACOMMENT, [this](const std::string& code, const std::string& typed) {
                return SystemPrecision(code, typed);
            });
    commentInSystemUnits = true;
    if (ConvertsByRow()) StateInRows();
    for (int n = 0; n < Items; ++n) {
        clsX& item = UX[static_cast<std::size_t>(n)];
        // Those of the property always stand in the unit of its values.
        if (n != 0 && item.inSystemUnits) continue;
        const UnitConversion unit = Conversion(n);
        for (std::string* text : {&item.DSValue, &item.RValue, &item.UValue, &item.CDRms,
                                  &item.CValue, &item.KVOUValue})
            *text = unit.DifferenceText(*text);
        item.inSystemUnits = true;
    }
}

/// One figure by mass is another one by amount in each row: what the set states about the property
/// goes to all rows that do not say it themselves. Per cent stay with the set.
void DataSet::StateInRows() {
    clsX& ofSet = UX[0];
    RowMasses masses(*this);
    const auto give = [&](std::string& figure, auto ofRow) {
        if (!IsNumeric(figure)) return;
        UnitConversion unit = PropertyConversion();
        for (clsData& row : recData) {
            std::string& own = ofRow(row);
            if (!own.empty()) continue;
            unit.molarMass = masses.Of(row);
            own = row.inOriginalUnits ? figure : unit.DifferenceText(figure);
        }
        figure.clear();
    };
    give(ofSet.DSValue, [](clsData& row) -> std::string& { return row.Statements(0).DS; });
    give(ofSet.RValue, [](clsData& row) -> std::string& { return row.Statements(0).Rep; });
    give(ofSet.UValue, [](clsData& row) -> std::string& { return row.Statements(0).Unc; });
    const auto extras = [](clsData& row) -> RowExtras& {
        row.Statements(0);
        return *row.Extras;
    };
    give(ofSet.CValue, [&](clsData& row) -> std::string& { return extras(row).userCU; });
    give(ofSet.CDRms, [&](clsData& row) -> std::string& { return extras(row).CD; });
}

std::string DataSet::SystemPrecision(const std::string& code, const std::string& typed) const {
    if (code == PRPCODE) {
        UnitConversion unit = PropertyConversion();
        // One figure for all rows: that of the row where it is worst.
        if (ConvertsByRow()) {
            RowMasses masses(*this);
            for (const clsData& row : recData)
                unit.molarMass = std::max(unit.molarMass, masses.Of(row));
        }
        return unit.DifferenceText(typed);
    }
    for (int n = 1; n <= nVar; ++n)
        if (code == VARIABLE(n)) return VariableConversion(n).DifferenceText(typed);
    for (const HeldConstant& constant : Constants())
        if (code == constant.code) return ConversionOf(code, constant.unit).DifferenceText(typed);
    return typed;
}

} // namespace vexora
