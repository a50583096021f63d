#include "records/clsData.h"

#include "export/SetRows.h"
#include "export/XmlWriter.h"

namespace vexora {

namespace {

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
    const auto exportValue = [&](const char* element, const std::string& role, int n) {
        const auto place = static_cast<std::size_t>(n);
        const ExportNumber value = ExportedValue(Values[place], rows.UnitIn(n), DigitCount(n));
        xml.Open(element);
        // The number of the head to which the value belongs; there is one property.
        xml.Element("n" + role + "Number", std::to_string(std::max(n, 1)));
        xml.Element("n" + role + "Value", value.text);
        xml.Element("n" + role + "Digits", std::to_string(value.digits));
        ExportUnc(xml, role, *this, n, rows);
        xml.Close();
    };
    // Variables first and then the property, as the schema has them.
    xml.Open("NumValues");
    for (int n = 1; n <= nVar; ++n)
        exportValue("VariableValue", "Var", n);
    exportValue("PropertyValue", "Prop", 0);
    xml.Close();
}

} // namespace vexora
