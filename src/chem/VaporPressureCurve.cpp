#include "chem/VaporPressureCurve.h"

#include <algorithm>
#include <cmath>

namespace vexora {

namespace {

// [K] Temperatures that differ by less are one: no vapor pressure is known more closely.
constexpr double SameTemperature = 0.005;

} // namespace

VaporPressureCurve::VaporPressureCurve(std::vector<VaporPressurePoint> points) {
    std::erase_if(points, [](const VaporPressurePoint& one) { return !(one.t > 0 && one.p > 0); });
    std::ranges::sort(points, {}, &VaporPressurePoint::t);
    double count = 1;
    for (const VaporPressurePoint& one : points) {
        if (points_.empty() || one.t - points_.back().t >= SameTemperature) {
            points_.push_back(one);
            count = 1;
            continue;
        }
        VaporPressurePoint& known = points_.back();
        known.p *= std::pow(one.p / known.p, 1 / ++count);
    }
}

std::optional<double> VaporPressureCurve::Line(std::size_t a, std::size_t b, double t) const {
    const VaporPressurePoint& from = points_[a];
    const VaporPressurePoint& to = points_[b];
    const double slope = std::log(to.p / from.p) / (1 / to.t - 1 / from.t);
    return from.p * std::exp(slope * (1 / t - 1 / from.t));
}

/// The point that gives the direction at an end: one at least as far inside as is reached out, for
/// neighbours that stand close say little.
std::size_t VaporPressureCurve::PartnerOf(std::size_t end, double reach) const {
    const auto isFarEnough = [&](std::size_t i) {
        return std::abs(points_[i].t - points_[end].t) >= reach;
    };
    const std::size_t last = points_.size() - 1;
    std::size_t partner = end == 0 ? 1 : last - 1;
    while (partner != 0 && partner != last && !isFarEnough(partner))
        end == 0 ? ++partner : --partner;
    return partner;
}

std::optional<double> VaporPressureCurve::At(double t) const {
    if (points_.size() < 2) {
        const bool isIts = !points_.empty() && std::abs(points_[0].t - t) < SameTemperature;
        return isIts ? std::optional(points_[0].p) : std::nullopt;
    }
    const auto above = std::ranges::lower_bound(points_, t, {}, &VaporPressurePoint::t);
    const auto next = static_cast<std::size_t>(above - points_.begin());
    if (next > 0 && next < points_.size()) return Line(next - 1, next, t);
    const std::size_t end = next == 0 ? 0 : next - 1;
    const double reach = std::abs(t - points_[end].t);
    if (!(reach <= FarthestBeyond)) return std::nullopt;
    return Line(end, PartnerOf(end, reach), t);
}

std::optional<double> VaporPressureCurve::BoilingAt(double p) const {
    if (points_.size() < 2) {
        const bool isIt = !points_.empty() && std::abs(points_.front().p - p) <= 1e-9 * p;
        return isIt ? std::optional(points_.front().t) : std::nullopt;
    }
    double low = std::max(points_.front().t - FarthestBeyond, points_.front().t / 2);
    double high = points_.back().t + FarthestBeyond;
    const auto isBelow = [&](double t) { return At(t).value_or(0) < p; };
    if (!isBelow(low) || isBelow(high)) return std::nullopt;
    constexpr int steps = 50; // halves 1000 K down to the last digit of a double
    for (int i = 0; i < steps; ++i) {
        const double middle = (low + high) / 2;
        (isBelow(middle) ? low : high) = middle;
    }
    return high;
}

} // namespace vexora
