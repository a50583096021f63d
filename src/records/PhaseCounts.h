#pragma once

#include <string>
#include <vector>

namespace vexora {

/// How many phases of a system are of each kind; negative when the first one is. Air counts as a
/// gas, a glass as a solid.
struct PhaseCounts {
    int solid = 0, liquid = 0, gas = 0, fluid = 0;
    int all = 0; // of known kinds or not

    /// The main phase comes first.
    static PhaseCounts Of(const std::vector<std::string>& phases);
    /// A fluid stands for the liquid, else for the gas, that is not there.
    PhaseCounts WithFluidAsMissing() const;
};

} // namespace vexora
