// The elements that stand at the head of all data in the export, single values and sets alike.
// They follow the schema of ThermoML: `n` begins the name of a number, `e` one of a fixed list of
// texts, `s` a free text, `yr` a year, `date` a date. An element without content is left out where
// the schema lets it be, and the order of elements is the schema's.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "reference/Vocabulary.h"

namespace vexora {

class clsA;
class clsX;
class OpenRecord;
class Substance;
class XmlWriter;

/// A compound or complex of the system, with the number of its sample.
struct SystemComponent {
    const Substance* compound = nullptr;
    std::string sample;
};

/// What one set or value is about: its system and property. Elements refer to the compounds of the
/// system, and to none besides.
struct DataSubject {
    std::string system; // compound, mixture or reaction; words for a message only
    std::string_view context, propertyCode;
    std::string propertyContext; // kind of equilibrium, by which names of a property differ
    std::vector<SystemComponent> components;
    std::string_view solvent; // code of the components that it consists of
    /// Names of the property in the schema, as the tables have them; empty where they have none.
    std::string group = XMLPropertyGroup(propertyCode, context, propertyContext);
    std::string name = XMLPropertyName(propertyCode, context, propertyContext);

    const std::string& PropertyGroup() const { return group; }
    const std::string& PropertyName() const { return name; }
    /// Both names are there, and the first may stand as that of an element.
    bool HasPlace() const;
};
template <class Data>
DataSubject SubjectOf(const Data& data, std::vector<SystemComponent> components,
                      std::string propertyContext = {}, std::string_view solvent = {}) {
    return {data.SystemName(),          data.DataContext(),    data.PRPCODE,
            std::move(propertyContext), std::move(components), solvent};
}

/// The same of a state variable, by its code in the tables.
bool VariableHasPlace(std::string_view code);
/// The code by which the tables know a variable of these data: a reaction's may bear the digit of
/// a participant, of which they know nothing.
std::string CodeInTables(const DataSubject& subject, std::string_view code);

/// Tells the user which data could not be exported as they stand.
/// In a box for each set: one that is left out must not go unnoticed.
void TellDataError(const DataSubject& subject, const std::string& fault);
void TellDataError(const std::string& system, const std::string& property,
                   const std::string& fault);

/// True when the tags of the comment hold this one ("PB").
/// "PB" is said of values on a phase boundary, "FP" of values under one atmosphere.
bool HasTag(const clsA& header, std::string_view tag);

/// A record of data with its place in the file, which messages about it name.
void ExportRecord(XmlWriter& xml, const OpenRecord& data);

/// Opens the element of a set or value: its number in the file, the compounds with their samples,
/// purpose, compiler and date, the latter only where the record knows them.
void OpenData(XmlWriter& xml, const DataSubject& subject, const clsA& header);
/// Why it was measured, where that is stated.
void ExportPurpose(XmlWriter& xml, const clsA& header);
/// Compiler, organization and date.
void ExportCompiler(XmlWriter& xml, const clsA& header);
/// Number, group with name and method, and phase of the property.
/// A set has one property, whose number is always 1; rows refer to it by that.
void ExportPropertyHead(XmlWriter& xml, const DataSubject& subject, std::string_view phase,
                        const clsA& header);
/// The compound that a code speaks of; nothing for a code that speaks of none.
void ExportComponentOf(XmlWriter& xml, const DataSubject& subject, std::string_view code);
/// The compounds of the solvent, behind what says nothing without it; nothing behind the rest.
void ExportSolvent(XmlWriter& xml, const DataSubject& subject, std::string_view code);
/// An element with a phase inside; nothing for no phase. The crystal of a pure component is a
/// crystal, and names the compound.
void ExportPhase(XmlWriter& xml, const DataSubject& subject, std::string_view element,
                 std::string_view inner, std::string_view phase);
/// A phase in the words of the export, or its code where no table knows it.
std::string PhaseText(const XmlWriter& xml, std::string_view phase);
/// A PhaseID for each phase, for one that is stated twice as well.
void ExportPhases(XmlWriter& xml, const DataSubject& subject,
                  const std::vector<std::string>& phases);
/// The phases of a pure compound, and the gas for what is measured where the liquid boils.
std::vector<std::string> PhasesOfPure(std::string_view code, const clsA& header,
                                      std::vector<std::string> phases);

/// The head of state variable `number`; item holds its statements.
/// Numbers run from 1 in the order in which rows give the values.
void ExportVariable(XmlWriter& xml, const DataSubject& subject, int number, const std::string& code,
                    std::string_view phase, const clsX& item);

} // namespace vexora
