#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// How entered values of one quantity lead to its system unit: by a conversion code, or by a factor
/// (> 0) in its place, with the molar mass [g/mol] for units by mass.
struct UnitConversion {
    /// "S" is the system unit; one letter a built-in unit, longer codes those of the tables.
    std::string code = "S";
    /// Wins over the code, which is only the memory of a name then.
    double factor = 0;
    double molarMass = 0;

    /// False when values already stand in the system unit.
    bool ChangesValues() const;
    /// False for a unit that no table knows, and for one by mass without the molar mass.
    bool IsPossible() const;
    /// 0 for a unit that is not known: IsPossible has to be asked before.
    double Absolute(double value) const;
    /// Without the offset of the unit.
    /// Differences of 1 C and of 1 K are the same, though 1 C is 274.15 K.
    double Difference(double value) const;
    /// An entered difference in the system unit, at the digits typed; per cent and other texts as
    /// they stand.
    std::string DifferenceText(const std::string& typed) const;
};

} // namespace vexora
