// What sets of one binary tell together about its liquid and gas in equilibrium.
#include "records/MixtureAdvice.h"

#include "records/BoilingCurves.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vexora {

namespace {

constexpr int Digits = 3;             // of figures that are told
constexpr double FractionSteps = 1e4; // of a mole fraction

std::string AtConstant(const BoilingCurve& curve) {
    return curve.held == HeldInBoiling::Pressure ? "P = " + NumberText(curve.constant) + " kPa"
                                                 : "T = " + NumberText(curve.constant) + " K";
}

std::string EndText(const BoilingCurve& curve, const EndSlope& end) {
    const bool isIsobar = curve.held == HeldInBoiling::Pressure;
    return "at x = " + NumberText(std::round(end.x * FractionSteps) / FractionSteps) +
           (isIsobar ? " dT/dx = " : " dP/dx = ") + FormatValue(end.slope, Digits) +
           (isIsobar ? " K" : " kPa") + " and y - x = " + FormatValue(end.enrichment, Digits) +
           (end.agrees ? " go together" : " contradict each other");
}

void AdviseOnSlopes(const BoilingCurve& curve, const clsM& mixture, Remarks& remarks) {
    const EndSlopes ends = JudgeEndSlopes(curve.States(), curve.held, curve.least);
    std::string text;
    for (const auto& end : {ends.low, ends.high})
        if (end) text += (text.empty() ? ": " : "; ") + EndText(curve, *end);
    if (text.empty()) return;
    const auto compound = mixture.Component(1);
    remarks.Hint("Slopes of the boiling curve at " + AtConstant(curve) + ", x and y of " +
                 (compound ? compound->ShowKey() : "component 1") + text);
}

/// The result of the area test in words; allowance [per cent] only at one pressure.
std::string AreaText(const BoilingCurve& curve, const AreaTest& areas,
                     std::optional<double> allowance) {
    const double beyond = areas.Difference() - allowance.value_or(0);
    std::string text = "Area test at " + AtConstant(curve) +
                       ": the areas of ln(gamma1/gamma2) above and below 0 differ by D = " +
                       FormatValue(areas.Difference(), Digits) + " %";
    if (allowance)
        text += ", Herington's allowance is J = " + FormatValue(*allowance, Digits) +
                " %, D - J = " + FormatValue(beyond, Digits) + " %";
    const std::string most = NumberText(MostAreaDifference) + " %";
    return text + (beyond <= MostAreaDifference
                       ? ": consistent, as it is not above " + most
                       : ": a hint that the data are not consistent, as it is above " + most);
}

using PurePoints = std::array<std::vector<VaporPressurePoint>, 2>;

void AdviseOnAreas(const BoilingCurve& curve, const PurePoints& ofPure, Remarks& remarks) {
    const bool isIsobar = curve.held == HeldInBoiling::Pressure;
    const std::array pure = {VaporPressuresAt(curve, 1, ofPure[0]),
                             VaporPressuresAt(curve, 2, ofPure[1])};
    std::vector<RatioPoint> points;
    double lowest = 0, highest = 0;
    const auto meet = [&](double t) {
        lowest = lowest == 0 ? t : std::min(lowest, t);
        highest = std::max(highest, t);
    };
    for (const PartialState& state : curve.states) {
        if (!isIsobar && state.level.value_or(0) > HighestIdealPressure) return;
        if (isIsobar && !state.level) continue;
        const double t = isIsobar ? *state.level : curve.constant;
        meet(t);
        const auto pure1 = pure[0].At(t), pure2 = pure[1].At(t);
        const auto point =
            pure1 && pure2 ? RatioOf({state.x, state.y, t}, *pure1, *pure2) : std::nullopt;
        if (point) points.push_back(*point);
    }
    if (isIsobar && curve.constant > HighestIdealPressure) return;
    const auto areas = CompareAreas(std::move(points));
    if (!areas) return;
    for (const VaporPressureCurve& one : pure)
        if (const auto boils = isIsobar ? one.BoilingAt(curve.constant) : std::nullopt)
            meet(*boils);
    remarks.Hint(
        AreaText(curve, *areas,
                 isIsobar ? std::optional(HeringtonAllowance(lowest, highest)) : std::nullopt));
}

} // namespace

void AdviseOnBoilingCurves(const clsM& mixture, Findings& findings) {
    const std::vector<BoilingCurve> curves = BoilingCurvesOf(mixture);
    if (curves.empty()) return;
    const PurePoints ofPure = {BoilingPointsOf(mixture, 1), BoilingPointsOf(mixture, 2)};
    for (const BoilingCurve& curve : curves) {
        Remarks remarks(findings, *curve.set);
        AdviseOnSlopes(curve, mixture, remarks);
        AdviseOnAreas(curve, ofPure, remarks);
    }
}

} // namespace vexora
