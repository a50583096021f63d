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
    if (IsUnitLong(code)) return {"S", ConversionFactor(code)};
    return {code};
}

void clsTwo::AdjustUnits() {
    const UnitConversion ofProperty = PropertyConversion();
    const bool isDifference = Relation() == "D";
    if (isOriginalUnit) AdjustStatements();
    std::vector<UnitConversion> ofVariables;
    for (int n = 1; n <= nVar; ++n)
        ofVariables.push_back(VariableConversion(n));
    for (const auto& row : recData) {
        if (!row->inOriginalUnits) continue;
        row->Convert(0, ofProperty, isDifference);
        for (int n = 1; n <= nVar; ++n)
            row->Convert(n, ofVariables[static_cast<std::size_t>(n - 1)]);
        row->inOriginalUnits = false;
    }
    isOriginalUnit = false;
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
