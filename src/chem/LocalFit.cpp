#include "chem/LocalFit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>

#include "chem/NeighbourFit.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

// The thresholds are wide on purpose: a mark that is wrong teaches the operator to pass over marks.
constexpr std::size_t LeastPoints = 12;
constexpr std::size_t ShortCurve = 50;    // here each point is judged by all the others
constexpr std::size_t SampleSize = 50;    // points that tell which polynomial fits best
constexpr double TimesLocal = 10;         // the scatter of the neighbours
constexpr double TimesAtEnd = 5;          // nobody stands beyond the first and the last point
constexpr double TimesWhole = 8;          // the scatter of the whole curve
constexpr double TimesNeighbour = 10;     // what the neighbours miss without the point
constexpr std::size_t CalmReach = 2;      // so many on each side
constexpr double TimesDigit = 4;          // the last digit
constexpr std::size_t PairReach = 5;      // two misprints so close may hide each other
constexpr double MadToDeviation = 1.4826; // of normally distributed errors

// Each leaves degrees of freedom to tell the scatter by.
constexpr std::array<Degree, 3> Degrees{{{2, 8}, {3, 10}, {4, 10}}};

/// The scatter of the curve about its fits, from every stride-th point. Nothing when too few of
/// them can be judged.
std::optional<double> WholeScatter(const Curve& curve, Degree degree, std::size_t stride) {
    std::vector<double> sizes;
    for (std::size_t at = 0; at < curve.size(); at += stride)
        if (const auto verdict = Judge(curve, at, degree, at)) sizes.push_back(verdict->Size());
    if (sizes.size() < LeastPoints / 2) return std::nullopt;
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    // The median of absolute deviations times 1 / 0.6745, the upper quartile of the normal
    // distribution, estimates its standard deviation and is not moved by the misprint looked for.
    return MadToDeviation * *middle;
}

/// The polynomial that fits a curve best, and the scatter of the whole curve about it.
struct BestFit {
    Degree degree;
    double scatter;
};

std::optional<BestFit> BestFitOf(const Curve& curve) {
    // A sample of a long curve tells its kind well enough, and keeps the time of a table short.
    const std::size_t stride = (curve.size() - 1) / SampleSize + 1;
    std::optional<BestFit> best;
    for (const Degree degree : Degrees) {
        const auto scatter = WholeScatter(curve, degree, stride);
        if (scatter && (!best || *scatter < best->scatter)) best = BestFit{degree, *scatter};
    }
    return best;
}

/// Both scatters count: the local one alone is small by chance somewhere on every long curve, the
/// whole one alone condemns the noisy end of a range.
bool IsFar(const Verdict& verdict, const BestFit& fit, bool isEnd) {
    const double size = verdict.Size();
    return size > TimesWhole * fit.scatter &&
           size > TimesLocal * (isEnd ? TimesAtEnd : 1) * verdict.scatter;
}

/// Rounding alone may put it there. A rounding error is spread evenly over one unit, which is a
/// deviation of 0.29 units.
/// Rectangular distribution of half-width 1/2 (JCGM 100:2008, 4.3.7).
bool IsRounding(double size, double digit) {
    return size <= TimesDigit * digit || size <= TimesLocal * digit / std::sqrt(12.0);
}

/// Without the point its neighbours fit to one another: the curve has no peak, edge or end here
/// that a polynomial cannot follow.
bool IsCalmWithout(const Curve& curve, std::size_t at, Degree degree, double size) {
    const std::size_t from = at > CalmReach ? at - CalmReach : 0;
    for (std::size_t i = from; i <= std::min(at + CalmReach, curve.size() - 1); ++i) {
        if (i == at) continue;
        const auto verdict = Judge(curve, i, degree, at);
        if (!verdict || verdict->Size() * TimesNeighbour > size) return false;
    }
    return true;
}

bool IsFarByAnyDegree(const Curve& curve, std::size_t at) {
    return std::any_of(Degrees.begin(), Degrees.end(), [&](Degree degree) {
        const auto verdict = Judge(curve, at, degree, at);
        return verdict && verdict->Size() > TimesLocal * verdict->scatter &&
               !IsRounding(verdict->Size(), DigitAt(curve, at, degree.neighbours));
    });
}

/// On a short curve one misprint is a neighbour of most points, and would hide in their scatter.
BestFit FitWithout(const Curve& curve, std::size_t at, const BestFit& whole) {
    if (curve.size() > ShortCurve || !IsFarByAnyDegree(curve, at)) return whole;
    Curve others = curve;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(at));
    return BestFitOf(others).value_or(whole);
}

