#include "records/clsData.h"

#include "export/RowExport.h"
#include "export/XmlWriter.h"

namespace vexora {

namespace {

ExportUnit UnitInRow(const RowExport::Quantity& quantity, const clsData& row) {
    ExportUnit unit = quantity.unit;
    unit.converts = row.inOriginalUnits;
    return unit;
}

void ExportUnc(XmlWriter& xml, std::string_view role, const clsData& row, int n, RowExport& set) {
    const auto place = static_cast<std::size_t>(n);
    const RowExport::Quantity& quantity = set.quantities[place];
    RowFigures own{row.StatementsOf(n), {}, {}, quantity.unit.converts};
    if (n == 0 && row.Extras) {
        own.combined = row.Extras->userCU;
        own.curveDeviation = row.Extras->CD;
    }
    if (!ExportStatements(xml, quantity.item, role, row.Values[place], UnitInRow(quantity, row),
                          &own))
        set.lacksRepeatability = true;
}

} // namespace

void clsData::ExportPropUnc(XmlWriter& xml, RowExport& set) const {
    ExportUnc(xml, "Prop", *this, 0, set);
}

void clsData::ExportVarUnc(XmlWriter& xml, int n, RowExport& set) const {
    ExportUnc(xml, "Var", *this, n, set);
}

void clsData::ExportData(XmlWriter& xml, RowExport& set) const {
    const auto number = [&](int n) {
        const auto place = static_cast<std::size_t>(n);
        return ExportedValue(Values[place], UnitInRow(set.quantities[place], *this), DigitCount(n));
    };
    xml.Open("NumValues");
    for (int n = 1; n <= nVar; ++n) {
        const ExportNumber value = number(n);
        xml.Open("VariableValue");
        xml.Element("nVarNumber", std::to_string(n));
        xml.Element("nVarValue", value.text);
        xml.Element("nVarDigits", std::to_string(value.digits));
        ExportVarUnc(xml, n, set);
        xml.Close();
    }
    const ExportNumber value = number(0);
    xml.Open("PropertyValue");
    xml.Element("nPropNumber", "1");
    xml.Element("nPropValue", value.text);
    xml.Element("nPropDigits", std::to_string(value.digits));
    ExportPropUnc(xml, set);
    xml.Close();
    xml.Close();
}

} // namespace vexora
