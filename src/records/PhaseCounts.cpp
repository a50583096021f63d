#include "records/PhaseCounts.h"

#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// A glass answers like a crystal in what it is in equilibrium with.
bool IsSolid(const std::string& phase) {
    return IsCrystalPhase(phase) || phase == "VG";
}

} // namespace

PhaseCounts PhaseCounts::Of(const std::vector<std::string>& phases) {
    PhaseCounts counts;
    int* ofMain = nullptr;
    for (const std::string& phase : phases) {
        int* const kind = phase == "G" || phase == "air" ? &counts.gas
                          : phase == "FL"                ? &counts.fluid
                          : IsSolid(phase)               ? &counts.solid
                          : IsLiquidPhase(phase)         ? &counts.liquid
                                                         : nullptr;
        if (kind) ++*kind;
        if (counts.all++ == 0) ofMain = kind;
    }
    if (ofMain) *ofMain = -*ofMain;
    return counts;
}

PhaseCounts PhaseCounts::WithFluidAsMissing() const {
    PhaseCounts counts = *this;
    if (liquid == 0)
        counts.liquid = fluid;
    else if (gas == 0)
        counts.gas = fluid;
    return counts;
}

} // namespace vexora
