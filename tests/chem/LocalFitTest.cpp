#include "chem/LocalFit.h"

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "reference/Numbers.h"

namespace vexora::test {
namespace {

using Table = std::vector<std::pair<double, std::string>>; // x, and y as typed

std::string FarText(const Table& table, FitScale scale) {
    std::vector<FitPoint> points;
    for (const auto& [x, y] : table)
        points.push_back({x, Val(y), UnitOfLastDigit(y)});
    std::string text;
    const std::vector<FitVerdict> verdicts = LocalFit(points, scale);
    for (std::size_t i = 0; i < verdicts.size(); ++i)
        if (verdicts[i] == FitVerdict::Far) text += (text.empty() ? "" : " ") + std::to_string(i);
    return text;
}

/// A function at count equal steps of x, typed with so many significant digits.
template <class Function>
Table Tabulated(const Function& function, double from, double step, int count, int digits) {
    Table table;
    for (int i = 0; i < count; ++i) {
        const double x = from + step * i;
        table.emplace_back(x, FormatValue(function(x), digits));
    }
    return table;
}

/// Vapor pressure of water [MPa] at a temperature [K]: the equation of Wagner and Pruss, 1993.
double VaporPressure(double t) {
    const double v = 1 - t / 647.096;
    const double sum = -7.85951783 * v + 1.84408259 * std::pow(v, 1.5) -
                       11.7866497 * std::pow(v, 3) + 22.6807411 * std::pow(v, 3.5) -
                       15.9618719 * std::pow(v, 4) + 1.80122502 * std::pow(v, 7.5);
    return 22.064 * std::exp(sum * 647.096 / t);
}

const Table vaporPressures = Tabulated(VaporPressure, 275, 9.5, 40, 6);

TEST(LocalFit, ASwappedDigitOfAVaporPressureIsFarAndNothingElse) {
    EXPECT_EQ(FarText(vaporPressures, FitScale::Vapor), "");
    int found = 0;
    for (std::size_t row = 0; row < vaporPressures.size(); ++row) {
        Table table = vaporPressures;
        std::string& y = table[row].second;
        std::size_t at = y.find_first_of("123456789");
        for (int tried = 0; tried < 3; ++at) {
            if (y[at] == '.' || y[at + 1] == '.') continue;
            ++tried;
            if (y[at] == y[at + 1]) continue;
            std::swap(y[at], y[at + 1]);
            const std::string far = FarText(table, FitScale::Vapor);
            EXPECT_TRUE(far.empty() || far == std::to_string(row)) << row << " " << y;
            if (!far.empty()) ++found;
            std::swap(y[at], y[at + 1]);
        }
    }
    EXPECT_GE(found, 95); // of some 105
}

TEST(LocalFit, TwoMisprintsBesideEachOtherDoNotHide) {
    int found = 0;
    for (std::size_t row = 2; row + 8 < vaporPressures.size(); ++row) {
        const std::size_t other = row + 1 + row % 5;
        Table table = vaporPressures;
        for (const std::size_t at : {row, other}) {
            std::string& y = table[at].second;
            std::swap(y[y.size() - 2], y[y.size() - 4]);
        }
        const std::string both = std::to_string(row) + " " + std::to_string(other);
        const std::string far = FarText(table, FitScale::Vapor);
        EXPECT_TRUE(both.find(far) != both.npos) << both << ": " << far;
        if (far == both) ++found;
    }
    EXPECT_GE(found, 15) << "of 30";
    const auto density = [](double t) { return 1000 - 0.003 * std::pow(t - 277, 2); };
    Table table = Tabulated(density, 274, 5, 40, 6);
    std::swap(table[20].second, table[21].second);
    EXPECT_EQ(FarText(table, FitScale::Plain), "20 21");
}

TEST(LocalFit, SmoothCurvesHaveNoFarPoints) {
    const auto density = [](double t) { return 1000 - 0.003 * std::pow(t - 277, 2); };
    const auto sound = [](double t) { return 250 + 60 * std::pow(std::abs(t - 647.1), 0.4); };
    const auto saturated = [](double t) { return 322 + 640 * std::pow(1 - t / 647.1, 0.326); };
    const auto steep = [](double t) { return 1e-3 * std::exp(2500 / (t - 140)); };
    const auto boiling = [](double t) { return t < 373 ? 998 - 0.5 * (t - 300) : 0.6 - t / 5000; };
    const auto transition = [](double t) { return 4.2 + std::exp(-std::pow((t - 400) / 40, 2)); };
    const Table tables[] = {Tabulated(VaporPressure, 275, 2, 40, 5),
                            Tabulated(VaporPressure, 275, 9.5, 40, 9),
                            Tabulated(density, 274, 5, 20, 6),
                            Tabulated(density, 274, 0.5, 60, 9),
                            Tabulated(sound, 600, 2.5, 40, 7),
                            Tabulated(sound, 640.5, 0.33, 40, 7),
                            Tabulated(saturated, 300, 8.67, 40, 7),
                            Tabulated(steep, 160, 5, 30, 5),
                            Tabulated(boiling, 300, 5, 30, 6),
                            Tabulated(transition, 250, 10, 30, 5),
                            Tabulated([](double) { return 5.0; }, 0, 1, 20, 3)};
    for (const FitScale scale : {FitScale::Plain, FitScale::Vapor})
        for (std::size_t i = 0; i < std::size(tables); ++i)
            EXPECT_EQ(FarText(tables[i], scale), "") << "table " << i;
}

TEST(LocalFit, FewPointsGiveNoVerdict) {
    for (int count = 0; count < 12; ++count) {
        Table table = Tabulated(VaporPressure, 300, 20, count, 6);
        if (count > 1) table[static_cast<std::size_t>(count / 2)].second = "1000";
        EXPECT_EQ(FarText(table, FitScale::Vapor), "") << count;
    }
}

TEST(LocalFit, ScatterAndCoarseDigitsAreNoMisprints) {
    unsigned state = 1;
    const auto noise = [&state] {
        double sum = 0;
        for (int i = 0; i < 12; ++i)
            sum += static_cast<double>((state = state * 1664525U + 1013904223U) >> 8U) / 16777216.0;
        return sum - 6; // nearly a normal distribution
    };
    for (int set = 0; set < 40; ++set) {
        const auto noisy = [&](double x) { return 50 + x + 0.3 * noise(); };
        Table table = Tabulated(noisy, 1, 1, 60, 5);
        EXPECT_EQ(FarText(table, FitScale::Plain), "") << set;
        table[30].second = "98.1";
        EXPECT_EQ(FarText(table, FitScale::Plain), "30") << set;
    }
    const auto coarse = [](double x) { return 3 + x / 30; };
    EXPECT_EQ(FarText(Tabulated(coarse, 0, 1, 60, 2), FitScale::Plain), "");
}

TEST(LocalFit, RowsAreJudgedOnTheCurvesOfATable) {
    std::vector<FitRow> rows;
    for (int t = 0; t < 14; ++t)
        for (int p = 0; p < 14; ++p)
            rows.push_back({{300.0 + 5 * t, 100.0 * (1 + p)}, 990 - 2.0 * t + 0.45 * p, 0.01});
    const std::vector<FitScale> scales(2, FitScale::Plain);
    EXPECT_TRUE(FarRows(rows, scales).empty());
    rows[5 * 14 + 7].y += 9;
    rows[9 * 14].y += 9; // the first of its isotherm, in the middle of its isobar
    EXPECT_EQ(FarRows(rows, scales), (std::vector<std::size_t>{5 * 14 + 7, 9 * 14}));
    rows.resize(6 * 14 + 5); // isobars are too short now; the isotherm still tells
    EXPECT_EQ(FarRows(rows, scales), (std::vector<std::size_t>{5 * 14 + 7}));
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].x[1] += 0.001 * static_cast<double>(i); // no two pressures agree
    EXPECT_EQ(FarRows(rows, scales), (std::vector<std::size_t>{5 * 14 + 7}));
}

TEST(LocalFit, TheLastDigitIsThatOfTheTypedText) {
    EXPECT_DOUBLE_EQ(UnitOfLastDigit("1.50"), 0.01);
    EXPECT_DOUBLE_EQ(UnitOfLastDigit("1200"), 1);
    EXPECT_DOUBLE_EQ(UnitOfLastDigit("1.5E3"), 100);
    EXPECT_DOUBLE_EQ(UnitOfLastDigit("25e-4"), 1e-4);
}

} // namespace
} // namespace vexora::test
