// What phases a mixture set has, and what kind of equilibrium they make.
#include "records/PhaseCounts.h"
#include "records/clsMV.h"
#include "reference/MixtureCodes.h"
#include "reference/Vocabulary.h"

#include <cstdlib>

namespace vexora {

namespace {

/// The component whose pure crystal is there, 0 for none.
char PureCrystal(const clsMV& set) {
    for (int n = 1; n <= set.ConstraintCount(); ++n) {
        const std::string& code = set.CONSTRAINT(n);
        if (code.size() == 3 && code.starts_with("Cp")) return code[2];
    }
    return '\0';
}

/// Of a liquid with a solid: whether it is looked at along the solid or along the vapour.
std::string SolidContext(const clsMV& set, int gas) {
    if (gas == 0) return "sle";
    if (gas < 0 || set.PRPCODE == "P") return "vle";
    if (set.PHASE1 != "L") return "sle";
    const char component = PureCrystal(set);
    if (IsComposition(set.PRPCODE))
        return component != '\0' && set.PRPCODE[1] == component ? "sle" : "vle";
    return component == '\0' ? "vle" : "sle";
}

} // namespace

int clsMV::iSolid() const {
    return PhaseCounts::Of(Phases()).solid;
}

int clsMV::iLiquid() const {
    return PhaseCounts::Of(Phases()).liquid;
}

int clsMV::iGas() const {
    return PhaseCounts::Of(Phases()).gas;
}

int clsMV::iFluid() const {
    return PhaseCounts::Of(Phases()).fluid;
}

int clsMV::nPhases() const {
    return PhaseCounts::Of(Phases()).all;
}

std::string clsMV::Context(bool* isKnown) const {
    const PhaseCounts counts = PhaseCounts::Of(Phases()).WithFluidAsMissing();
    const int solid = counts.solid;
    const int liquid = counts.liquid;
    const int gas = counts.gas;
    if (isKnown) *isKnown = true;
    if (std::abs(liquid) == 1 && std::abs(gas) == 1 && solid == 0) return "vle";
    if (std::abs(solid) == 1 && std::abs(gas) == 1 && liquid == 0) return "sub";
    if (std::abs(liquid) > 1 && solid == 0) return "lle";
    if (liquid != 0 && solid != 0) return SolidContext(*this, gas);
    if (std::abs(solid) == 2 && liquid == 0) return "sse";
    if (isKnown) *isKnown = counts.all <= 1;
    return {};
}

} // namespace vexora
