#pragma once

#include <string>
#include <vector>

namespace vexora {

class clsZ;

/// Something about the open document that a careful reader would question.
struct DocumentFinding {
    int line = 0;         // of the file that was read, 0 for a record made since
    bool isError = false; // false: a warning
    std::string text;
};

/// Goes through the open document without asking or changing anything: identity of the source,
/// compounds that would not be saved, descriptions that cannot be taken apart, codes that the
/// tables do not hold, numbers that are none, values that are impossible or suspicious. What is
/// said of the rows of a set names the first of them.
std::vector<DocumentFinding> CheckDocument();

} // namespace vexora
