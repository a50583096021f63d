#pragma once

#include <string>
#include <vector>

namespace vexora {

/// An element with its atomic weight to five figures [g/mol]. A whole number is that of a
/// long-lived isotope, of which lists name different ones.
struct AbridgedWeight {
    std::string symbol;
    double weight = 0;
    bool isMassNumber = false;
};

/// A list apart from the table of atomic masses, to compare it with: deuterium and tritium, then
/// all elements.
std::vector<AbridgedWeight> AbridgedWeights();

} // namespace vexora
