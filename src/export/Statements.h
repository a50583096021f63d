#pragma once

#include <string>
#include <string_view>

namespace vexora {

class clsX;
class XmlWriter;

/// What turns an entered value into the exported one: the unit in which it stands and the molar
/// mass [g/mol] for units by mass. converts is false for values that already are in system units.
struct ExportUnit {
    std::string code;
    double factor = 0;
    double molarMass = 0;
    bool converts = false;
    bool wavelength = false; // leaves in nm: what was entered in nm as typed, system units by 10
};

/// A number as it leaves, with its count of digits (at least 1).
struct ExportNumber {
    std::string text;
    int digits = 1;
};

/// Converts a typed value; what needs no conversion goes out as typed.
ExportNumber ExportedValue(std::string_view typed, const ExportUnit& unit);

/// Why a value in this unit cannot be converted, in words for the user; empty when it can.
std::string WhyNotConvertible(const ExportUnit& unit);

/// The statements of one value, in the order of their heads (clsX::ExportX); role is "Prop" or
/// "Var". value is the typed value of the quantity, to which per cent refer. False when a
/// repeatability was announced but has no figure.
bool ExportStatements(XmlWriter& xml, const clsX& item, std::string_view role,
                      std::string_view value, const ExportUnit& unit);

} // namespace vexora
