#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The tags of a text like KeyRest: words between colons (":gasfree:m:"), the text always beginning
/// and ending with one. Tags that are not asked for keep their place.

/// Whether the key stands between two colons.
bool HasKeyTag(std::string_view tags, std::string_view key);
/// The tags with the key put in, or taken out wherever it stands.
std::string SetKeyTag(std::string_view tags, std::string_view key, bool on);

} // namespace vexora
