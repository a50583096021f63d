#include "plot/frmGraph.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <gtest/gtest.h>

#include "plot/PictureSvg.h"
#include "globals/KVOGlobal.h"
#include "support/StrictDesktop.h"
#include "ui/Forms.h"

namespace vexora::test {
namespace {

class frmGraphTest : public testing::Test {
protected:
    frmGraphTest() {
        forms.Register<frmGraph>("frmGraph");
        globals.Plot = std::make_shared<PlotTable>();
        globals.Plot->YName = "Density (kg/m3)";
        globals.Plot->VarNames = {"Temperature (K)", "Pressure (kPa)"};
    }
    frmGraph& Open() {
        auto& graph = forms.Get<frmGraph>("frmGraph");
        graph.Show();
        return graph;
    }
    void Key(const char* name) { Graph().UserKey(ui::ParseKey(name)); }
    frmGraph& Graph() { return forms.Get<frmGraph>("frmGraph"); }

    StrictDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
};

TEST_F(frmGraphTest, AFullTableIsDrawnAndSearched) {
    PlotTable& table = *globals.Plot;
    table.nVar = 2;
    for (std::size_t i = 0; i < PlotTable::MostPoints; ++i) {
        const auto at = static_cast<double>((i * 7919) % PlotTable::MostPoints);
        table.Add({1000 - at / 50, 300 + at / 100, std::floor(at / 20)}, 0.1, static_cast<int>(i));
    }
    frmGraph& graph = Open();
    graph.cmdVar.UserClick();
    graph.picPIC.UserHover(400, 300);
    const auto isDense = [](const ui::Picture::Stroke& stroke) { return stroke.dense; };
    EXPECT_EQ(std::ranges::count_if(graph.picPIC.Strokes(), isDense), PlotTable::MostPoints);
    EXPECT_EQ(graph.lblPoint.Caption().front(), '(');
}

TEST_F(frmGraphTest, DegenerateTablesAreShownInBothModes) {
    const std::vector<std::vector<PlotTable::Row>> tables{{},
                                                          {{5, 300}},
                                                          {{5, 300}, {5, 300}},
                                                          {{5, 300}, {6, 300}},
                                                          {{5, 300}, {5, 400}},
                                                          {{-5, -300}, {0, 0}},
                                                          {{1e-300, 1e-300}, {1e300, 1e300}},
                                                          {{1, -1e300}, {-1, 1e300}}};
    for (const auto& points : tables) {
        globals.Plot = std::make_shared<PlotTable>();
        globals.Plot->nVar = 2;
        for (const auto& point : points)
            globals.Plot->Add(point, 0.5, 1);
        frmGraph& graph = Open();
        for (int mode = 0; mode < 2; ++mode) {
            graph.picPIC.UserHover(500, 300);
            graph.picPIC.UserDrag(200, 200, 600, 400);
            graph.picPIC.UserDrag(10, 10, 990, 690);
            for (const char* key : {"Right", "Up", "End", "F8"})
                Key(key);
            graph.cmdVar.UserClick();
            graph.cmdMode.UserClick();
        }
        graph.Close();
    }
}

TEST_F(frmGraphTest, NothingToDrawIsToldWithItsReason) {
    EXPECT_EQ(Open().lblPoint.Caption(), "There are no points to draw");
    Graph().Close();
    globals.Plot->Add({-1, 300}, 0, 1);
    Open().cmdMode.UserClick();
    EXPECT_EQ(Graph().lblPoint.Caption(), "Nothing to draw: 1/X and ln Y need an absolute "
                                          "temperature and a value above 0");
    EXPECT_TRUE(Graph().picPIC.Strokes().empty());
    Graph().cmdMode.UserClick();
    EXPECT_FALSE(Graph().picPIC.Strokes().empty());
}

TEST_F(frmGraphTest, EnterLeadsToTheRowOfThePointThatIsTold) {
    globals.Plot->Add({3, 320}, 0, 1);
    globals.Plot->Add({1, 300}, 0, 2);
    globals.Plot->Add({9, 310}, 0, 3, true);
    Open();
    Key("Right");
    EXPECT_EQ(Graph().lblPoint.Caption(), "(300, 1)");
    Key("F8");
    EXPECT_EQ(Graph().lblRow.Caption(), "Row 3, look again, Enter goes there");
    EXPECT_EQ(Graph().picPIC.Overlay().back().text, "Row 3, look again");
    Graph().cmdUnc.UserClick(); // the point stays told
    Key("Enter");
    EXPECT_EQ(forms.Find("frmGraph"), nullptr);
    EXPECT_EQ(globals.Plot->ChosenRow, 3);
    Open();
    Graph().cmdOK.UserClick();
    EXPECT_EQ(globals.Plot->ChosenRow, 3);
}

TEST_F(frmGraphTest, RubberBandIsGoneAfterTheZoom) {
    globals.Plot->Add({1, 300}, 0, 1);
    globals.Plot->Add({2, 400}, 0, 2);
    frmGraph& graph = Open();
    const std::size_t before = graph.picPIC.Strokes().size();
    graph.picPIC.OnPress(200, 200);
    graph.picPIC.OnMove(300, 260);
    ASSERT_EQ(graph.picPIC.Overlay().size(), 1U);
    EXPECT_EQ(graph.picPIC.Overlay()[0].shape, ui::Picture::Shape::Rectangle);
    EXPECT_EQ(graph.picPIC.Strokes().size(), before);
    graph.picPIC.OnRelease(300, 260);
    EXPECT_TRUE(graph.picPIC.Overlay().empty());
    graph.picPIC.UserHover(300, 260); // nothing is drawn near enough to be told
    EXPECT_EQ(graph.lblPoint.Caption(), "Drag a rectangle to enlarge it, click to see all points");
    graph.picPIC.UserDrag(300, 300, 305, 400); // thin, so a click
    graph.picPIC.UserHover(300, 260);
    EXPECT_EQ(graph.lblPoint.Caption().front(), '(');
}

TEST_F(frmGraphTest, PicturesOfOneTableFollowEachOther) {
    PlotTable& triangle = *globals.Plot;
    triangle.Corners = {"A", "B", "C"};
    triangle.Title = "Mole fraction";
    triangle.YName.clear();
    triangle.nVar = 2;
    triangle.Add({0, 0.2, 0.3}, 0, 0, false, 0, 1);
    triangle.Add({0, 0.5, 0.1}, 0, 4, false, 0, 1);
    triangle.Next = std::make_shared<PlotTable>();
    triangle.Next->YName = "Y";
    triangle.Next->VarNames = {"X", "T"};
    triangle.Next->nVar = 2;
    triangle.Next->Whole[1] = 1;
    triangle.Next->Add({2, 0.5, 300}, 0, 3);
    const auto shown = [](frmGraph& graph) {
        std::string text = graph.Caption();
        for (const ui::Control* one :
             {static_cast<ui::Control*>(&graph.cmdPicture),
              static_cast<ui::Control*>(&graph.cmdTies), static_cast<ui::Control*>(&graph.cmdMode),
              static_cast<ui::Control*>(&graph.cmdVar), static_cast<ui::Control*>(&graph.cmdUnc)})
            text += one->Visible() ? " " + one->Name() : "";
        return text;
    };
    frmGraph& graph = Open();
    EXPECT_EQ(shown(graph), "A + B + C: Mole fraction cmdPicture cmdTies");
    EXPECT_TRUE(graph.picPIC.KeepsShape());
    graph.picPIC.UserDrag(200, 200, 600, 400); // a triangle is not enlarged
    const auto before = graph.picPIC.Strokes().size();
    graph.cmdTies.UserClick();
    EXPECT_EQ(graph.picPIC.Strokes().size(), before - 1);
    Key("Right");
    EXPECT_EQ(graph.lblPoint.Caption() + graph.lblRow.Caption(), "(0.2, 0.3, 0.5)Of another table");
    Key("Enter"); // which is not here to go to
    graph.cmdPicture.UserClick();
    EXPECT_EQ(shown(graph), "Y as function of X cmdPicture cmdVar cmdUnc");
    EXPECT_FALSE(graph.picPIC.KeepsShape());
    graph.cmdVar.UserClick();
    EXPECT_EQ(shown(graph), "Y as function of T cmdPicture cmdMode cmdVar cmdUnc");
    graph.cmdMode.UserClick();
    graph.cmdVar.UserClick(); // fractions have no reciprocal
    EXPECT_FALSE(graph.picPIC.Strokes().empty());
    Key("Right");
    Key("Enter");
    EXPECT_EQ(globals.Plot->ChosenRow, 3);
}

TEST_F(frmGraphTest, DrawingsHoldEveryShapeInPlainText) {
    ui::Form form("frmAny", "Any");
    ui::Picture picture(form, "picAny", 200, 100);
    using Shape = ui::Picture::Shape;
    std::vector<ui::Picture::Stroke> strokes{
        {Shape::Line, 1, 2, 3.456, 4, -1, {}},   {Shape::Ring, 5, 5, 0, 0, 0, {}},
        {Shape::Text, 10, 20, 0, 0, 0, "a < b"}, {Shape::Marker, 7, 8, 0, 0, 2, {}},
        {Shape::Marker, 9, 8, 0, 0, 2, {}},      {Shape::Marker, 3, 8, 0, 0, 0, {}}};
    strokes[3].marker = 2;
    strokes[4].dense = true;
    strokes[5].hollow = true;
    picture.Strokes(strokes);
    const std::string svg = SvgOf(picture, "T & p");
    EXPECT_EQ(svg.substr(svg.find("<title>")),
              "<title>T &amp; p</title>\n"
              "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n"
              "<line x1=\"1\" y1=\"2\" x2=\"3.46\" y2=\"4\" fill=\"none\" "
              "stroke=\"#d9d9d9\"/>\n"
              "<circle cx=\"5\" cy=\"5\" r=\"12.1\" fill=\"none\" stroke=\"#000000\" "
              "stroke-width=\"2\"/>\n"
              "<text x=\"10\" y=\"36\" text-anchor=\"start\">a &lt; b</text>\n"
              "<polygon points=\"-1.1,0.9 1.1,0.9 0,-1.1\" transform=\"translate(7 8) "
              "scale(5.5)\" fill=\"#ff4411\" stroke=\"#ffffff\" stroke-width=\"0.18\"/>\n"
              "<circle cx=\"9\" cy=\"8\" r=\"3.3\" fill=\"#ff4411\"/>\n"
              "<circle cx=\"3\" cy=\"8\" r=\"5.5\" fill=\"#ffffff\" stroke=\"#000000\"/>\n"
              "</svg>\n");
}

} // namespace
} // namespace vexora::test
