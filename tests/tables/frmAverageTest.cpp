#include "tables/frmAverage.h"

#include <gtest/gtest.h>

namespace vexora::test {
namespace {

std::string Told(const std::vector<std::string>& values) {
    const AverageOfValues result = Average(values);
    return result.average + " " + result.uncertainty + " " + result.format + " " +
           std::to_string(result.count) + " " + std::to_string(result.digits);
}

TEST(Average, TheFirstValueGivesTheDecimals) {
    EXPECT_EQ(Told({"5"}), "5 5 #########0 1 0");
    EXPECT_EQ(Told({"1.20", "1.40"}), "1.30 0.10 #########0.00 2 2");
    EXPECT_EQ(Told({"10", "10.5", "11.25"}), "11 0 #########0 3 0");
    EXPECT_EQ(Told({"-2.0", "-2.5", "1E1"}), "1.8 4.1 #########0.0 3 1");
    EXPECT_EQ(Told({}), "   0 0");
}

TEST(Average, LargeAndNearValuesKeepTheirScatter) {
    EXPECT_EQ(Told({"100000000.01", "100000000.03"}), "100000000.02 0.01 #########0.00 2 2");
    EXPECT_EQ(Told({"0.10", "0.10", "0.10"}), "0.10 0.00 #########0.00 3 2");
}

} // namespace
} // namespace vexora::test
