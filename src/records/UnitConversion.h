#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// A converted number and how many of its digits were measured; it may show more of them.
struct ConvertedNumber {
    std::string text;
    int digits = 0;
};

/// How entered values of one quantity lead to its system unit: by a conversion code, or by a factor
/// (> 0) in its place, with the molar mass [g/mol] for units by mass.
struct UnitConversion {
    /// "S" is the system unit; one letter a built-in unit, longer codes those of the tables.
    std::string code = "S";
    /// Wins over the code, which is only the memory of a name then.
    double factor = 0;
    double molarMass = 0;
    std::string unit = {}; // system unit of the quantity; with none, any known code counts

    /// False when values already stand in the system unit.
    bool ChangesValues() const;
    /// False for a unit that no table knows for the quantity, and for one by mass without the molar
    /// mass.
    bool IsPossible() const;
    /// 0 for a unit that is not known: IsPossible has to be asked before.
    double Absolute(double value) const;
    /// Without the offset of the unit.
    /// Differences of 1 C and of 1 K are the same, though 1 C is 274.15 K.
    double Difference(double value) const;
    /// An entered value in the system unit. It shows the digits typed, and more until it comes back
    /// within a fifth of a unit of the typed last place; no conversion loses what was read off.
    /// count is the recorded count of typed digits, 0 for that of the text. What is no number, and
    /// a 0 of a unit with the same zero, stays as typed.
    ConvertedNumber Converted(std::string_view typed, int count = 0,
                              bool isDifference = false) const;
    /// An entered difference in the system unit; per cent and other texts as they stand.
    std::string DifferenceText(const std::string& typed) const;
    /// The ways back, by the same rule.
    std::string EnteredText(std::string_view system) const;
    std::string EnteredDifferenceText(const std::string& system) const;

private:
    double Entered(double system, bool isDifference) const;
};

} // namespace vexora
