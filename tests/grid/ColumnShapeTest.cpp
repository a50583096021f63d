#include "grid/ColumnShape.h"

#include <gtest/gtest.h>

#include "ui/Form.h"

namespace vexora::test {
namespace {

/// Of each number the room that stays free behind it, "-" for what is no number.
std::string RoomIn(const std::vector<std::string>& texts) {
    ui::Form form("frmAny", "Any");
    ui::Grid grid(form, "tblAny", static_cast<int>(texts.size()) + 1, 1);
    grid.Cell(0, 0, "123.4567890123");
    for (std::size_t row = 0; row < texts.size(); ++row)
        grid.Cell(static_cast<int>(row) + 1, 0, texts[row]);
    const ColumnShape shape = ShapeOf(grid, 0);
    std::string room;
    for (const std::string& text : texts) {
        const NumberShape number = ShapeOf(text);
        room += (number.isNumber ? std::to_string(shape.FreeBehind(number)) : "-") + " ";
    }
    return room + std::to_string(shape.before) + "+" + std::to_string(shape.behind);
}

TEST(ColumnShape, PointsStandInLineWhereNumbersAreOfOneStyle) {
    EXPECT_EQ(RoomIn({"300", "-20.25", "1.5", ""}), "3 0 1 - 3+3");
    EXPECT_EQ(RoomIn({"999.80", "996.5x", "1%"}), "0 - 3 3+3");
    EXPECT_EQ(RoomIn({"1.5", "2.25E-5"}), "0 0 1+6"); // no common point
    EXPECT_EQ(RoomIn({"12", "7"}), "0 0 2+0");
}

} // namespace
} // namespace vexora::test
