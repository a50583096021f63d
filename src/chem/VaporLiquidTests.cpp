#include "chem/VaporLiquidTests.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace vexora {

namespace {

// An end is judged by states within this part of it, over at least this span of x.
constexpr double EndPart = 0.25;
constexpr double LeastSpan = 0.02;
// Compositions are seldom better than this.
constexpr double LeastEnrichment = 0.002;
// What the conversion of a level may add to its last digit.
constexpr double RoundedUp = 1.001;

/// `states` run inward from the end.
template <class Walk>
std::optional<EndSlope> SlopeAt(Walk begin, Walk end, double atEnd, HeldInBoiling held,
                                double least) {
    if (begin == end || std::abs(begin->x - atEnd) > EndPart) return std::nullopt;
    const Walk inner = std::find_if(begin, end, [&](const BoilingState& state) {
        return std::abs(state.x - begin->x) >= LeastSpan;
    });
    if (inner == end) return std::nullopt;
    const double outside = begin->y - begin->x;
    const double inside = inner->y - inner->x;
    const double change = inner->level - begin->level;
    EndSlope found{begin->x, change / (inner->x - begin->x), (outside + inside) / 2, false};
    if (outside * inside < 0 || std::abs(found.enrichment) < LeastEnrichment) return std::nullopt;
    if (std::abs(change) <= RoundedUp * least) return std::nullopt;
    const double sign = held == HeldInBoiling::Pressure ? -1 : 1;
    found.agrees = sign * found.enrichment * found.slope > 0;
    return found;
}

constexpr std::size_t MostTerms = 4; // of the polynomial
constexpr std::size_t LeastPoints = 5;
// Of x: from an end to the first point, and between two points.
constexpr double WidestEnd = 0.2;
constexpr double WidestGap = 0.35;
// Both areas together of activity coefficients that are some per cent off 1.
constexpr double LeastArea = 0.03;

using Terms = std::array<double, MostTerms>;

/// Legendre polynomials over 0 to 1: all but the first have no area.
Terms TermsAt(double x) {
    const double t = 2 * x - 1;
    return {1, t, (3 * t * t - 1) / 2, (5 * t * t * t - 3 * t) / 2};
}

double Value(const Terms& weights, double x) {
    const Terms terms = TermsAt(x);
    double value = 0;
    for (std::size_t k = 0; k < MostTerms; ++k)
        value += weights[k] * terms[k];
    return value;
}

/// Weights of the first `count` terms by least squares. The normal equations of so few orthogonal
/// terms are well behaved and need no pivots.
Terms FitTerms(const std::vector<RatioPoint>& points, std::size_t count) {
    std::array<Terms, MostTerms> matrix{};
    Terms right{};
    for (const RatioPoint& point : points) {
        const Terms terms = TermsAt(point.x);
        for (std::size_t i = 0; i < count; ++i) {
            right[i] += terms[i] * point.lnRatio;
            for (std::size_t j = 0; j < count; ++j)
                matrix[i][j] += terms[i] * terms[j];
        }
    }
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t row = i + 1; row < count; ++row) {
            const double part = matrix[row][i] / matrix[i][i];
            for (std::size_t j = i; j < count; ++j)
                matrix[row][j] -= part * matrix[i][j];
            right[row] -= part * right[i];
        }
    Terms weights{};
    for (std::size_t i = count; i-- > 0;) {
        weights[i] = right[i];
        for (std::size_t j = i + 1; j < count; ++j)
            weights[i] -= matrix[i][j] * weights[j];
        weights[i] /= matrix[i][i];
    }
    return weights;
}

/// Different places that leave no wide part of the range out.
bool CoverTheRange(const std::vector<RatioPoint>& sorted) {
    std::size_t places = 1;
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        const double gap = sorted[i].x - sorted[i - 1].x;
        if (gap > WidestGap) return false;
        places += gap > 0 ? 1U : 0U;
    }
    return places >= LeastPoints && sorted.front().x <= WidestEnd &&
           sorted.back().x >= 1 - WidestEnd;
}

} // namespace

EndSlopes JudgeEndSlopes(std::vector<BoilingState> states, HeldInBoiling held, double least) {
    std::ranges::stable_sort(states, {}, &BoilingState::x);
    return {SlopeAt(states.begin(), states.end(), 0, held, least),
            SlopeAt(states.rbegin(), states.rend(), 1, held, least)};
}

std::optional<RatioPoint> RatioOf(const BoilingState& state, double pure1, double pure2) {
    const auto isInside = [](double fraction) { return fraction > 0 && fraction < 1; };
    if (!isInside(state.x) || !isInside(state.y) || pure1 <= 0 || pure2 <= 0) return std::nullopt;
    return RatioPoint{
        state.x, std::log(state.y * (1 - state.x) * pure2 / (state.x * (1 - state.y) * pure1))};
}

double AreaTest::Difference() const {
    return 100 * std::abs(above - below) / (above + below);
}

std::optional<AreaTest> CompareAreas(std::vector<RatioPoint> points) {
    if (points.size() < LeastPoints) return std::nullopt;
    std::ranges::sort(points, {}, &RatioPoint::x);
    if (!CoverTheRange(points)) return std::nullopt;
    // Fewer points than these leave no room for a third power beside their errors.
    const std::size_t terms = points.size() < LeastPoints + 2 ? MostTerms - 1 : MostTerms;
    const Terms weights = FitTerms(points, terms);
    constexpr int panels = 2000;
    AreaTest found;
    for (int i = 0; i < panels; ++i) {
        const double value = Value(weights, (i + 0.5) / panels) / panels;
        (value > 0 ? found.above : found.below) += std::abs(value);
    }
    if (found.above + found.below < LeastArea) return std::nullopt;
    return found;
}

double HeringtonAllowance(double lowest, double highest) {
    return 150 * (highest - lowest) / lowest;
}

} // namespace vexora
