#include "chem/KeyTags.h"

namespace vexora {

bool HasKeyTag(std::string_view tags, std::string_view key) {
    return !key.empty() && tags.find(":" + std::string(key) + ":") != std::string_view::npos;
}

std::string SetKeyTag(std::string_view tags, std::string_view key, bool on) {
    std::string result(tags);
    if (!result.starts_with(':')) result.insert(0, ":");
    if (!result.ends_with(':')) result += ':';
    if (key.empty() || HasKeyTag(result, key) == on) return result;
    if (on) return result + std::string(key) + ":";
    const std::string tag = ":" + std::string(key) + ":";
    for (std::size_t at = result.find(tag); at != std::string::npos; at = result.find(tag))
        result.replace(at, tag.size(), ":");
    return result;
}

} // namespace vexora
