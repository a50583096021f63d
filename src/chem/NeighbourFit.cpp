#include "chem/NeighbourFit.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vexora {

namespace {

constexpr std::size_t MostTerms = 5; // of a polynomial
// What is left of a power after the lower ones were taken off, if it says nothing new.
constexpr double SameDirection = 1e-7;

using Values = std::array<double, Neighbours::Most>;

double Product(const Values& a, const Values& b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

/// A polynomial through the neighbours of a point, built from ones that are orthogonal over them.
/// The abscissa is 0 at the point and at most 1 away from it.
/// Gram and Schmidt on ten points at most: no matrix of normal equations whose condition the powers
/// would spoil, and no memory from the heap for a point.
class Fit {
public:
    /// False when the neighbours have too few different places.
    bool Make(const Curve& curve, std::size_t at, Degree degree, std::size_t other) {
        const Neighbours near(curve, at, degree.neighbours, other);
        if (near.count < degree.neighbours || !Place(curve, at, near)) return false;
        for (std::size_t k = 0; k <= degree.degree; ++k)
            if (!Add(k)) return false;
        // Degrees of freedom: points less coefficients.
        const auto free = static_cast<double>(near.count - degree.degree - 1);
        verdict = {fitted_, std::sqrt(Product(left_, left_) / free), std::sqrt(spread_)};
        return true;
    }
    Verdict verdict;

private:
    bool Place(const Curve& curve, std::size_t at, const Neighbours& near) {
        // Values are taken against the point's own: small differences of large numbers keep their
        // digits.
        double widest = 0;
        count_ = near.count;
        for (std::size_t i = 0; i < count_; ++i) {
            t_[i] = curve[near.places[i]].x - curve[at].x;
            left_[i] = curve[near.places[i]].y - curve[at].y;
            widest = std::max(widest, std::abs(t_[i]));
        }
        for (std::size_t i = 0; i < count_; ++i) {
            t_[i] /= widest;
            power_[i] = 1;
        }
        return widest > 0 && std::isfinite(widest);
    }
    /// Takes the part of the next power that is new, and what it explains off the values.
    bool Add(std::size_t k) {
        Values next = power_;
        // The new power at the point itself, where the abscissa is 0.
        double value = k == 0 ? 1 : 0;
        const double before = std::sqrt(Product(next, next));
        for (std::size_t j = 0; j < k; ++j) {
            const double part = Product(next, basis_[j]);
            TakeOff(next, part, basis_[j]);
            value -= part * here_[j];
        }
        const double size = std::sqrt(Product(next, next));
        if (size < SameDirection * before) return false;
        for (std::size_t i = 0; i < count_; ++i) {
            next[i] /= size;
            power_[i] *= t_[i];
        }
        basis_[k] = next;
        here_[k] = value / size;
        const double weight = Product(left_, next);
        TakeOff(left_, weight, next);
        fitted_ += weight * here_[k];
        // Basis of length 1: variances of independent errors of the neighbours add up.
        spread_ += here_[k] * here_[k];
        return true;
    }
    static void TakeOff(Values& values, double weight, const Values& other) {
        for (std::size_t i = 0; i < Neighbours::Most; ++i)
            values[i] -= weight * other[i];
    }

    std::size_t count_ = 0;
    Values t_{}, power_{};
    Values left_{}; // of the values, against the point's own, that is not explained yet
    std::array<Values, MostTerms> basis_{};
    std::array<double, MostTerms> here_{}; // value of each at the point
    double fitted_ = 0;
    // Starts with the point's own error.
    double spread_ = 1;
};

} // namespace

Neighbours::Neighbours(const Curve& curve, std::size_t at, std::size_t wanted, std::size_t other) {
    const std::size_t half = wanted / 2;
    const std::size_t window = wanted + (other == at ? 1 : 2);
    std::size_t from = at > half ? at - half : 0;
    from = std::min(from, curve.size() > window ? curve.size() - window : 0);
    for (std::size_t i = from; i < std::min(from + window, curve.size()); ++i)
        if (i != at && i != other && count < wanted) places[count++] = i;
}

std::optional<Verdict> Judge(const Curve& curve, std::size_t at, Degree degree, std::size_t other) {
    Fit fit;
    if (!fit.Make(curve, at, degree, other)) return std::nullopt;
    return fit.verdict;
}

double DigitAt(const Curve& curve, std::size_t at, std::size_t neighbours) {
    const Neighbours near(curve, at, neighbours, at);
    Values digits{};
    for (std::size_t i = 0; i < near.count; ++i)
        digits[i] = curve[near.places[i]].least;
    std::sort(digits.begin(), digits.begin() + static_cast<std::ptrdiff_t>(near.count));
    return std::max(curve[at].least, digits[near.count / 2]);
}

} // namespace vexora
