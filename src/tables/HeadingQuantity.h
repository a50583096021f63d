#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tables/HeadingFraction.h"
#include "tables/HeadingGuess.h"
#include "tables/HeadingUnit.h"

namespace vexora {

/// What one column says of itself, its phase still as the paper names it.
struct ReadColumn {
    std::string quantity;
    HeadingUnit unit;
    bool isUnitPrinted = false; // false for the system unit of a ratio that names none
    bool isVaporLetter = false, isLiquidLetter = false;
    PhaseMark mark;
};

/// Quantity and unit of a plain heading; nothing where it is not sure.
std::optional<ReadColumn> ReadHeading(std::string_view plain, const NamedComponents& components);

} // namespace vexora
