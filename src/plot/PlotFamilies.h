#pragma once

#include <vector>

#include "globals/PlotTable.h"

namespace vexora {

/// Negative when row a stands before row b, 0 when they are equal: by the column that serves as X,
/// then by the first columns up to the fourth.
int GT(const PlotTable::Row& a, const PlotTable::Row& b, int xVar, int nVar);

/// Brings the rows into that order, with all that belongs to them; equal rows keep theirs.
void Arrange(PlotTable& table, int xVar);

/// Points that agree in all variables but the one on the X axis, so that they lie on one curve; in
/// a triangle that shows a property, points of one class of its values.
struct PlotFamilies {
    std::vector<int> GroupOf;   // of each point
    std::vector<int> GroupRows; // the point that stands for each group
};

/// The part by which families are told apart at first.
inline constexpr double UsualTolerance = 0.001;

/// Two values agree when they differ by less than this part of the value already there; against 0,
/// half of the value counts as the difference. Points of different series never do. After 1000
/// groups all others share the last one.
PlotFamilies FamiliesOf(const PlotTable& table, int xVar, double tolerance);

/// The round values between the classes of column 0, in rising order.
std::vector<double> ClassBounds(const PlotTable& table);

} // namespace vexora
