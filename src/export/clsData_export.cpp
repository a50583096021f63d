#include "records/clsData.h"

#include "export/SetRows.h"
#include "export/XmlWriter.h"

namespace vexora {

namespace {

/// The elements of a value, by its role. They are written millions of times.
struct ValueNames {
    const char *role, *element, *number, *value, *digits;
};
constexpr ValueNames OfVariable{"Var", "VariableValue", "nVarNumber", "nVarValue", "nVarDigits"};
constexpr ValueNames OfProperty{"Prop", "PropertyValue", "nPropNumber", "nPropValue",
                                "nPropDigits"};

/// What quantity n of a row states, the row's own figures in front of those of the set.
void ExportUnc(XmlWriter& xml, std::string_view role, const clsData& row, int n, SetRows& rows) {
    const auto place = static_cast<std::size_t>(n);
    const SetRows::Quantity& quantity = rows.quantities[place];
    RowFigures own{row.StatementsOf(n), {}, {}, quantity.unit.converts};
    // Combined uncertainty and curve deviation are said of the property only.
    if (n == 0 && row.Extras) {
        own.combined = row.Extras->userCU;
        own.curveDeviation = row.Extras->CD;
    }
    const bool whole =
        ExportStatements(xml, quantity.item, role, row.Values[place], rows.UnitIn(n), &own);
    // What some rows state by themselves is not owed by the others.
    if (!whole && !quantity.repeatsInRows) rows.lacksRepeatability = true;
}

} // namespace

void clsData::ExportData(XmlWriter& xml, SetRows& rows) const {
    const auto exportValue = [&](const ValueNames& names, int n) {
        const auto place = static_cast<std::size_t>(n);
        const ExportNumber value = ExportedValue(Values[place], rows.UnitIn(n), DigitCount(n));
        xml.Open(names.element);
        // The number of the head to which the value belongs; there is one property.
        xml.Element(names.number, std::to_string(std::max(n, 1)));
        xml.Element(names.value, value.text);
        xml.Element(names.digits, std::to_string(value.digits));
        ExportUnc(xml, names.role, *this, n, rows);
        xml.Close();
    };
    // Variables first and then the property, as the schema has them.
    xml.Open("NumValues");
    for (int n = 1; n <= nVar; ++n)
        exportValue(OfVariable, n);
    exportValue(OfProperty, 0);
    xml.Close();
}

} // namespace vexora
