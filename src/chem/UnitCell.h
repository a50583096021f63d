// The cell of a crystal: its volume, what follows from it, and which shape its constants have.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "chem/SpaceGroups.h"

namespace vexora {

/// The six constants of a cell, nothing for one that is not known.
struct CellConstants {
    std::array<std::optional<double>, 3> lengths; // a, b, c [A]
    std::array<std::optional<double>, 3> angles;  // alpha, beta, gamma [degree]
    bool AreComplete() const;
};

/// Volume [A^3]: abc sqrt(1 - cos2 alpha - cos2 beta - cos2 gamma + 2 cos alpha cos beta cos
/// gamma). Nothing for an incomplete cell, or for angles that close none.
std::optional<double> VolumeOf(const CellConstants& cell);
/// Density [g/cm3] of a cell with this volume [A^3] and that many formula units of this molar mass
/// [g/mol].
double DensityOf(double volume, double molarMass, double units);

/// The system whose shape complete constants have, the highest that fits: a cell with the axes of
/// hexagonal crystals may be a trigonal one as well, and rhombohedral axes count as trigonal.
CrystalSystem ShapeOf(const CellConstants& cell);
/// What a crystal system demands and the known constants do not fulfil, in words: "b differs from
/// a", "alpha is not 90". Trigonal crystals may have hexagonal or, as `mayBeRhombohedral` says,
/// rhombohedral axes.
/// Nothing is rounded here: who takes axes for equal types them alike.
std::vector<std::string> Contradictions(CrystalSystem system, bool mayBeRhombohedral,
                                        const CellConstants& cell);

/// What group and constants say against each other: "Not cubic: b differs from a"; "" for nothing.
/// Which of them is wrong only the paper knows.
std::string ContradictionText(std::string_view group, const CellConstants& cell);
/// Volume [A^3] with as many digits as the lengths a, b, c as printed, 3 to 8.
std::string VolumeText(double volume, const std::array<std::string, 3>& lengths);

/// A point or direction in space [A].
using Point3 = std::array<double, 3>;
/// The edges of a cell: a along x, b in the plane of x and y. Nothing where there is no volume.
std::optional<std::array<Point3, 3>> EdgesOf(const CellConstants& cell);
/// From where a cell is looked at: along an edge, or aslant.
enum class CellView { AlongA, AlongB, AlongC, Aslant };
/// A point as it is seen: to the right, upward, and toward the eye.
Point3 Projected(const Point3& point, const std::array<Point3, 3>& edges, CellView view);

} // namespace vexora
