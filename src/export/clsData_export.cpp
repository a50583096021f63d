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
    if (!ExportStatements(xml, quantity.item, role, row.Values[place], rows.UnitIn(row, n), &own))
        rows.lacksRepeatability = true;
}

} // namespace

void clsData::ExportPropUnc(XmlWriter& xml, SetRows& rows) const {
    ExportUnc(xml, "Prop", *this, 0, rows);
}

void clsData::ExportVarUnc(XmlWriter& xml, int n, SetRows& rows) const {
    ExportUnc(xml, "Var", *this, n, rows);
}

void clsData::ExportData(XmlWriter& xml, SetRows& rows) const {
    const auto number = [&](int n) {
        const auto place = static_cast<std::size_t>(n);
        return ExportedValue(Values[place], rows.UnitIn(*this, n), DigitCount(n));
    };
    // Variables first and then the property, as the schema has them.
    xml.Open("NumValues");
    for (int n = 1; n <= nVar; ++n) {
        const ExportNumber value = number(n);
        xml.Open("VariableValue");
        xml.Element("nVarNumber", std::to_string(n));
        xml.Element("nVarValue", value.text);
        xml.Element("nVarDigits", std::to_string(value.digits));
        ExportVarUnc(xml, n, rows);
        xml.Close();
    }
    const ExportNumber value = number(0);
    xml.Open("PropertyValue");
    // The number of the head to which the value belongs.
    xml.Element("nPropNumber", "1");
    xml.Element("nPropValue", value.text);
    xml.Element("nPropDigits", std::to_string(value.digits));
    ExportPropUnc(xml, rows);
    xml.Close();
    xml.Close();
}

} // namespace vexora
