#include "plot/PlotTriangle.h"

#include <cmath>

#include <gtest/gtest.h>

#include "plot/SmallPlot.h"
#include "reference/Numbers.h"

namespace vexora::test {
namespace {

using Shape = ui::Picture::Shape;

std::string PlaceText(double x, double y) {
    return NumberText(std::round(x)) + "," + NumberText(std::round(y));
}

/// Lines in the text colour, markers and texts of a picture, but for the scales.
std::string TextOf(const PlotStrokes& strokes) {
    std::string text;
    for (const auto& one : strokes) {
        const bool isScale = one.yields && one.text.size() <= 4;
        if (one.shape == Shape::Line && one.colour == 0 && std::abs(one.x - one.x2) > 10)
            text += PlaceText(one.x, one.y) + " to " + PlaceText(one.x2, one.y2) + "\n";
        if (one.shape == Shape::Marker)
            text += (one.hollow ? "hollow " : "marker ") + std::to_string(one.colour) + " at " +
                    PlaceText(one.x, one.y) + "\n";
        if (one.shape == Shape::Text && !isScale) text += one.text + "\n";
    }
    return text;
}

PlotTable TriangleOf(std::vector<PlotTable::Row> points) {
    PlotTable table;
    table.nVar = 2;
    table.Corners = {"acetic acid", "chloroform", "water"};
    table.Title = "Weight fraction (%)";
    table.Whole = {0, 100, 100};
    for (const PlotTable::Row& point : points)
        table.Add(point, 0.5, table.PointCount() + 1);
    return table;
}

PlotStrokes Drawn(const PlotTable& table, bool ties = true) {
    PlotScale scale;
    scale.Ranges(table, 1);
    const PlotFamilies families = FamiliesOf(table, 1, {});
    return PlotPicture({table, scale, 1, families, true, ties});
}

TEST(PlotTriangle, LayersAreJoinedAndCornersNamed) {
    PlotTable table = TriangleOf({{0, 50, 0}, {0, 0, 100}, {0, 0, 50}});
    table.SeriesNames = {"Liquid mixture 1", "Liquid mixture 2"};
    table.PointSeries = {1, 0, 0};
    table.PointTie = {4, 4, 0};
    EXPECT_EQ(TextOf(Drawn(table)), "450,107 to 170,592\nacetic acid\n"
                                    "170,592 to 730,592\nchloroform\n"
                                    "730,592 to 450,107\nwater\n"
                                    "Weight fraction (%)\n"
                                    "marker 1 at 785,86\nLiquid mixture 1\n"
                                    "marker 2 at 785,114\nLiquid mixture 2\n"
                                    "590,350 to 170,592\n"
                                    "marker 2 at 590,350\nmarker 1 at 170,592\n"
                                    "marker 1 at 450,592\n");
    EXPECT_EQ(TextOf(Drawn(table, false)).find("590,350 to"), std::string::npos);
}

TEST(PlotTriangle, SideAndScaleLeadToTheCornerOfTheirComponent) {
    const PlotTable table = TriangleOf({{0, 20, 30}});
    std::string sides;
    for (const auto& one : Drawn(table))
        if (one.yields && one.text == "20") sides += PlaceText(one.x, one.y) + " ";
    EXPECT_EQ(sides, "685,483 387,181 273,599 "); // right, left and base
    const PlotScale scale;
    const PlotFamilies families;
    const PlotPlace place = PlaceInTriangle({table, scale, 1, families, true}, {0, 20, 0});
    EXPECT_EQ(PlaceText(place.x, place.y), "674,495"); // the point where the first scale says 20
}

TEST(PlotTriangle, ValuesOfAPropertyAreToldByClassesAndBesideThePoints) {
    PlotTable table =
        TriangleOf({{801.5, 20, 30}, {809.5, 60, 20}, {808.5, 0, 0}, {802.5, 0, 100}});
    table.YName = "Density (kg/m3)";
    const std::string seen = TextOf(Drawn(table));
    EXPECT_EQ(seen.substr(seen.find("marker")),
              "marker 1 at 845,86\nbelow 802\nmarker 2 at 845,114\n802 to 803\n"
              "marker 3 at 845,142\n808 to 809\nmarker 4 at 845,170\nfrom 809\n"
              "marker 1 at 506,495\nmarker 4 at 450,301\nmarker 3 at 730,592\n"
              "marker 2 at 170,592\n801.5\n809.5\n808.5\n802.5\n");
    table = TriangleOf({});
    table.YName = "Density (kg/m3)";
    EXPECT_TRUE(Drawn(table).empty());
}

TEST(PlotTriangle, PointsOutsideAreFaintOrGone) {
    const std::string seen =
        TextOf(Drawn(TriangleOf({{0, 110, 0}, {0, 60, 50}, {0, 150, 0}, {0, 30, 30}})));
    EXPECT_EQ(seen.substr(seen.find("marker")),
              "marker -1 at 422,59\nmarker -1 at 282,301\nmarker 1 at 478,447\n");
}

TEST(SmallPlot, HoldsAllPointsAndKeepsWithinItsSurface) {
    PlotTable triangle = TriangleOf({{0, 50, 0}, {0, 0, 100}, {0, 100, 0}});
    PlotTable axes = triangle;
    axes.Corners = {};
    axes.nVar = 1;
    axes.YName = "Temperature (K)";
    axes.VarNames = {"Mole fraction"};
    for (PlotTable* table : {&triangle, &axes}) {
        table->SeriesNames = {"Liquid mixture 1", "Liquid mixture 2"};
        table->PointSeries = {1, 0, 0};
        const PlotStrokes strokes = SmallPlot(*table);
        std::size_t markers = 0;
        for (const auto& one : strokes) {
            const double below = one.shape == Shape::Text ? LineHeight : 0;
            EXPECT_TRUE(one.x >= 0 && one.x <= SmallPlotSize.width && one.y >= 0 &&
                        one.y + below <= SmallPlotSize.height)
                << one.text << PlaceText(one.x, one.y);
            markers += one.shape == Shape::Marker;
        }
        EXPECT_EQ(markers, 5u); // two of them in the legend
    }
}

TEST(PlotTriangle, LongNamesAreBrokenOrShortened) {
    const auto lines = [](const std::string& name) {
        std::string text;
        for (const std::string& line : CornerLines(name))
            text += line + "|";
        return text;
    };
    EXPECT_EQ(lines("water"), "water|");
    EXPECT_EQ(lines("tris(2-hydroxyethyl)methylammonium methylsulfate"),
              "tris(2-hydroxyethyl)|methylammonium methylsulfate|");
    EXPECT_EQ(lines("1-butyl-3-methylimidazolium bis(trifluoromethylsulfonyl)imide"),
              "1-butyl-3-methylimidazolium|bis(trifluoromethylsulfon...|");
    EXPECT_EQ(lines("abcdefghijklmnopqrstuvwxyz\xC3\xA9\xC3\xA9z"),
              "abcdefghijklmnopqrstuvwxyz\xC3\xA9|\xC3\xA9z|");
}

TEST(PlotAxes, OfFractionsGoFromPureToPureWithThePureValues) {
    PlotTable table;
    table.YName = "Density (g/cm3)";
    table.VarNames[0] = "Weight fraction of ethanol (%)";
    table.Whole = {0, 100};
    table.Add({0.96, 20});
    table.Add({0.84, 80});
    table.Ends = {{{0.998, 0}, "water"}, {{0.789, 100}, "ethanol"}};
    const std::string seen = TextOf(Drawn(table));
    EXPECT_EQ(seen.substr(seen.find("Weight")),
              "Weight fraction of ethanol (%)\nDensity (g/cm3)\n"
              "hollow 0 at 97,56\nhollow 0 at 958,599\nethanol\nwater\n"
              "marker 1 at 269,155\nmarker 1 at 786,467\n");
    PlotScale scale;
    table.Ends.clear();
    table.PointTable[1][1] = 22; // crowded in a small part
    scale.Ranges(table, 1);
    EXPECT_DOUBLE_EQ(scale.XMin, 19.96);
    EXPECT_DOUBLE_EQ(scale.XMax, 22.04);
}

TEST(PlotAxes, TiesEndAtTheFrameOfAnEnlargedPart) {
    PlotTable table;
    table.Whole = {0, 1};
    table.SeriesNames = {"Liquid", "Gas"};
    table.Add({350, 0.2}, 0, 1, false, 0, 1);
    table.Add({350, 0.8}, 0, 1, false, 1, 1);
    table.Add({360, 0.1}, 0, 2, false, 0, 2);
    table.Add({360, 0.6}, 0, 2, false, 1, 2);
    const PlotFamilies families = FamiliesOf(table, 1, {});
    PlotScale scale;
    scale.Ranges(table, 1);
    const auto ties = [&] {
        const Plot plot{table, scale, 1, families, true};
        std::string text;
        for (const auto& one : PlotPicture(plot))
            if (one.shape == Shape::Line && one.colour == 0 && one.x2 - one.x > 10)
                text += NumberText(
                            std::round(scale.ValueX(PositionsAt(plot, {one.x, one.y}).x) * 100)) +
                        " to " +
                        NumberText(
                            std::round(scale.ValueX(PositionsAt(plot, {one.x2, one.y2}).x) * 100)) +
                        "\n";
        return text;
    };
    EXPECT_EQ(ties(), "20 to 80\n10 to 60\n");
    scale.XMin = 0.5, scale.XMax = 0.7, scale.YMax = 355;
    EXPECT_EQ(ties(), "50 to 70\n");
}

} // namespace
} // namespace vexora::test
