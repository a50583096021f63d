#include "chem/VaporLiquidTests.h"

#include "chem/VaporPressureCurve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vexora {
namespace {

double Pure1(double t) {
    return std::exp(17.9 - 4800 / t); // some 100 kPa at 361 K
}
double Pure2(double t) {
    return std::exp(17.4 - 4780 / t);
}

/// A mixture by the equation of Margules with two constants: consistent by its making.
struct Margules {
    double a12, a21;

    double Pressure(double x, double t, double& y) const {
        const double z = 1 - x;
        const double part1 = x * std::exp(z * z * (a12 + 2 * (a21 - a12) * x)) * Pure1(t);
        const double part2 = z * std::exp(x * x * (a21 + 2 * (a12 - a21) * z)) * Pure2(t);
        y = part1 / (part1 + part2);
        return part1 + part2;
    }
    /// Boiling at 101.325 kPa.
    BoilingState Boiling(double x) const {
        double low = 250, high = 500, y = 0;
        for (int i = 0; i < 60; ++i) {
            const double t = (low + high) / 2;
            (Pressure(x, t, y) < 101.325 ? low : high) = t;
        }
        return {x, y, low};
    }
    std::vector<BoilingState> Isobar() const {
        std::vector<BoilingState> states;
        for (int i = 1; i < 12; ++i)
            states.push_back(Boiling(i / 12.0));
        return states;
    }
};

/// D of the area test of boiling states.
std::optional<double> Difference(const std::vector<BoilingState>& states) {
    std::vector<RatioPoint> points;
    for (const BoilingState& state : states)
        if (const auto point = RatioOf(state, Pure1(state.level), Pure2(state.level)))
            points.push_back(*point);
    const auto areas = CompareAreas(points);
    return areas ? std::optional(areas->Difference()) : std::nullopt;
}

TEST(VaporLiquidTests, AConsistentMixtureHasEqualAreas) {
    for (const Margules& model : {Margules{1.6, 0.8}, Margules{0.5, 0.5}, Margules{-0.9, -0.4}})
        EXPECT_LT(Difference(model.Isobar()).value(), 0.5) << model.a12;
}

TEST(VaporLiquidTests, ASpoiltVaporShowsInTheAreas) {
    auto states = Margules{1.6, 0.8}.Isobar();
    for (BoilingState& state : states)
        state.y -= 0.4 * state.y * (1 - state.y);
    EXPECT_GT(Difference(states).value(), 30);
}

TEST(VaporLiquidTests, AreasNeedPointsAllAlongAndMoreThanErrors) {
    EXPECT_FALSE(Difference(Margules{0.01, 0.01}.Isobar())) << "near to ideal";
    auto states = Margules{1.6, 0.8}.Isobar();
    states.erase(states.begin() + 3, states.begin() + 7);
    EXPECT_FALSE(Difference(states)) << "a gap";
    states = Margules{1.6, 0.8}.Isobar();
    states.resize(9);
    EXPECT_FALSE(Difference(states)) << "far from an end";
    EXPECT_FALSE(RatioOf({0, 0, 350}, 100, 50)) << "a pure end has no ratio";
}

TEST(VaporLiquidTests, HeringtonAllowsForTheBoilingRange) {
    EXPECT_NEAR(HeringtonAllowance(351.3, 373.15), 9.33, 0.01);
}

TEST(VaporLiquidTests, SlopesFollowTheEnrichmentOfTheVapor) {
    for (const Margules& model : {Margules{1.6, 0.8}, Margules{0.1, 0.1}, Margules{-2, -1.5}}) {
        const EndSlopes ends = JudgeEndSlopes(model.Isobar(), HeldInBoiling::Pressure, 0.01);
        ASSERT_TRUE(ends.low && ends.high) << model.a12;
        EXPECT_TRUE(ends.low->agrees && ends.high->agrees) << model.a12;
    }
}

TEST(VaporLiquidTests, SwappedCompositionsContradictTheSlopes) {
    auto states = Margules{0.1, 0.1}.Isobar();
    for (BoilingState& state : states)
        std::swap(state.x, state.y);
    const EndSlopes ends = JudgeEndSlopes(states, HeldInBoiling::Pressure, 0.01);
    EXPECT_FALSE(ends.low->agrees || ends.high->agrees);
    // At one temperature the signs are the other way round.
    const EndSlopes turned = JudgeEndSlopes(states, HeldInBoiling::Temperature, 0.01);
    EXPECT_TRUE(turned.low->agrees && turned.high->agrees);
}

TEST(VaporLiquidTests, AnEndWithoutAVerdictIsLeftOut) {
    const auto judge = [](std::vector<BoilingState> states) {
        return JudgeEndSlopes(std::move(states), HeldInBoiling::Pressure, 0.1).low.has_value();
    };
    EXPECT_TRUE(judge({{0.05, 0.2, 360}, {0.1, 0.3, 355}}));
    EXPECT_FALSE(judge({{0.3, 0.4, 360}, {0.4, 0.5, 355}})) << "begins too far from the end";
    EXPECT_FALSE(judge({{0.05, 0.2, 360}, {0.1, 0.3, 360.1}})) << "lost in the digits";
    EXPECT_FALSE(judge({{0.05, 0.08, 360}, {0.1, 0.08, 355}})) << "an azeotrope between";
    EXPECT_FALSE(judge({{0.05, 0.2, 360}})) << "one state has no direction";
}

TEST(VaporPressureCurve, ClausiusAndClapeyronGoBetweenAndALittleBeyond) {
    const VaporPressureCurve curve({{360, Pure1(360)}, {340, Pure1(340)}, {341, Pure1(341)}});
    for (const double t : {320.1, 340.0, 350.0, 379.9}) {
        EXPECT_NEAR(curve.At(t).value(), Pure1(t), 1e-9 * Pure1(t)) << t;
        EXPECT_NEAR(curve.BoilingAt(Pure1(t)).value(), t, 1e-6);
    }
    EXPECT_FALSE(curve.At(319.9) || curve.At(380.1));
    EXPECT_FALSE(curve.BoilingAt(Pure1(390)) || curve.BoilingAt(Pure1(310)));
}

TEST(VaporPressureCurve, PointsThatAreWrongOrStandTwiceDoNoHarm) {
    const VaporPressureCurve one({{350, 40}, {350.001, 90}, {0, 1}, {300, -1}});
    EXPECT_NEAR(one.At(350).value(), 60, 1e-9); // the mean of the logarithms
    EXPECT_FALSE(one.At(351));
    EXPECT_FALSE(VaporPressureCurve({}).At(300));
    // Neighbours with errors do not point the way out.
    const VaporPressureCurve close({{340, Pure1(340)}, {350, Pure1(350)}, {350.1, Pure1(350)}});
    EXPECT_NEAR(close.At(358).value() / Pure1(358), 1, 0.02);
}

} // namespace
} // namespace vexora
