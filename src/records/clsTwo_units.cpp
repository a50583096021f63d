#include "records/clsTwo.h"

#include "reference/Conversions.h"

namespace vexora {

UnitConversion clsTwo::PropertyConversion() const {
    if (Relation() == "R") return {};
    const bool byMass = Factor <= 0 && IsMassBased(PROPERTY_UNIT);
    return {PROPERTY_UNIT, Factor, byMass ? MolarMass() : 0};
}

UnitConversion clsTwo::VariableConversion(int n) const {
    const std::string& code = VAR_UNIT(n);
    // The factor is looked up once here, not for every row.
    const double factor = IsUnitLong(code) ? ConversionFactor(code) : 0;
    return {code, factor};
}

bool clsTwo::AdjustUnits() {
    std::vector<UnitConversion> units = {PropertyConversion()};
    for (int n = 1; n <= nVar; ++n)
        units.push_back(VariableConversion(n));
    for (const UnitConversion& unit : units)
        if (isOriginalUnit && !unit.IsPossible()) return false;
    const bool isDifference = Relation() == "D";
    if (isOriginalUnit) AdjustStatements();
    for (const auto& row : recData) {
        if (!row->inOriginalUnits) continue;
        for (int n = 0; n <= nVar; ++n)
            row->Convert(n, units[static_cast<std::size_t>(n)], n == 0 && isDifference);
        row->inOriginalUnits = false;
    }
    isOriginalUnit = false;
    return true;
}

/// The statements of the whole set and the precisions of the comment go along with the rows.
void clsTwo::AdjustStatements() {
    Header.DATACOMMENT = CommentForRecord();
    commentInSystemUnits = true;
    for (std::size_t n = 0; n < UX.size(); ++n) {
        clsX& item = UX[n];
        // Those of the property always stand in the unit of its values.
        if (n != 0 && item.inSystemUnits) continue;
        const UnitConversion unit =
            n == 0 ? PropertyConversion() : VariableConversion(static_cast<int>(n));
        for (std::string* text : {&item.DSValue, &item.RValue, &item.UValue, &item.CDRms,
                                  &item.CValue, &item.KVOUValue})
            *text = unit.DifferenceText(*text);
        item.inSystemUnits = true;
    }
}

} // namespace vexora
