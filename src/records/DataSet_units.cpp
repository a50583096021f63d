#include "records/DataSet.h"

#include "reference/Conversions.h"
#include "reference/Vocabulary.h"

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

UnitConversion DataSet::VariableConversion(int n) const {
    std::string unit = UnitOfVariable(VARIABLE(n));
    std::string code(CodeInField(VAR_UNIT(n), unit));
    // The factor is looked up once here, not for every row.
    const double factor = IsUnitLong(code) ? ConversionFactor(code, unit) : 0;
    return {std::move(code), factor, 0, std::move(unit)};
}

bool DataSet::AdjustUnits() {
    const bool byRow = MolarMassFollowsRows() && NeedsMolarMass();
    std::vector<UnitConversion> units;
    for (int n = 0; n <= nVar; ++n)
        units.push_back(Conversion(n));
    // All is asked before the first change: a set that is converted in part tells nothing true.
    for (std::size_t n = byRow ? 1 : 0; n < units.size(); ++n)
        if (isOriginalUnit && !units[n].IsPossible()) return false;
    if (byRow) {
        for (const clsData& row : recData)
            if (row.inOriginalUnits && !PropertyConversion(row).IsPossible()) return false;
    }
    // Between two values the zero point of a scale drops out.
    const bool isDifference = Relation() == "D";
    if (isOriginalUnit) AdjustStatements();
    for (clsData& row : recData) {
        if (!row.inOriginalUnits) continue;
        if (byRow) units[0] = PropertyConversion(row);
        for (int n = 0; n <= nVar; ++n)
            row.Convert(n, units[static_cast<std::size_t>(n)], n == 0 && isDifference);
        row.inOriginalUnits = false;
    }
    isOriginalUnit = false;
    return true;
}

/// The statements of the whole set and the precisions of the comment go along with the rows.
void DataSet::AdjustStatements() {
    Header.DATACOMMENT = CommentForRecord();
    commentInSystemUnits = true;
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

} // namespace vexora
