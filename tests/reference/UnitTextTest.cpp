#include "reference/UnitText.h"

#include <gtest/gtest.h>

namespace vexora {
namespace {

TEST(UnitText, AFactorStandsInFrontOfTheSystemUnit) {
    EXPECT_EQ(UnitText("kPa", "*", 2.5), "2.5* kPa");
    EXPECT_EQ(UnitText("kPa", "S", 1000), "1000* kPa");
    EXPECT_EQ(UnitText("J/K/kg", "12.5", 0), "12.5* J/K/kg");
    EXPECT_EQ(UnitText("1", "*", 0.01), "0.01*");
    EXPECT_EQ(UnitText("kPa", "S", 0), "kPa");
    EXPECT_EQ(UnitText("1", "D", 0), "Dimensionless");
    EXPECT_EQ(UnitText("kPa", "cubit", 0), "cubit");
}

TEST(UnitText, ANumberIsNotMistakenForTheFactorBesideIt) {
    EXPECT_EQ(NumberWithUnit("3.54", "2.5* kPa"), "3.54 (2.5* kPa)");
    EXPECT_EQ(NumberWithUnit("3.54", "0.01*"), "3.54 (0.01*)");
    EXPECT_EQ(NumberWithUnit("0.89", "mPa*s"), "0.89 mPa*s");
    EXPECT_EQ(NumberWithUnit("1.33", "Dimensionless"), "1.33");
}

} // namespace
} // namespace vexora
