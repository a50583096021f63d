#include "export/SingleValues.h"

#include "export/DataHead.h"
#include "export/XmlWriter.h"
#include "records/SingleValue.h"
#include "reference/Numbers.h"

namespace vexora {

ExportUnit PropertyUnitOf(const SingleValue& value) {
    return {value.PropertyConversion(), value.isOriginalUnit};
}

std::string ValueFault(const DataSubject& subject, const SingleValue& value) {
    if (!subject.HasPlace()) return NoPlaceInExport;
    if (!IsNumeric(NormalizeNumber(value.PRPVALUE)))
        return "The value is no number: " + value.PRPVALUE;
    return ConversionFault(PropertyUnitOf(value));
}

void ExportDirectProperty(XmlWriter& xml, const DataSubject& subject, const SingleValue& value,
                          const clsX& item, std::string_view phase) {
    xml.Open("Property");
    ExportPropertyHead(xml, subject, phase, value.Header);
    xml.Element("ePresentation", "Direct value, X");
    ExportSolvent(xml, subject, value.PRPCODE);
    item.ExportX(xml, "Prop");
    xml.Close();
}

bool ExportQuantity(XmlWriter& xml, const std::string& role, const std::string& typed,
                    const clsX& item, const ExportUnit& unit) {
    const ExportNumber number = ExportedValue(typed, unit);
    xml.Element("n" + role + "Number", "1");
    xml.Element("n" + role + "Value", number.text);
    xml.Element("n" + role + "Digits", std::to_string(number.digits));
    return ExportStatements(xml, item, role, typed, unit);
}

bool ExportPropertyValue(XmlWriter& xml, const SingleValue& value, const clsX& item) {
    xml.Open("PropertyValue");
    const bool isWhole = ExportQuantity(xml, "Prop", value.PRPVALUE, item, PropertyUnitOf(value));
    xml.Close();
    return isWhole;
}

} // namespace vexora
