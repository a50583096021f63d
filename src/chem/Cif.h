#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A number of a CIF and its uncertainty in figures of the number itself: "11.877(3)" is 11.877 and
/// 0.003. The digits are those of the text.
struct CifNumber {
    std::string value, uncertainty; // empty for none
    bool operator==(const CifNumber&) const = default;
};

/// The number in a text, also one without uncertainty; false for any other text.
bool ReadCifNumber(std::string_view text, CifNumber& number);

struct CifAtom {
    std::string symbol;                // "O"
    std::array<CifNumber, 3> position; // as parts of the cell lengths
    std::string occupancy;
    bool operator==(const CifAtom&) const = default;
};

/// What a structure of a sample takes from a CIF.
struct CifStructure {
    std::string block;             // its name
    std::string spaceGroup;        // Hermann-Mauguin symbol without blanks, empty for none
    std::array<CifNumber, 6> cell; // a, b, c [A], alpha, beta, gamma [degree]
    double units = 0;              // formula units a cell (Z), 0 for none
    std::string formula;           // of one unit, empty for none
    std::vector<CifAtom> atoms;    // hydrogen, carbon, nitrogen, oxygen
    std::vector<std::string> told; // what was left out or read otherwise than it stands there
};

struct CifReading {
    CifStructure structure;
    std::string fault; // why nothing was read; empty otherwise
};

/// The structure of the first data block that has a cell. What a CIF holds beyond cell, space group
/// and atoms is left out, which is told.
/// It is refused whole where a figure that would be taken cannot be read: half a structure looks
/// like a whole one.
CifReading ReadCif(std::string_view text);

} // namespace vexora
