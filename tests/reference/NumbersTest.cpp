#include "reference/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace vexora {
namespace {

TEST(Numbers, OnlyThePlainDecimalGrammarIsNumeric) {
    for (const char* text : {"1", "+1", "-1.", ".5", " 12.50 ", "1e3", "1.5E-07", "1e-400"})
        EXPECT_TRUE(IsNumeric(text)) << text;
    for (const char* text : {"", " ", ".", "+", "1,5", "1 000", "0x1F", "1e", "1d3", "inf", "nan",
                             "1e999", "--1", "$5", "99m"})
        EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(Numbers, ValReadsTheLongestNumericBeginning) {
    const std::pair<const char*, double> cases[] = {{"12abc", 12},
                                                    {" 1 234.5 K", 1234.5},
                                                    {"-.5e", -0.5},
                                                    {"1e5e5", 1e5},
                                                    {"abc", 0},
                                                    {"", 0},
                                                    {"+3", 3},
                                                    {"5.", 5},
                                                    {"1e-400", 0},
                                                    {"1e999", 0},
                                                    // Short numbers are read in a way of their own.
                                                    {"647.096", 647.096},
                                                    {"999999999999999", 999999999999999},
                                                    {"9007199254740993", 9007199254740992},
                                                    {"-0.0000000000000000000001", -1e-22},
                                                    {"0.00000000000000000000003", 3e-23},
                                                    {"1.10e2", 110}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(Val(text), value) << text;
}

TEST(Numbers, TextOfADoubleIsShortestWithinFifteenDigits) {
    const std::pair<double, const char*> cases[] = {{0.001, "0.001"},
                                                    {1.1 * 1.1 / 100, "0.0121"},
                                                    {-273.15, "-273.15"},
                                                    {1200, "1200"},
                                                    {0, "0"},
                                                    {-0.0, "0"},
                                                    {1e14, "100000000000000"},
                                                    {1e15, "1E+15"},
                                                    {999999999999999.9, "1E+15"},
                                                    {1e-15, "0.000000000000001"},
                                                    {1.5e-16, "1.5E-16"},
                                                    {-1.25e20, "-1.25E+20"},
                                                    {1.0 / 3, "0.333333333333333"},
                                                    {std::numeric_limits<double>::infinity(), "0"}};
    for (const auto& [value, text] : cases)
        EXPECT_EQ(NumberText(value), text);
}

TEST(Numbers, MasksRoundHalfAwayFromZeroOnFifteenDigits) {
    const std::tuple<double, int, const char*> cases[] = {
        {1234.5, 0, "1235"},
        {298.65, 1, "298.7"},
        {273.15, 1, "273.2"},
        {-0.5, 0, "-1"},
        {-0.04, 1, "0.0"},
        {0.05, 1, "0.1"},
        {0.04, 1, "0.0"},
        {0.004, 1, "0.0"},
        {9.995, 2, "10.00"},
        {99.95, 1, "100.0"},
        {0, 3, "0.000"},
        {1.0 / 3, 18, "0.333333333333333000"},
        {1e20, 0, "100000000000000000000"},
        {1e20, 2, "100000000000000000000.00"},
        {-1.005, 2, "-1.01"},
        {0.95, 0, "1"},
        {std::numeric_limits<double>::quiet_NaN(), 2, "0"}};
    for (const auto& [value, decimals, text] : cases)
        EXPECT_EQ(FormatFixed(value, decimals), text);
}

TEST(Numbers, WholeNumbersRoundHalfToEvenAndSaturate) {
    EXPECT_EQ(ToInteger(2.5), 2);
    EXPECT_EQ(ToInteger(3.5), 4);
    EXPECT_EQ(ToInteger(-2.5), -2);
    EXPECT_EQ(ToInteger(-0.6), -1);
    EXPECT_EQ(ToInteger(1e300), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ToInteger(-1e300), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(ToInteger(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Numbers, IntegersAreWholeTextsThatFitSixtyFourBits) {
    EXPECT_EQ(ParseInteger(" 999999994 "), 999999994);
    EXPECT_EQ(ParseInteger("+7"), 7);
    EXPECT_EQ(ParseInteger("-7"), -7);
    for (const char* text : {"", "+", "+-7", "7.0", "7 1", "9223372036854775808", "7a"})
        EXPECT_EQ(ParseInteger(text), std::nullopt) << text;
}

TEST(Numbers, TypedNumbersAreNormalizedWithoutLookingTwice) {
    const std::pair<const char*, const char*> cases[] = {{"1 234,5", "1234.5"},
                                                         {",5", "0.5"},
                                                         {" .5 ", "0.5"},
                                                         {"1  2", "1 2"},
                                                         {"1 ,5", "1,5"},
                                                         {"abc", "abc"},
                                                         {"", ""},
                                                         {"99.50", "99.50"},
                                                         {"\u22120.5", "-0.5"},
                                                         {"\u2212 2,5e\u22123", "-2.5e-3"}};
    for (const auto& [typed, normal] : cases)
        EXPECT_EQ(NormalizeNumber(typed), normal) << typed;
}

TEST(Numbers, DecimalPlacesFollowTheFormulaEvenWhereItCountsOneTooMany) {
    const std::pair<const char*, int> cases[] = {
        {"12", 0},     {"12.", 0},    {"12.50", 2},    {"1.5E2", 0},
        {"1.5E-2", 3}, {"1.5e-3", 4}, {"1e-3", 4},     {"15e-3", 5},
        {"", 0},       {" 0.10 ", 2}, {"1e-300", 255}, {"1e-99999999999", 255}};
    for (const auto& [text, places] : cases)
        EXPECT_EQ(DecimalPlaces(text), places) << text;
}

TEST(Numbers, SignificantDigitsCountFromTheFirstNonZeroOne) {
    const std::pair<const char*, int> cases[] = {
        {"0.00120", 3}, {"1200", 4}, {"-1.50e3", 3}, {"0", 0},     {"0.000", 0}, {"", 0},
        {"+1", 2},      {"12.", 2},  {"1.50E3", 3},  {"0.100", 3}, {" 25.5 ", 3}};
    for (const auto& [text, digits] : cases)
        EXPECT_EQ(SignificantDigits(text), digits) << text;
}

TEST(Numbers, TemperaturesKeepTheirDecimalPlaceInKelvin) {
    EXPECT_EQ(TemperatureDigits("25.5", "C"), 4);
    EXPECT_EQ(TemperatureDigits("-5.5", "C"), 4);
    EXPECT_EQ(TemperatureDigits("0.5", "F"), 4);
    EXPECT_EQ(TemperatureDigits("125.5", "C"), 4);
    EXPECT_EQ(TemperatureDigits("25.5", "c"), 3);
}

TEST(Numbers, TheLastPlaceFollowsPointAndExponent) {
    const std::pair<const char*, double> cases[] = {{"1.25", 0.01},    {"1200", 1}, {" 0.0 ", 0.1},
                                                    {"7.6e2", 10},     {"12.", 1},  {"1e-3", 0.001},
                                                    {"-1.50E-2", 1e-4}};
    for (const auto& [text, place] : cases)
        EXPECT_DOUBLE_EQ(LastPlace(text), place) << text;
}

TEST(Numbers, FormatDigitsNeverZeroesDigitsOfTheIntegerPart) {
    const std::tuple<const char*, int, const char*> cases[] = {{"0", 3, "0.000"},
                                                               {"1234.5", 2, "1235"},
                                                               {"0.05", 2, "0.050"},
                                                               {"1000", 4, "1000"},
                                                               {"1000", 6, "1000.00"},
                                                               {"1.50e3", 0, "1500"},
                                                               {"0.00120", 0, "0.00120"},
                                                               {"-0.001", 1, "-0.001"},
                                                               {"1e-10", 2, "0.00000000010"},
                                                               {"0", 0, "0"}};
    for (const auto& [text, digits, shown] : cases)
        EXPECT_EQ(FormatDigits(text, digits), shown) << text;
    EXPECT_EQ(FormatValue(0.1 + 0.2, 3), "0.300");
    EXPECT_EQ(FormatValue(2.5, 0), "2.5");
}

} // namespace
} // namespace vexora