/// Far, and not only because of another point beside it.
FitVerdict VerdictOn(const Curve& curve, std::size_t at, const BestFit& whole) {
    const BestFit fit = FitWithout(curve, at, whole);
    const bool isEnd = at == 0 || at + 1 == curve.size();
    const auto verdict = Judge(curve, at, fit.degree, at);
    if (!verdict) return FitVerdict::None;
    const double size = verdict->Size();
    if (!IsFar(*verdict, fit, isEnd) || IsRounding(size, DigitAt(curve, at, fit.degree.neighbours)))
        return FitVerdict::Near;
    // One bad neighbour can bend the fit away from a sound point.
    const Neighbours near(curve, at, fit.degree.neighbours, at);
    for (std::size_t i = 0; i < near.count; ++i) {
        const auto without = Judge(curve, at, fit.degree, near.places[i]);
        if (!without || !IsFar(*without, fit, isEnd)) return FitVerdict::Near;
    }
    return IsCalmWithout(curve, at, fit.degree, size) ? FitVerdict::Far : FitVerdict::Near;
}

/// It stands out on the whole curve, but its neighbours scatter too much to tell.
bool IsSuspect(const Curve& curve, std::size_t at, const BestFit& whole) {
    const auto verdict = Judge(curve, at, whole.degree, at);
    return verdict && verdict->Size() > TimesWhole * whole.scatter &&
           !IsRounding(verdict->Size(), DigitAt(curve, at, whole.degree.neighbours));
}

/// The verdict on a point as if another one beside it were not in the table.
FitVerdict VerdictWithout(const Curve& curve, std::size_t at, std::size_t other,
                          const BestFit& whole) {
    constexpr std::size_t reach = ShortCurve + 10; // enough for a fit, and no copy of a long curve
    const std::size_t from = at > reach ? at - reach : 0;
    const std::size_t to = std::min(at + reach + 1, curve.size());
    const auto place = [&curve](std::size_t i) {
        return curve.begin() + static_cast<std::ptrdiff_t>(i);
    };
    Curve others(place(from), place(other));
    others.insert(others.end(), place(other + 1), place(to));
    const bool isShort = curve.size() <= ShortCurve;
    const BestFit fit = isShort ? BestFitOf(others).value_or(whole) : whole;
    return VerdictOn(others, at - from - (other < at ? 1 : 0), fit);
}

/// Far once the other one is gone. Two side by side that deviate to the same side are rather a peak
/// of the curve.
bool IsFarWithout(const Curve& curve, std::size_t at, std::size_t other, const BestFit& whole) {
    if (at + 1 == other || other + 1 == at) {
        // Misprints have no reason to agree in sign, a phase transition or a critical peak has.
        const auto one = Judge(curve, at, whole.degree, other);
        const auto two = Judge(curve, other, whole.degree, at);
        if (!one || !two || one->residual * two->residual > 0) return false;
    }
    return VerdictWithout(curve, at, other, whole) == FitVerdict::Far;
}

/// The curve in other coordinates. Its order may turn around (1 / x); neighbours stay neighbours.
template <class Turn>
Curve Turned(const Curve& curve, const Turn& turn) {
    Curve turned = curve;
    for (FitPoint& point : turned)
        turn(point);
    return turned;
}

/// dlny = dy / y: the last digit becomes a relative one.
void TakeLogarithm(FitPoint& point) {
    point.least /= point.y;
    point.y = std::log(point.y);
}

/// A curve as it is looked at, with the fit to be judged by; none for one that cannot be judged.
struct View {
    explicit View(Curve turned) : curve(std::move(turned)), fit(BestFitOf(curve)) {}
    Curve curve;
    std::optional<BestFit> fit;
};

/// All the views of a curve in which a point has to be far.
std::vector<View> ViewsOf(const Curve& curve, FitScale scale) {
    const bool isPositive =
        std::all_of(curve.begin(), curve.end(), [](const FitPoint& point) { return point.y > 0; });
    const double first = curve.front().x;
    const double last = curve.back().x;
    std::vector<View> views;
    if (scale == FitScale::Vapor && isPositive && first > 0) {
        views.emplace_back(Turned(curve, [](FitPoint& point) {
            point.x = 1 / point.x;
            TakeLogarithm(point);
        }));
        return views;
    }
    views.emplace_back(curve);
    if (isPositive) views.emplace_back(Turned(curve, TakeLogarithm));
    if (first > 0 && last > 10 * first)
        views.emplace_back(Turned(curve, [](FitPoint& point) { point.x = std::log(point.x); }));
    return views;
}

/// The mildest verdict of all views: a steep curve bends in one of them and is smooth in another.
std::vector<FitVerdict> WorstVerdicts(const std::vector<View>& views, std::size_t count) {
    std::vector<FitVerdict> worst(count, FitVerdict::Far);
    for (const View& view : views)
        for (std::size_t i = 0; i < count; ++i)
            worst[i] = view.fit ? std::min(worst[i], VerdictOn(view.curve, i, *view.fit))
                                : FitVerdict::None;
    return worst;
}

