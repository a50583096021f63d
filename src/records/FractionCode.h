#pragma once

#include <optional>
#include <string_view>

namespace vexora {

/// A fraction of the whole mixture: "X" by amount, "W" by mass, "V" by volume, of component 1 to 3.
struct FractionCode {
    char kind = 'X';
    int component = 1;

    /// Nothing for other codes. Ratios, molalities and the composition of a solvent have no whole
    /// that they are a part of, and so no place between the pure components.
    static std::optional<FractionCode> Of(std::string_view code) {
        if (code.size() != 2 || code[1] < '1' || code[1] > '3') return std::nullopt;
        if (code[0] != 'X' && code[0] != 'W' && code[0] != 'V') return std::nullopt;
        return FractionCode{code[0], code[1] - '0'};
    }
};

} // namespace vexora
