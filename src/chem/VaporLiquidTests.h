// What thermodynamics asks of the boiling curve of a binary mixture. All of it is a hint only: the
// vapor is taken for ideal, and data may pass that are wrong.
#pragma once

#include <optional>
#include <vector>

namespace vexora {

/// What is the same in all states: the pressure, while temperatures are measured, or the other way
/// round.
enum class HeldInBoiling { Pressure, Temperature };

/// One state of a liquid and its vapor: mole fractions of component 1 in the liquid (x) and the
/// vapor (y), and the temperature [K] or pressure [kPa] that is not held.
struct BoilingState {
    double x = 0, y = 0, level = 0;
};

/// The direction of the boiling curve at one of its ends.
struct EndSlope {
    double x = 0;          // of the outermost state
    double slope = 0;      // change of the level per mole fraction [K or kPa]
    double enrichment = 0; // y - x
    bool agrees = false;
};
struct EndSlopes {
    std::optional<EndSlope> low, high; // at small and at large x
};

/// The rule of Gibbs and Konovalov at both ends: at one pressure (y - x) dT/dx is negative, at one
/// temperature (y - x) dP/dx is positive (D. Konowalow, Ann. Phys. 14 (1881) 34).
/// An end has no verdict when the states begin too far from it, when y - x changes its sign or is
/// lost in the digits there, or when the level changes by no more than `least`, the last digit
/// typed [unit of the level].
EndSlopes JudgeEndSlopes(std::vector<BoilingState> states, HeldInBoiling held, double least);

/// ln(gamma1 / gamma2) of a liquid of mole fraction x.
struct RatioPoint {
    double x = 0, lnRatio = 0;
};
/// The activity coefficients are y p / (x ps), with the vapor pressures of the pure components at
/// the temperature of the state [kPa]; that of the mixture drops out. Nothing at a pure end.
std::optional<RatioPoint> RatioOf(const BoilingState& state, double pure1, double pure2);

/// The areas of ln(gamma1 / gamma2) against x above and below the line of zero.
struct AreaTest {
    double above = 0, below = 0;
    /// 100 |above - below| / (above + below) [per cent].
    double Difference() const;
};
/// The area test of Redlich and Kister (O. Redlich, A. T. Kister, Ind. Eng. Chem. 40 (1948) 345):
/// at one temperature both areas are equal. The curve is a polynomial through the points by least
/// squares, for they seldom reach both ends. Nothing for fewer than five points, with too wide a
/// gap or too far from an end, or when both areas together are as small as errors are (a mixture
/// near to ideal).
std::optional<AreaTest> CompareAreas(std::vector<RatioPoint> points);

/// What heats of mixing may do to the areas at one pressure [per cent]: J = 150 (Tmax - Tmin) /
/// Tmin, from the highest and lowest boiling temperature [K] of the whole system (E. F. G.
/// Herington, J. Inst. Petrol. 37 (1951) 457).
double HeringtonAllowance(double lowest, double highest);
/// Areas that differ by more than this [per cent], beyond Herington's allowance at one pressure,
/// are called inconsistent (J. Gmehling, U. Onken, Vapor-Liquid Equilibrium Data Collection,
/// DECHEMA Chemistry Data Series I/1, 1977).
inline constexpr double MostAreaDifference = 10;
/// Above this pressure [kPa] no vapor is taken for ideal.
inline constexpr double HighestIdealPressure = 500;

} // namespace vexora
