#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sources/citation/Citation.h"

namespace vexora {

/// A name in one of the orders in which formats write it: "Last, First", "Last, First, Jr.",
/// "von Last, Jr., First", "First von Last", or "Last FM" with bare initials.
CitedName NameOf(std::string_view text);
/// True for "et al." and its like, which stand for the authors left out.
bool AreOthers(std::string_view text);
/// True for "Jr.", "III" and their like.
bool IsNameSuffix(std::string_view word);
/// True for "van", "de la" and their like, words in small letters in front of a last name.
bool IsParticle(std::string_view word);
/// True when a word begins with a capital letter, whatever its accent.
bool IsCapitalized(std::string_view word);
/// True for one to three bare capitals: "WH".
bool AreBareInitials(std::string_view word);

} // namespace vexora
