#pragma once

#include <string>

#include "records/clsX.h"

namespace vexora {

/// One quantity of a set as its table shows it, whatever the class of the set.
/// Columns, checks and turns of a table go by a list of these, never by a count of variables.
struct Quantity {
    int item = 0; // its place in a row: 0 the property, 1 and on the variables
    bool isProperty = false;
    std::string name, unit;
    std::string phase; // in which it is meant, empty for none
    clsX statements;   // those of the whole set
};

} // namespace vexora
