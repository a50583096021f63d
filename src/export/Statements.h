#pragma once

#include <string>
#include <string_view>

#include "records/UnitConversion.h"

namespace vexora {

class clsX;
class XmlWriter;
struct RowStatements;

/// What turns an entered value into the exported one: the unit in which it stands and the molar
/// mass [g/mol] for units by mass. converts is false for values that already are in system units.
/// Of a value as it stands in its record; the unit in which it leaves is the system unit (nm for
/// wavelengths).
struct ExportUnit : UnitConversion {
    bool converts = false;
    bool wavelength = false; // leaves in nm: what was entered in nm as typed, system units by 10
    bool difference = false; // the values are differences, so that an offset of the unit cancels
};

/// A number as it leaves, with its count of digits (at least 1).
/// The count goes out beside the text, for a reader of XML may not keep trailing zeros.
struct ExportNumber {
    std::string text;
    int digits = 1;
};

/// Converts a typed value; what needs no conversion goes out as typed. count is its recorded count
/// of digits, 0 for that of its text.
/// typed must be a number (IsNumeric after NormalizeNumber); see ConversionFault for the unit.
ExportNumber ExportedValue(std::string_view typed, const ExportUnit& unit, int count = 0);

/// Why a value in this unit cannot be converted, in words for the user; empty when it can.
/// To be asked before ExportedValue, which would make 0 of such a value.
std::string ConversionFault(const ExportUnit& unit);

/// The fault of data whose property or variable the reference tables give no element.
inline constexpr char NoPlaceInExport[] =
    "The reference tables have no place for these data in the export";

/// What is told of a repeatability that is announced and has no figure.
inline constexpr char NoRepeatability[] = "Missing repeatability in ";

/// What is told of a unit by mass in a mixture whose composition does not tell its molar mass.
inline constexpr char NoMolarMass[] = "Unable to calculate average molar mass";

/// What one row of a set states itself; it goes before what the set states.
/// Views into the row: no longer valid than that.
struct RowFigures {
    const RowStatements& statements;
    std::string_view combined;
    std::string_view curveDeviation;
    bool setConverts = false; // the figures of the set stand in the entered unit
};

/// What stands behind a mark that is off is not stated, and says nothing about the rows either.
void DropUnstated(clsX& item);

/// The statements of one value, in the order of their heads (clsX::ExportX); role is "Prop" or
/// "Var". value is the typed value of the quantity, to which per cent refer. False when a
/// repeatability was announced but has no figure.
/// Figures leave as absolute ones, per cent multiplied out, and are never negative.
bool ExportStatements(XmlWriter& xml, const clsX& item, std::string_view role,
                      std::string_view value, const ExportUnit& unit,
                      const RowFigures* row = nullptr);

/// What is stated about a state variable that stays the same: heads and figures in one, since no
/// values follow. False when a repeatability was announced but has no figure.
bool ExportConstraintStatements(XmlWriter& xml, const clsX& item, std::string_view value,
                                const ExportUnit& unit);

} // namespace vexora
