// What frmProperty offers for a property: its units and the statements that can be made about its
// data. Functions of codes and table rows; no form is known here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/Vocabulary.h"

namespace vexora {

/// The last entry of a list of units: asks for a factor.
/// With the factor the value in the system unit is the typed one times the factor.
inline constexpr const char* AllOtherUnits = "ALL OTHER UNITS";

/// One statement about a value. It is a bit of PRPFLAG, or a tag in the comment when it has a key.
/// It says how the value was come by; the value itself does not depend on it.
struct Statement {
    std::string text;
    int flag = 0;    // bit of PRPFLAG, 0 for a lettered statement
    std::string key; // letter of a lettered one
};

/// The statements that apply to a property in a context ("Pure", "Bin", "Tern", ...). The
/// recommendation to reject is not among them: its bit does not survive a reading.
std::vector<Statement> StatementsFor(std::string_view propertyCode,
                                     std::string_view context = "Pure");

/// The bits of a PRPFLAG field that a record keeps; a text that is no number is 0.
/// The number is decimal; negative ones keep the bits of their two's complement.
int FlagBits(std::string_view flags);

/// The code of a unit in the list of a property; "S" for one without a row.
/// "D" for a dimensionless quantity, "S" for the system unit itself.
std::string UnitCode(const PropertyRow& row, std::string_view text);
/// Name and system unit as messages show them.
/// The unit "1" is not named.
std::string PropertyInWords(const PropertyRow& row);

} // namespace vexora
