#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace vexora {

/// One point of a curve; least is one unit of the last digit that was typed for y.
/// No uncertainty enters here: a misprint is found by its neighbours, whatever its author states.
struct FitPoint {
    double x = 0, y = 0, least = 0;
};

/// One row of a table; unused variables are 0.
struct FitRow {
    std::array<double, 8> x{};
    double y = 0, least = 0;
};

/// How a curve is brought near to a straight line before neighbours are compared: as it is, or the
/// logarithm of y against 1 / x, for pressures against an absolute temperature.
/// A vapour pressure follows ln p = A - B / T over wide ranges (Clausius and Clapeyron), where p
/// itself is too steep for a polynomial.
enum class FitScale { Plain, Vapor };

/// In rising order: several views of a curve give the least of their verdicts.
enum class FitVerdict { None, Near, Far };

/// Whether each point of a curve lies far from what its neighbours say. Far is a point that a
/// polynomial through up to ten neighbours misses by many times both their own scatter and the
/// scatter of the whole curve, by more than the typed digits explain, and that still does so when
/// any one of the neighbours is left out; without it the neighbours have to fit to one another. So
/// are two points within five rows that are far once the other one is left out.
/// Where y is positive its logarithm has to say the same, so that a steep but smooth curve has no
/// such points; so has the logarithm of x where x runs over decades. Fewer than 12 points give no
/// verdict, and the plain scale none on the first and the last one. The time grows as n log n.
std::vector<FitVerdict> LocalFit(const std::vector<FitPoint>& points, FitScale scale);

/// Positions, ascending, of the rows of a table that lie far on a curve along one of its variables,
/// all others being equal, and near on none. There is one scale a variable.
std::vector<std::size_t> FarRows(const std::vector<FitRow>& rows,
                                 const std::vector<FitScale>& scales);

/// One unit of the last digit of a number as typed: 0.01 for "1.50", 100 for "1.5E3".
/// The text is a number (IsNumeric); trailing zeros count as digits that were meant.
double UnitOfLastDigit(std::string_view number);

} // namespace vexora
