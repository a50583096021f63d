#pragma once

#include <optional>
#include <vector>

#include "chem/VaporLiquidTests.h"
#include "chem/VaporPressureCurve.h"

namespace vexora {

class clsM;
class clsMV;

/// A state whose temperature [K] or pressure [kPa] need not be known.
struct PartialState {
    double x = 0, y = 0;
    std::optional<double> level;
};

/// What the sets of a binary with equal samples tell together of its liquid and gas at one
/// temperature [K] or pressure [kPa]. Mole fractions are those of component 1.
struct BoilingCurve {
    HeldInBoiling held = HeldInBoiling::Pressure;
    double constant = 0;
    const clsMV* set = nullptr; // the first of them
    std::vector<PartialState> states;
    /// The level [K or kPa] at which component 1 or 2 is alone.
    std::optional<double> pure1, pure2;
    double least = 0; // the coarsest last digit of a level

    /// Those of which all is known.
    std::vector<BoilingState> States() const;
};

/// The curves of which both compositions are known. A paper tells T, x and y in sets of two of them
/// each; rows are joined by the one that they share, equal ones in the order in which they stand.
std::vector<BoilingCurve> BoilingCurvesOf(const clsM& mixture);

/// Boiling points of component n, 1 or 2, by all of its samples in the document. To be asked once a
/// mixture: there may be many.
std::vector<VaporPressurePoint> BoilingPointsOf(const clsM& mixture, int n);
/// The vapor pressures of a component by those points and the end of the curve itself.
VaporPressureCurve VaporPressuresAt(const BoilingCurve& curve, int n,
                                    std::vector<VaporPressurePoint> points);

} // namespace vexora
