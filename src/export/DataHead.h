// The elements that stand at the head of all data in the export, single values and sets alike.
// They follow the schema of ThermoML: `n` begins the name of a number, `e` one of a fixed list of
// texts, `s` a free text, `yr` a year, `date` a date. An element without content is left out where
// the schema lets it be, and the order of elements is the schema's.
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
/// Words for a message only; nothing of it is exported.
struct DataName {
    std::string system; // compound, mixture or reaction
    std::string_view context;
    std::string_view propertyCode;
};
template <class Data>
DataName NameOf(const Data& data) {
    return {data.SystemName(), data.DataContext(), data.PRPCODE};
}
/// In a box for each set: one that is left out must not go unnoticed.
void TellDataError(const DataName& data, const std::string& fault);

/// True when the tags of the comment hold this one ("PB").
/// "PB" is said of values on a phase boundary, "FP" of values under one atmosphere.
bool HasTag(const clsA& header, std::string_view tag);

/// One compound of the system with the number of its sample.
/// The compound by its number in the source (ExportRegNum), so that the values can be tied to it.
void ExportComponent(XmlWriter& xml, const clsL& compound, std::string_view sample);
/// Purpose, compiler and date.
/// Each element only where the record knows it.
void ExportOrigin(XmlWriter& xml, const clsA& header);
/// Number, group with name and method, and phase of the property.
/// A set has one property, whose number is always 1; rows refer to it by that.
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
/// digits is the count of significant digits, at least 1. Uncertainty statements stand inside,
/// since no row repeats the value.
void ExportConstraint(XmlWriter& xml, const std::string& group, const std::string& name,
                      const std::string& value, int digits,
                      const std::function<void()>& statements = {});
/// The constraint of one atmosphere.
/// 101.325 kPa, exact by definition (CGPM 1954).
void ExportAtmosphere(XmlWriter& xml);
/// The head of state variable `number`; item holds its statements.
/// Numbers run from 1 in the order in which rows give the values.
void ExportVariable(XmlWriter& xml, int number, const std::string& code, std::string_view phase,
                    const clsX& item);

} // namespace vexora
