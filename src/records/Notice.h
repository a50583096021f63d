#pragma once

#include <string>
#include <vector>

namespace vexora {

/// What a record or a rule has to say to the user. Records show no boxes: whoever calls them says
/// it, in this order.
struct Notice {
    std::string text, title;
};
using Notices = std::vector<Notice>;

/// A line of a file of which the document does not hold all, so that a save would lose it.
struct LineLost {
    int line = 0; // from 1
    std::string text;
};

} // namespace vexora
