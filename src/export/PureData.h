// The elements that single values and data sets of pure compounds share in the export.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class clsA;
class clsS;
class clsX;
class XmlWriter;

/// Tells the user what of a sample's data could not be exported as they stand.
void TellDataError(const clsS& sample, std::string_view propertyCode, const std::string& fault);

/// True when the tags of the comment hold this one (":PB:").
bool HasTag(const clsA& header, std::string_view tag);

/// Component, purpose, compiler and date.
void ExportOrigin(XmlWriter& xml, const clsS& sample, const clsA& header);
/// Number, group with name and method, and phase of the property.
void ExportPropertyHead(XmlWriter& xml, const std::string& code, const std::string& group,
                        std::string_view phase, const clsA& header);
/// An element with a phase inside; nothing for no phase.
void ExportPhase(XmlWriter& xml, std::string_view element, std::string_view inner,
                 std::string_view phase);
/// A PhaseID for each phase, and one of the gas for what is measured where the liquid boils.
void ExportPhases(XmlWriter& xml, const std::string& code, const clsA& header,
                  std::initializer_list<std::string_view> phases);

/// A state variable that stays the same: its group and name, the value in system units, and what
/// `statements` writes about it.
void ExportConstraint(XmlWriter& xml, const std::string& group, const std::string& name,
                      const std::string& value, int digits,
                      const std::function<void()>& statements = {});
/// The constraint of one atmosphere.
void ExportAtmosphere(XmlWriter& xml);
/// The head of state variable `number`; item holds its statements.
void ExportVariable(XmlWriter& xml, int number, const std::string& code, std::string_view phase,
                    const clsX& item);

} // namespace vexora
