#pragma once

#include <string>

namespace vexora {

/// What is wrong, or only doubtful, in one cell of a table. Marks in the table, the list below it
/// and the boxes of Accept all show the same findings.
/// Made anew after every change and compared by value; it holds nothing of the row itself.
struct Finding {
    int row = 0, column = 0; // as the grid counts them
    std::string text;        // as a box shows it
    bool isFault = true;     // else a question
    bool operator==(const Finding&) const = default;
};

} // namespace vexora
