#include "grid/ColumnShape.h"

#include <algorithm>

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

NumberShape ShapeOf(std::string_view text) {
    text = TrimBlanks(text);
    if (text.ends_with('%')) text.remove_suffix(1);
    if (!IsNumeric(text)) return {};
    const std::size_t point = std::min(text.find('.'), text.find_first_of("eE"));
    const std::size_t before = std::min(point, text.size());
    const bool hasExponent = text.find_first_of("eE") != text.npos;
    return {true, hasExponent, before, text.size() - before};
}

ColumnShape ShapeOf(const ui::Grid& grid, int column) {
    ColumnShape shape;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        const std::string& text = grid.Cell(row, column);
        if (text.empty()) continue;
        if (text.size() > shape.longest) {
            shape.longest = text.size();
            shape.longestRow = row;
        }
        const NumberShape number = ShapeOf(text);
        if (!number.isNumber) continue;
        shape.before = std::max(shape.before, number.before);
        shape.behind = std::max(shape.behind, number.behind);
        if (number.hasExponent) shape.hasPointsInLine = false;
    }
    return shape;
}

} // namespace vexora
