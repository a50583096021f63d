#pragma once

#include <vector>

#include "globals/PlotTable.h"
#include "globals/Sitting.h"

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

/// Two values agree when they differ by less than the part of the value already there that is
/// allowed for its quantity, which the caption of the variable tells; against 0, half of the value
/// counts as the difference. Temperatures of any unit are compared as absolute ones. Points of
/// different series never agree. After 1000 groups all others share the last one.
PlotFamilies FamiliesOf(const PlotTable& table, int xVar, const CurveTolerances& tolerances);

/// The families by series, then by the values that they share, as a legend lists them.
std::vector<int> FamiliesByValue(const PlotTable& table, int xVar, const PlotFamilies& families);

/// The round values between the classes of column 0, in rising order.
std::vector<double> ClassBounds(const PlotTable& table);

} // namespace vexora
