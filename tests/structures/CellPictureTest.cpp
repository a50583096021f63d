#include "structures/CellPicture.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace vexora::test {
namespace {

using Shape = ui::Picture::Shape;

constexpr CellConstants Cube{{10, 10, 10}, {90, 90, 90}};
constexpr CellConstants Rhombus{{10, 10, 30}, {90, 90, 120}};

/// Markers of atoms by their colour; of the legend's, one an element, none is counted.
std::string Atoms(const CellConstants& cell, std::string_view group,
                  const std::vector<CrystalAtom>& atoms) {
    std::map<std::string, int> counts;
    int legend = 0;
    for (const auto& stroke : CellPicture(cell, group, atoms, CellView::Aslant)) {
        if (stroke.shape == Shape::Marker) ++counts[std::to_string(stroke.colour)];
        if (stroke.text.ends_with(" listed")) ++legend;
    }
    std::string text;
    for (const auto& [colour, count] : counts)
        text += colour + ":" + std::to_string(count) + " ";
    return text + "legend " + std::to_string(legend);
}

TEST(CellPictureTest, AtomsStandWhereTheLatticeRepeatsThem) {
    const auto at = [](const char* x, const char* y, const char* z) {
        return std::vector<CrystalAtom>{{"O", x, "", y, "", z, "", "1"}};
    };
    const struct {
        const char* group;
        std::vector<CrystalAtom> atoms;
        const char* drawn;
        const CellConstants& cell = Cube;
    } cases[] = {
        {"P1", at("0", "0", "0"), "2:9 legend 1"}, // the corners, and one in the legend
        {"P1", at("1.0", "-1", "0.9999"), "2:9 legend 1"},
        {"P1", at("0.5", "0.5", "0"), "2:3 legend 1"},
        {"P1", at("-0.25", "0.3", "0.1"), "2:2 legend 1"},
        {"Im-3m", at("0", "0", "0"), "2:10 legend 1"},
        {"Fd-3m", at("0", "0", "0"), "2:15 legend 1"}, // corners and faces
        {"Cmcm", at("0.1", "0.1", "0.1"), "2:3 legend 1"},
        {"R-3", at("0", "0", "0"), "2:11 legend 1", Rhombus},
        {"R-3", at("0", "0", "0"), "2:9 legend 1"}, // on its own axes
        {"P1", at("0", "x", "0"), "legend 0"},      // not yet a place
        {"P1", {{"D", "0", "", "0", "", "0", "", "1"}}, "legend 0"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Atoms(one.cell, one.group, one.atoms), one.drawn)
            << one.group << " " << one.atoms.front().XX;
}

TEST(CellPictureTest, AllOfItLiesOnTheSurfaceFromEverywhere) {
    const CellConstants oblique{{6, 25, 9}, {70, 115, 95}};
    const std::vector<CrystalAtom> atoms{{"H", "0", "", "0", "", "0", "", "1"},
                                         {"C", "0.9", "", "0.1", "", "0.5", "", "1"}};
    for (const CellView view :
         {CellView::AlongA, CellView::AlongB, CellView::AlongC, CellView::Aslant})
        for (const CellConstants& cell : {Cube, oblique}) {
            int lines = 0;
            for (const auto& stroke : CellPicture(cell, "P1", atoms, view)) {
                EXPECT_TRUE(stroke.x > 0 && stroke.x < CellPictureWidth) << stroke.text;
                EXPECT_TRUE(stroke.y > 0 && stroke.y < CellPictureHeight) << stroke.text;
                lines += stroke.shape == Shape::Line ? 1 : 0;
            }
            EXPECT_EQ(lines, 12);
        }
    EXPECT_EQ(CellPicture({{1, 1, {}}, {}}, "P1", atoms, CellView::AlongA).front().text,
              "The cell is drawn when its six constants are known");
    EXPECT_EQ(CellPicture({{5, 5, 5}, {120, 120, 120}}, "P1", atoms, CellView::AlongA).front().text,
              "These constants close no cell");
}

} // namespace
} // namespace vexora::test
