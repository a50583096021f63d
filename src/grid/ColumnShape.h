#pragma once

#include <cstddef>
#include <string_view>

#include "ui/Grid.h"

namespace vexora {

/// A plain number as it is typed: how many characters stand before its point, and how many from
/// there on. Nothing of it is measured: all digits are of one width.
struct NumberShape {
    bool isNumber = false;
    bool hasExponent = false;
    std::size_t before = 0, behind = 0; // the point counts as behind
    bool operator==(const NumberShape&) const = default;
};
NumberShape ShapeOf(std::string_view text);

/// What a column needs so that its points stand below each other: the most room on either side of
/// the point. Numbers of several styles, with exponents and without, have no common point and only
/// end at the same edge.
struct ColumnShape {
    std::size_t before = 0, behind = 0;
    std::size_t longest = 0; // of any text, in bytes
    int longestRow = -1;     // where it stands
    bool hasPointsInLine = true;
    bool operator==(const ColumnShape&) const = default;

    /// Room that stays free behind a number, in characters.
    std::size_t FreeBehind(const NumberShape& number) const {
        return hasPointsInLine && behind > number.behind ? behind - number.behind : 0;
    }
};
/// One walk down the column, behind the fixed rows.
ColumnShape ShapeOf(const ui::Grid& grid, int column);

} // namespace vexora
