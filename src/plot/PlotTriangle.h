#pragma once

#include "plot/PlotPicture.h"

namespace vexora {

// The composition triangle: its corners are the pure components, the first at the top, the second
// at the left; along each side runs the scale of the component at its end.

/// Frame, gridlines at each tenth with their values, the names of the components at the corners,
/// and the legend.
void DrawTriangle(PlotStrokes& strokes, const Plot& plot);

/// Where a composition lies; a little outside for fractions that go a little beyond their range.
PlotPlace PlaceInTriangle(const Plot& plot, const PlotTable::Row& row);
/// The smallest of the three fractions of 1: below 0 outside of the triangle.
double LeastFraction(const PlotTable& table, const PlotTable::Row& row);
/// The value of the property beside its point, towards the middle, where no scale stands.
ui::Picture::Stroke ValueLabel(const Plot& plot, const PlotTable::Row& row);
/// The three fractions, "(0.2, 0.3, 0.5)".
std::string CompositionText(const PlotTable& table, const PlotTable::Row& row);

/// A name for a corner: broken between words or behind a hyphen or bracket, so that it needs no
/// more than two lines; what does not fit into these ends with "...".
std::vector<std::string> CornerLines(const std::string& name);

} // namespace vexora
