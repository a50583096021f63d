#include "plot/PlotPoint.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "plot/PlotName.h"
#include "reference/Numbers.h"

namespace vexora::test {
namespace {

std::string TicksText(double min, double max) {
    std::string text;
    for (const double tick : Ticks(min, max))
        text += (text.empty() ? "" : " ") + NumberText(tick);
    return text;
}

PlotTable TableOf(std::vector<std::array<double, 3>> points, int variables = 1) {
    PlotTable table;
    table.nVar = variables;
    for (const auto& [y, x, other] : points)
        table.Add({y, x, other}, 0, table.PointCount() + 1);
    return table;
}

PlotScale ScaleOf(const PlotTable& table, bool log) {
    PlotScale scale;
    scale.Log = log;
    scale.Shift = ShiftOf(table);
    scale.Ranges(table, 1);
    return scale;
}

const PlotTable water = TableOf({{0.000698451167, 275}, {0.932203564, 450}, {16.9082693, 625}});

TEST(Plot, TicksStandAtRoundValuesWithinTheLimits) {
    const struct {
        double min, max;
        const char* ticks;
    } cases[] = {
        {0.5, 2.3, "0.6 0.8 1 1.2 1.4 1.6 1.8 2 2.2"},
        {100, 400, "100 150 200 250 300 350 400"},
        {1, 9.5, "1 2 3 4 5 6 7 8 9"},
        {1, 1.0000000001, ""},
        {-0.5, 0.5, "-0.4 -0.2 0 0.2 0.4"},
        {5, 5, ""},
        {0, 0, ""},
    };
    for (const auto& one : cases)
        EXPECT_EQ(TicksText(one.min, one.max), one.ticks) << one.min << " to " << one.max;
}

TEST(Plot, DecadesBelowTheEqualStepsHaveTicksInTheLogarithmicMode) {
    const auto text = [](const PlotScale& scale) {
        std::string ticks;
        for (const double tick : scale.TicksY())
            ticks += NumberText(tick) + " ";
        return ticks;
    };
    EXPECT_EQ(text(ScaleOf(water, true)), "0.001 0.01 0.1 1 5 10 15 20 ");
    EXPECT_EQ(text(ScaleOf(TableOf({{100, 300}, {400, 310}}), true)),
              "100 150 200 250 300 350 400 ");
}

TEST(Plot, PlainAxesHaveTwoPerCentOfRoom) {
    const PlotScale scale = ScaleOf(TableOf({{1, 100}, {3, 200}}), false);
    EXPECT_DOUBLE_EQ(scale.XMin, 98);
    EXPECT_DOUBLE_EQ(scale.XMax, 202);
    EXPECT_DOUBLE_EQ(scale.YMin, 0.96);
    EXPECT_DOUBLE_EQ(scale.YMax, 3.04);
}

TEST(Plot, LogarithmicAxesHaveTheirRoomInTheReciprocalAndTheLogarithm) {
    const PlotScale scale = ScaleOf(water, true);
    EXPECT_NEAR(*scale.PositionX(275), 0.02 / 1.04, 1e-12);
    EXPECT_NEAR(*scale.PositionX(625), 1.02 / 1.04, 1e-12);
    EXPECT_NEAR(*scale.PositionY(0.000698451167), 0.02 / 1.04, 1e-12);
    EXPECT_NEAR(*scale.PositionY(16.9082693), 1.02 / 1.04, 1e-12);
    EXPECT_NEAR(scale.ValueX(*scale.PositionX(450)), 450, 1e-9);
    EXPECT_NEAR(scale.ValueY(*scale.PositionY(0.9)), 0.9, 1e-12);
}

TEST(Plot, EqualLimitsPutThePointIntoTheMiddle) {
    for (const bool log : {false, true}) {
        const PlotScale scale = ScaleOf(TableOf({{2, 300}}), log);
        EXPECT_EQ(scale.PositionX(300), 0.5);
        EXPECT_EQ(scale.PositionY(2), 0.5);
        EXPECT_TRUE(scale.TicksX().empty());
    }
}

TEST(Plot, ValuesWithoutLogarithmAreSkippedOrLeaveNothingToDraw) {
    const PlotScale some = ScaleOf(TableOf({{-1, 300}, {5, 400}}), true);
    EXPECT_FALSE(some.Empty);
    EXPECT_DOUBLE_EQ(some.YMin, 0.0005);
    EXPECT_EQ(some.PositionY(-1), std::nullopt);
    EXPECT_EQ(some.PositionX(0), std::nullopt);
    EXPECT_TRUE(ScaleOf(TableOf({{-1, 300}, {0, 400}}), true).Empty);

    PlotTable celsius = TableOf({{1, -273.15}, {2, 25}});
    celsius.VarNames[0] = "Temperature (C)";
    EXPECT_TRUE(ScaleOf(celsius, true).Empty);
    EXPECT_FALSE(ScaleOf(celsius, false).Empty);
    celsius.PointTable[0][1] = -100;
    EXPECT_FALSE(ScaleOf(celsius, true).Empty);
    EXPECT_TRUE(ScaleOf(PlotTable(), false).Empty);
}

TEST(Plot, RectanglesBecomeTheRangesInTheScaleOfTheMode) {
    PlotScale plain = ScaleOf(TableOf({{0, 0}, {100, 100}}), false);
    EXPECT_TRUE(plain.Zoom(1.5, 0.75, 0.5, 0.25)); // from the right to the left, past the frame
    EXPECT_NEAR(plain.XMin, 50, 1e-9);
    EXPECT_NEAR(plain.XMax, 102, 1e-9);
    EXPECT_NEAR(plain.YMin, 24, 1e-9);
    EXPECT_NEAR(plain.YMax, 76, 1e-9);
    EXPECT_FALSE(plain.Zoom(-0.5, 0, -0.1, 1));

    PlotScale log = ScaleOf(water, true);
    const double middle = std::sqrt(log.YMin * log.YMax);
    EXPECT_TRUE(log.Zoom(0, 0, 1, 0.5));
    EXPECT_NEAR(log.YMax, middle, 1e-12);
}

TEST(Plot, FamiliesAgreeInAllVariablesButTheOneOnTheAxis) {
    const PlotTable table =
        TableOf({{1, 300, 100}, {2, 300, 200}, {3, 310, 100.05}, {4, 310, 0}, {5, 320, 0.001}}, 2);
    EXPECT_EQ(FamiliesOf(table, 1, {}).GroupOf, (std::vector<int>{0, 1, 0, 2, 2}));
    EXPECT_EQ(FamiliesOf(table, 1, {0.0001, 0.0001}).GroupOf, (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(FamiliesOf(table, 2, {}).GroupRows, (std::vector<int>{0, 2, 4}));
    EXPECT_EQ(FamiliesOf(water, 1, {}).GroupOf, (std::vector<int>{0, 0, 0}));
}

// The value that came first stands for its curve: a chain of near values ends where it is too far.
TEST(Plot, NearValuesOfAFamilyAreOneCurveByTheirQuantity) {
    const struct {
        const char* quantity;
        std::vector<double> values;
        std::vector<int> groups;
    } cases[] = {
        {"Pressure (MPa)", {0.09924, 0.09997, 0.10006}, {0, 0, 0}},
        {"Vapor pressure (kPa)", {1, 1.009, 1.018, 1.005}, {0, 0, 1, 0}},
        {"Temperature (K)", {300, 300.2, 300.4}, {0, 0, 1}},
        {"Temperature (C)", {0, 0.2, 0.4}, {0, 0, 1}},
        {"Mole fraction", {0.5, 0.5004, 0.506}, {0, 0, 1}},
    };
    for (const auto& one : cases) {
        PlotTable table;
        table.nVar = 2;
        table.VarNames = {"Density (kg/m3)", one.quantity};
        for (const double value : one.values)
            table.Add({1, 2, value});
        EXPECT_EQ(FamiliesOf(table, 1, {}).GroupOf, one.groups) << one.quantity;
    }
}

TEST(Plot, TheLegendRisesByValue) {
    const PlotTable table = TableOf({{1, 300, 20}, {2, 300, 700}, {3, 300, 0.1}}, 2);
    const PlotScale scale = ScaleOf(table, false);
    const PlotFamilies families = FamiliesOf(table, 1, {});
    std::string legend;
    for (const auto& one : PlotPicture({table, scale, 1, families, true}))
        if (one.shape == ui::Picture::Shape::Marker)
            legend += std::to_string(one.colour) + " ";
        else if (one.align == ui::Picture::Align::Left && !one.text.empty())
            legend += one.text + " ";
    EXPECT_EQ(legend, "1 2 3 3 0.1 1 20 2 700 "); // behind the points, with their colours
}

TEST(Plot, TheReciprocalAxisHasThreeTicksApart) {
    for (const double least : {0.5, 4.2, 20.0, 275.0, 990.0}) {
        for (const double times : {1.001, 1.5, 3.0, 20.0, 900.0}) {
            const PlotScale scale = ScaleOf(TableOf({{1, least}, {2, least * times}}), true);
            int apart = 0;
            double last = -1;
            for (const double tick : scale.TicksX())
                if (const double at = *scale.PositionX(tick); at >= 0 && at - last > 0.11) {
                    ++apart;
                    last = at;
                }
            EXPECT_GE(apart, 3) << least << " times " << times;
        }
    }
}

TEST(Plot, APictureIsHeadedAndNamedAfterWhatItShows) {
    PlotTable table = TableOf({{1, 300}, {2, 310}});
    table.YName = "Density (kg/m3)";
    table.System = "D/L-alanine";
    table.SetNumber = "2";
    EXPECT_EQ(ProposedName(table), "D-L-alanine Density set 2.svg");
    TheSitting().DocumentPath = "/papers/2019.kag.txt";
    EXPECT_EQ(ProposedName(table), "/papers/2019.kag D-L-alanine Density set 2.svg");
    TheSitting() = {};
    const PlotFamilies families = FamiliesOf(table, 1, {});
    const PlotScale scale = ScaleOf(table, false);
    const auto strokes = PlotPicture({table, scale, 1, families, true});
    const auto isHeading = [](const auto& one) { return one.text == "D/L-alanine: Density"; };
    EXPECT_EQ(std::ranges::count_if(strokes, isHeading), 1);
}

TEST(Plot, FamiliesBeyondTheThousandthShareIt) {
    PlotTable table;
    table.nVar = 2;
    for (int i = 0; i < 1002; ++i)
        table.Add({1, 300, 1.0 + i});
    const PlotFamilies families = FamiliesOf(table, 1, {1e-6, 1e-6});
    EXPECT_EQ(families.GroupRows.size(), 1000U);
    EXPECT_EQ(families.GroupOf.back(), 999);
}

TEST(Plot, ArrangedRowsKeepWhatBelongsToThem) {
    PlotTable table = TableOf({{1, 310, 5}, {2, 300, 7}, {3, 300, 6}, {4, 300, 7}}, 2);
    table.PointUnc = {0.1, 0.2, 0.3, 0.4};
    table.PointFar[2] = true;
    Arrange(table, 1);
    std::string order;
    for (int i = 0; i < table.PointCount(); ++i)
        order += NumberText(table.PointTable[static_cast<std::size_t>(i)][0]) + ":" +
                 NumberText(table.PointUnc[static_cast<std::size_t>(i)]) + " ";
    EXPECT_EQ(order, "3:0.3 2:0.2 4:0.4 1:0.1 ");
    EXPECT_EQ(table.PointRow, (std::vector<int>{3, 2, 4, 1}));
    EXPECT_EQ(table.PointFar, (std::vector<bool>{true, false, false, false}));
}

TEST(Plot, TheNearestDrawnPointIsTold) {
    for (const bool log : {false, true}) {
        const PlotScale scale = ScaleOf(water, log);
        const PlotFamilies families = FamiliesOf(water, 1, {});
        const Plot plot{water, scale, 1, families, true};
        const PlotPlace place = PlaceOf(plot, 1).value();
        EXPECT_EQ(NearestPoint(plot, {place.x + 9, place.y - 9}), 1);
        EXPECT_EQ(PointText(plot, 1), "(450, 0.932203564)");
        EXPECT_NEAR(PositionsAt(plot, place).x, *scale.PositionX(450), 1e-9);
    }
}

TEST(Plot, WhatIsToldOfAPointStandsBesideItsNeighbours) {
    for (const int slope : {1, -1}) {
        PlotTable table;
        table.nVar = 1;
        for (int point = 0; point < 100; ++point)
            table.Add({1000.0 + slope * 10 * point, 300.0 + point}, 0, point + 1);
        const PlotScale scale = ScaleOf(table, false);
        const PlotFamilies families = FamiliesOf(table, 1, {});
        const Plot plot{table, scale, 1, families, true};
        for (const int point : {30, 50, 70}) {
            const PlotPlace place = PlaceOf(plot, point).value();
            const auto strokes = PointMark(plot, point);
            const bool isLeft = strokes[1].align == ui::Picture::Align::Right;
            const bool isAbove = strokes[1].y < place.y;
            EXPECT_EQ(isLeft == isAbove, slope > 0) << point; // away from the line
        }
    }
}

TEST(Plot, MarkersAndBarsShowWhatIsThere) {
    using Shape = ui::Picture::Shape;
    PlotTable table = TableOf({{1, 300, 100}, {2, 310, 100}, {3, 300, 200}, {-4, 310, 200}}, 2);
    table.PointUnc = {0.5, 0, 0, 0};
    table.VarNames = {"Temperature (K)", "Pressure (kPa)"};
    const PlotFamilies families = FamiliesOf(table, 1, {});
    const auto count = [&](bool log, bool showUnc, Shape shape) {
        const PlotScale scale = ScaleOf(table, log);
        const auto strokes = PlotPicture({table, scale, 1, families, showUnc});
        return std::count_if(strokes.begin(), strokes.end(),
                             [&](const auto& one) { return one.shape == shape; });
    };
    EXPECT_EQ(count(false, true, Shape::Marker), 4 + 2); // and two in the legend
    EXPECT_EQ(count(true, true, Shape::Marker), 3 + 2);
    EXPECT_EQ(count(false, true, Shape::Line) - count(false, false, Shape::Line), 3);

    const PlotScale scale = ScaleOf(table, false);
    const auto strokes = PlotPicture({table, scale, 1, families, true});
    std::string seen;
    for (const auto& one : strokes)
        if (one.shape == Shape::Marker)
            seen += std::to_string(one.colour) + "/" + std::to_string(one.marker) + " ";
    EXPECT_EQ(seen, "1/0 1/0 2/1 2/1 1/0 2/1 ");
}

TEST(Plot, LongLabelsLeaveRoomForEachOther) {
    PlotTable table = TableOf({{1, 1234567890, 0}, {2, 1234567899.5, 0}});
    const PlotScale scale = ScaleOf(table, false);
    const PlotFamilies families = FamiliesOf(table, 1, {});
    const Plot plot{table, scale, 1, families, true};
    std::vector<double> places;
    for (const auto& one : PlotPicture(plot))
        if (one.text.starts_with("12345678")) places.push_back(one.x);
    ASSERT_GT(places.size(), 3U);
    constexpr double wide = 10 * 9.0 + 5; // ten digits of the drawing's font and a gap
    for (std::size_t i = 1; i < places.size(); ++i)
        EXPECT_GT(places[i] - places[i - 1], wide);
}

} // namespace
} // namespace vexora::test