/// Points inside the curve that stand out in every view, be they far already or not.
std::vector<std::size_t> Suspects(const std::vector<View>& views,
                                  const std::vector<FitVerdict>& verdicts) {
    std::vector<std::size_t> suspects;
    for (std::size_t i = 1; i + 1 < verdicts.size(); ++i) {
        const auto standsOut = [i](const View& view) {
            return view.fit && IsSuspect(view.curve, i, *view.fit);
        };
        if (verdicts[i] == FitVerdict::Far ||
            (verdicts[i] == FitVerdict::Near && std::ranges::all_of(views, standsOut)))
            suspects.push_back(i);
    }
    return suspects;
}

/// Finds misprints that hide each other, or that one already found hides.
void MarkPairs(const std::vector<View>& views, std::vector<FitVerdict>& verdicts) {
    // Judged as found before any pair: a mark made here must not make the next one.
    const std::vector<FitVerdict> alone = verdicts;
    const std::vector<std::size_t> suspects = Suspects(views, verdicts);
    const auto isFar = [&](std::size_t at, std::size_t other) {
        return alone[at] == FitVerdict::Far || std::ranges::all_of(views, [&](const View& view) {
                   return IsFarWithout(view.curve, at, other, *view.fit);
               });
    };
    for (std::size_t a = 0; a < suspects.size(); ++a) {
        for (std::size_t b = a + 1; b < suspects.size(); ++b) {
            const std::size_t one = suspects[a];
            const std::size_t two = suspects[b];
            if (two - one > PairReach) break;
            if (isFar(one, two) && isFar(two, one)) verdicts[one] = verdicts[two] = FitVerdict::Far;
        }
    }
}

/// Rows that agree in all variables but one.
/// Values of the other variables are compared exactly: a table repeats them digit by digit.
std::vector<std::vector<std::size_t>> CurvesAlong(const std::vector<FitRow>& rows, std::size_t n,
                                                  std::size_t variables) {
    const auto firstDifference = [&](std::size_t a, std::size_t b) {
        std::size_t k = 0;
        while (k < variables && (k == n || rows[a].x[k] == rows[b].x[k]))
            ++k;
        return k;
    };
    const auto before = [&](std::size_t a, std::size_t b) {
        const std::size_t k = firstDifference(a, b);
        return k < variables && rows[a].x[k] < rows[b].x[k];
    };
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), before);
    std::vector<std::vector<std::size_t>> curves;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i == 0 || before(order[i - 1], order[i])) curves.emplace_back();
        curves.back().push_back(order[i]);
    }
    return curves;
}

} // namespace

std::vector<FitVerdict> LocalFit(const std::vector<FitPoint>& points, FitScale scale) {
    std::vector<FitVerdict> verdicts(points.size(), FitVerdict::None);
    if (points.size() < LeastPoints) return verdicts;
    std::vector<std::size_t> order(points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return points[a].x < points[b].x; });
    Curve curve;
    curve.reserve(order.size());
    for (const std::size_t at : order)
        curve.push_back(points[at]);
    const std::vector<View> views = ViewsOf(curve, scale);
    std::vector<FitVerdict> worst = WorstVerdicts(views, curve.size());
    MarkPairs(views, worst);
    // A curve may run to a singular end.
    if (scale == FitScale::Plain) worst.front() = worst.back() = FitVerdict::None;
    for (std::size_t i = 0; i < order.size(); ++i)
        verdicts[order[i]] = worst[i];
    return verdicts;
}

std::vector<std::size_t> FarRows(const std::vector<FitRow>& rows,
                                 const std::vector<FitScale>& scales) {
    std::vector<FitVerdict> best(rows.size(), FitVerdict::None);
    std::vector<bool> isNear(rows.size());
    for (std::size_t n = 0; n < scales.size(); ++n) {
        for (const auto& curve : CurvesAlong(rows, n, scales.size())) {
            std::vector<FitPoint> points;
            points.reserve(curve.size());
            for (const std::size_t at : curve)
                points.push_back({rows[at].x[n], rows[at].y, rows[at].least});
            const std::vector<FitVerdict> verdicts = LocalFit(points, scales[n]);
            for (std::size_t i = 0; i < curve.size(); ++i) {
                best[curve[i]] = std::max(best[curve[i]], verdicts[i]);
                // A row that fits on one of its curves is sound: on the other it crosses something
                // real.
                if (verdicts[i] == FitVerdict::Near) isNear[curve[i]] = true;
            }
        }
    }
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (best[i] == FitVerdict::Far && !isNear[i]) found.push_back(i);
    return found;
}

double UnitOfLastDigit(std::string_view number) {
    const std::size_t exponent = number.find_first_of("eE");
    const std::string_view mantissa = number.substr(0, exponent);
    const std::size_t point = mantissa.find('.');
    // An integer without a point counts to its last figure, be it a zero.
    double power = exponent == number.npos ? 0 : Val(number.substr(exponent + 1));
    if (point != mantissa.npos) power -= static_cast<double>(mantissa.size() - point - 1);
    return std::pow(10.0, power);
}

} // namespace vexora
