// What single values of compounds and of mixtures share in the export.
#pragma once

#include <string>
#include <string_view>

#include "export/Statements.h"

namespace vexora {

class SingleValue;
class XmlWriter;
class clsX;
struct DataSubject;

/// How the value is converted.
ExportUnit PropertyUnitOf(const SingleValue& value);
/// Why the value cannot leave, in words for the user; empty when it can.
std::string ValueFault(const DataSubject& subject, const SingleValue& value);
/// The property, which single values never state relative to another state, in this phase; item
/// holds its statements.
void ExportDirectProperty(XmlWriter& xml, const DataSubject& subject, const SingleValue& value,
                          const clsX& item, std::string_view phase);
/// The value with its statements; false when a repeatability was announced but has no figure.
bool ExportPropertyValue(XmlWriter& xml, const SingleValue& value, const clsX& item);
/// Number, value, digits and statements of one quantity; role is "Prop" or "Var".
bool ExportQuantity(XmlWriter& xml, const std::string& role, const std::string& typed,
                    const clsX& item, const ExportUnit& unit);

} // namespace vexora
