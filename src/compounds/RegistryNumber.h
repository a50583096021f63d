// The registry number as a person types it: three parts in three boxes, the check digit computed
// from the first two. Nothing here knows a form.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vexora {

class clsR;

/// The number in its three parts: up to seven digits, two digits, the check digit.
struct RegistryParts {
    std::string Front, Middle, Check;

    bool IsEmpty() const { return Front.empty() && Middle.empty() && Check.empty(); }
    /// The parts in one, without dashes. A check digit that is no single digit is computed.
    std::string Joined() const;
};

/// The parts of a number without dashes; one of fewer than four characters has an empty front.
RegistryParts SplitRegistryNumber(std::string_view rn);

/// "7732-18-5" for "7732185".
std::string DashedRegistryNumber(std::string_view rn);

/// The parts of a whole number as it is printed, "7732-18-5"; nothing for any other text. The check
/// digit is taken as it stands.
std::optional<RegistryParts> PrintedRegistryNumber(std::string_view text);

/// The check digit that belongs to the first two parts; empty unless the second has two characters
/// and both together are a number without blank and point.
std::string CheckDigitText(std::string_view front, std::string_view middle);

/// What is wrong with a typed number: the words, the part (0 front, 1 middle) and what to mark in
/// it.
struct RegistryNumberFault {
    std::string Text;
    int Part = 0;
    std::size_t Start = 0; // first character to mark, from 0
    std::size_t Length = 0;
};

/// The first finding in the order of the parts; nothing for three empty parts or a sound number.
std::optional<RegistryNumberFault> CheckRegistryNumber(const RegistryParts& parts);

/// The first machine-made number from this one on that no compound of the source bears.
std::string FreeSubstanceRN(const clsR& source, std::string_view rn);

} // namespace vexora
