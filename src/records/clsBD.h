#pragma once

#include <vector>

#include "reference/ShortText.h"

namespace vexora {

/// A value of a row, and its uncertainty where the set gives that row by row.
struct BioCell {
    ShortText value = {}, uncertainty = {};
    bool operator==(const BioCell&) const = default;
};

/// A row of a bio set: a cell for each of its properties and then for each of its variables, in
/// the order of the set. What its line holds depends on the set, which reads and writes it.
class clsBD {
public:
    std::vector<BioCell> Cells;
    bool Flag1 = false, Flag2 = false; // two marks of the set, which rows read later take over
};

} // namespace vexora
