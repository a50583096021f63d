#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexora {

/// A unit as columns keep it: a conversion code, or ProcessColumn::ByFactor with the factor.
struct HeadingUnit {
    std::string unit, factor;
    bool operator==(const HeadingUnit&) const = default;
};

/// The unit of a quantity from a plain heading ("J*K^-1*mol^-1", "J/(mol K)", "mm Hg", "10^5 Pa"),
/// the values having been multiplied by scale before they were printed. Nothing where the text is
/// no unit of this quantity.
std::optional<HeadingUnit> ReadUnit(std::string_view text, std::string_view quantity,
                                    double scale = 1);

/// The unit that is this factor of the system unit of a quantity.
HeadingUnit UnitByFactor(double factor, std::string_view quantity);

} // namespace vexora
