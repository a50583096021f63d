#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "chem/LocalFit.h"

namespace vexora {

using Curve = std::vector<FitPoint>; // in the order of x

/// A polynomial and how many neighbours it goes through.
struct Degree {
    std::size_t degree, neighbours;
};

/// What the neighbours of a point say about it.
/// Residual and scatter are in the unit of y; spread is the standard deviation of the residual in
/// terms of that of a single point.
struct Verdict {
    double residual = 0; // of the fit against the point
    double scatter = 0;  // of the neighbours about the fit
    double spread = 1;   // of an error of the neighbours at the point

    double Size() const { return std::abs(residual) / spread; }
};

/// The points next to one on the curve, but for it and one other; that may be itself.
/// Places count from 0 in the curve. At its ends the window is shifted inward, so that the number
/// of neighbours stays and with it the degrees of freedom.
struct Neighbours {
    static constexpr std::size_t Most = 10;

    Neighbours(const Curve& curve, std::size_t at, std::size_t wanted, std::size_t other);

    std::array<std::size_t, Most> places{};
    std::size_t count = 0;
};

/// A polynomial through the neighbours of a point, but for one other, against the point. Nothing
/// when they are too few or stand at too few different places.
std::optional<Verdict> Judge(const Curve& curve, std::size_t at, Degree degree, std::size_t other);

/// One unit of the last digit thereabouts: of the point or of most of its neighbours.
/// The larger of both: a point typed with fewer digits than the others may be off by its own unit,
/// one typed with more is no better than they are.
double DigitAt(const Curve& curve, std::size_t at, std::size_t neighbours);

} // namespace vexora
