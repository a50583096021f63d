#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "globals/PlotTable.h"

namespace vexora {

/// The axes of a plot: which values they span and where a value stands on them. Plain axes carry X
/// and Y, logarithmic ones 1 / (X + Shift) and ln Y. Owned by the pane of a plot.
class PlotScale {
public:
    bool Log = false;
    double Shift = 0; // from the unit of X to one that starts at absolute zero
    double XMin = 0, XMax = 0, YMin = 0, YMax = 0;
    bool Empty = true; // there is nothing that these axes could show

    /// Spans all points with some room around them; X is this column of the table. Plain axes of
    /// fractions span the whole composition, unless the points are crowded in a small part of it.
    void Ranges(const PlotTable& table, int xVar);
    /// Spans the part between two corners, given in positions; the frame bounds it. False when
    /// nothing of the frame lies between them.
    bool Zoom(double fromX, double fromY, double toX, double toY);

    /// Position between the lower limit (0) and the upper one (1); 0.5 on an axis with equal
    /// limits, nothing for a value that the axis has no place for.
    std::optional<double> PositionX(double x) const;
    std::optional<double> PositionY(double y) const;
    /// The value at a position.
    double ValueX(double position) const;
    double ValueY(double position) const;

    /// Values to be labelled, at equal steps of the value in either mode; none on either axis when
    /// one of them has equal limits. The logarithmic mode squeezes small Y together below the first
    /// step: there the powers of ten are labelled. The reciprocal stretches small X: where fewer
    /// than three ticks stand apart, smaller steps lie before the first one.
    std::vector<double> TicksX() const;
    std::vector<double> TicksY() const;

private:
    void PadLog();
    bool HasTicks() const;
    std::vector<double> Apart(const std::vector<double>& ticks, double least) const;
};

/// Round values from min to max: steps of 1, 2 or 5 times a power of ten. None when the limits are
/// the same but for the last digits.
std::vector<double> Ticks(double min, double max);

/// What makes a temperature absolute, as the captions of the variables tell its unit: 273.15 for
/// "(C)", 459.6696 for "(F)", else 0.
double ShiftOf(const PlotTable& table);
/// The same of one caption.
double ShiftOf(std::string_view caption);

} // namespace vexora
