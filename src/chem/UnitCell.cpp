#include "chem/UnitCell.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "reference/Numbers.h"

namespace vexora {

namespace {

// Avogadro constant times 1E-24 cm3 in a cubic angstrom; exact since 2019.
constexpr double UnitsPerVolume = 0.602214076;
constexpr double RightAngle = 90, HexagonalAngle = 120; // [degree]

double Cosine(double degrees) {
    // The functions of the library miss the zero of a right angle.
    return degrees == RightAngle ? 0 : std::cos(degrees * std::numbers::pi / 180);
}

double Dot(const Point3& a, const Point3& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Point3 Cross(const Point3& a, const Point3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Point3 Unit(const Point3& a) {
    const double length = std::sqrt(Dot(a, a));
    return {a[0] / length, a[1] / length, a[2] / length};
}

/// Says where constants differ from what is demanded of them.
class Demands {
public:
    explicit Demands(const CellConstants& cell) : cell_(cell) {}

    void EqualLengths(std::size_t first, std::size_t second) {
        const auto &one = cell_.lengths[first], &other = cell_.lengths[second];
        if (one && other && !Equal(*one, *other))
            unmet.push_back(std::string(1, "abc"[second]) + " differs from " + "abc"[first]);
    }
    void EqualAngles() {
        for (std::size_t n = 1; n < 3; ++n) {
            const auto &one = cell_.angles[0], &other = cell_.angles[n];
            if (one && other && !Equal(*one, *other))
                unmet.push_back(std::string(AngleNames[n]) + " differs from alpha");
        }
    }
    void Angle(std::size_t n, double degrees) {
        if (cell_.angles[n] && !Equal(*cell_.angles[n], degrees))
            unmet.push_back(std::string(AngleNames[n]) + " is not " + NumberText(degrees));
    }
    void RightAngles() {
        for (std::size_t n = 0; n < 3; ++n)
            Angle(n, RightAngle);
    }
    /// One of the angles is free, whichever; by usage it is beta.
    void AllButOneRight() {
        const auto oblique = std::ranges::count_if(
            cell_.angles, [](const auto& angle) { return angle && !Equal(*angle, RightAngle); });
        if (oblique > 1) unmet.push_back("more than one angle is not 90");
    }

    std::vector<std::string> unmet;

private:
    static constexpr const char* AngleNames[] = {"alpha", "beta", "gamma"};

    const CellConstants& cell_;
};

std::vector<std::string> OfHexagonalAxes(const CellConstants& cell) {
    Demands demands(cell);
    demands.EqualLengths(0, 1);
    demands.Angle(0, RightAngle);
    demands.Angle(1, RightAngle);
    demands.Angle(2, HexagonalAngle);
    return demands.unmet;
}

std::vector<std::string> OfRhombohedralAxes(const CellConstants& cell) {
    Demands demands(cell);
    demands.EqualLengths(0, 1);
    demands.EqualLengths(0, 2);
    demands.EqualAngles();
    return demands.unmet;
}

} // namespace

bool CellConstants::AreComplete() const {
    const auto isKnown = [](const auto& value) { return value.has_value(); };
    return std::ranges::all_of(lengths, isKnown) && std::ranges::all_of(angles, isKnown);
}

std::optional<std::array<Point3, 3>> EdgesOf(const CellConstants& cell) {
    if (!cell.AreComplete()) return std::nullopt;
    const double a = *cell.lengths[0], b = *cell.lengths[1], c = *cell.lengths[2];
    for (const auto& angle : cell.angles)
        if (*angle <= 0 || *angle >= 180) return std::nullopt;
    if (a <= 0 || b <= 0 || c <= 0) return std::nullopt;
    const double cosAlpha = Cosine(*cell.angles[0]), cosBeta = Cosine(*cell.angles[1]),
                 cosGamma = Cosine(*cell.angles[2]);
    const double sinGamma = std::sqrt(1 - cosGamma * cosGamma);
    const double y = (cosAlpha - cosBeta * cosGamma) / sinGamma;
    const double square = 1 - cosBeta * cosBeta - y * y;
    // Angles that add up to a circle leave the edges in one plane.
    constexpr double flat = 1e-9;
    if (!(square > flat)) return std::nullopt;
    const double z = std::sqrt(square);
    const std::array<Point3, 3> edges = {
        Point3{a, 0, 0}, {b * cosGamma, b * sinGamma, 0}, {c * cosBeta, c * y, c * z}};
    if (!std::isfinite(a * b * c)) return std::nullopt;
    return edges;
}

std::optional<double> VolumeOf(const CellConstants& cell) {
    const auto edges = EdgesOf(cell);
    if (!edges) return std::nullopt;
    return (*edges)[0][0] * (*edges)[1][1] * (*edges)[2][2];
}

double DensityOf(double volume, double molarMass, double units) {
    return units * molarMass / (volume * UnitsPerVolume);
}

std::vector<std::string> Contradictions(CrystalSystem system, bool mayBeRhombohedral,
                                        const CellConstants& cell) {
    Demands demands(cell);
    switch (system) {
    case CrystalSystem::Monoclinic:
        demands.AllButOneRight();
        break;
    case CrystalSystem::Orthorhombic:
        demands.RightAngles();
        break;
    case CrystalSystem::Tetragonal:
        demands.EqualLengths(0, 1);
        demands.RightAngles();
        break;
    case CrystalSystem::Trigonal:
        if (mayBeRhombohedral && OfRhombohedralAxes(cell).empty()) return {};
        return OfHexagonalAxes(cell);
    case CrystalSystem::Hexagonal:
        return OfHexagonalAxes(cell);
    case CrystalSystem::Cubic:
        demands.EqualLengths(0, 1);
        demands.EqualLengths(0, 2);
        demands.RightAngles();
        break;
    default:
        break;
    }
    return demands.unmet;
}

CrystalSystem ShapeOf(const CellConstants& cell) {
    if (!cell.AreComplete()) return CrystalSystem::Unknown;
    using enum CrystalSystem;
    for (const CrystalSystem system :
         {Cubic, Hexagonal, Tetragonal, Orthorhombic, Trigonal, Monoclinic})
        if (Contradictions(system, true, cell).empty()) return system;
    return Triclinic;
}

Point3 Projected(const Point3& point, const std::array<Point3, 3>& edges, CellView view) {
    const auto n = static_cast<std::size_t>(view);
    // Aslant: a little from the right of a and from above.
    const Point3 slant = {2.6, 1.1, 0.8};
    const bool isAslant = view == CellView::Aslant;
    const Point3 toEye = Unit(isAslant ? slant : edges[n % 3]);
    const Point3& next = edges[(n + 1) % 3];
    const double depth = Dot(next, toEye);
    const Point3 right =
        Unit(isAslant ? Cross({0, 0, 1}, toEye)
                      : Point3{next[0] - depth * toEye[0], next[1] - depth * toEye[1],
                               next[2] - depth * toEye[2]});
    return {Dot(point, right), Dot(point, Cross(toEye, right)), Dot(point, toEye)};
}

std::string ContradictionText(std::string_view group, const CellConstants& cell) {
    if (cell.AreComplete() && !VolumeOf(cell)) return "These constants close no cell";
    const CrystalSystem system = SystemOfSymbol(group);
    std::string text;
    for (const std::string& unmet : Contradictions(system, group.starts_with('R'), cell))
        text += (text.empty() ? "" : ", ") + unmet;
    return text.empty() ? "" : "Not " + std::string(NameOf(system)) + ": " + text;
}

std::string VolumeText(double volume, const std::array<std::string, 3>& lengths) {
    constexpr int fewest = 3, most = 8;
    int digits = most;
    for (const std::string& length : lengths)
        digits = std::min(digits, SignificantDigits(length));
    return FormatValue(volume, std::max(digits, fewest));
}

} // namespace vexora
