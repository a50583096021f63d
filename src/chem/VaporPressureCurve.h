#pragma once

#include <optional>
#include <vector>

namespace vexora {

/// A boiling temperature [K] at a pressure [kPa].
struct VaporPressurePoint {
    double t = 0, p = 0;
};

/// The vapor pressure of a pure compound from what few points of it are known. Between neighbours
/// ln p is a straight line against 1 / T (Clausius and Clapeyron with a constant enthalpy of
/// vaporization and an ideal vapor), which is good to some per cent over 100 K.
class VaporPressureCurve {
public:
    /// [K] beyond the outermost points that the curve is carried on.
    static constexpr double FarthestBeyond = 20;

    /// In any order. Points that are not positive are left out, several at one temperature count as
    /// their mean.
    explicit VaporPressureCurve(std::vector<VaporPressurePoint> points);

    /// Vapor pressure [kPa] at a temperature [K]; nothing too far from the points. A single point
    /// tells of its own temperature only.
    std::optional<double> At(double t) const;
    /// Boiling temperature [K] at a pressure [kPa], by the same curve.
    std::optional<double> BoilingAt(double p) const;

private:
    std::optional<double> Line(std::size_t a, std::size_t b, double t) const;
    std::size_t PartnerOf(std::size_t end, double reach) const;

    std::vector<VaporPressurePoint> points_; // by temperature, each once
};

} // namespace vexora
