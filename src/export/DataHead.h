// The elements that stand at the head of all data in the export, single values and sets alike.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class clsA;
class clsL;
class clsX;
class XmlWriter;

/// Tells the user which data could not be exported as they stand.
struct DataName {
    std::string system; // compound, mixture or reaction
    std::string_view context;
    std::string_view propertyCode;
};
template <class Data>
DataName NameOf(const Data& data) {
    return {data.SystemName(), data.DataContext(), data.PRPCODE};
}
void TellDataError(const DataName& data, const std::string& fault);

/// True when the tags of the comment hold this one ("PB").
bool HasTag(const clsA& header, std::string_view tag);

/// One compound of the system with the number of its sample.
void ExportComponent(XmlWriter& xml, const clsL& compound, std::string_view sample);
/// Purpose, compiler and date.
void ExportOrigin(XmlWriter& xml, const clsA& header);
/// Number, group with name and method, and phase of the property.
void ExportPropertyHead(XmlWriter& xml, const DataName& data, const std::string& group,
                        std::string_view phase, const clsA& header);
/// An element with a phase inside; nothing for no phase.
void ExportPhase(XmlWriter& xml, std::string_view element, std::string_view inner,
                 std::string_view phase);
/// A PhaseID for each phase, and one of the gas for what is measured where the liquid boils.
void ExportPhases(XmlWriter& xml, std::string_view code, const clsA& header,
                  const std::vector<std::string>& phases);

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
