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

} // namespace vexora
