#pragma once

#include <memory>
#include <string>
#include <vector>

#include "entry/PhasePlot.h"

namespace vexora {

/// Names and units of the quantities as captions. A table without variables counts its points.
void NameColumns(PlotTable& table, const std::vector<Quantity>& quantities);

/// Tells each picture from here on what it is of.
void NameSystem(PlotTable& first, const std::string& system, const std::string& setNumber);

/// The pictures of a table, one leading to the next: what a mixture shows with the other sets of
/// its system comes before `own`, the plot of its own columns. The hand's table is `own`, which
/// gets the names of the components and the pure ends.
std::shared_ptr<PlotTable> PicturesOf(const SetInHand& hand, const std::shared_ptr<PlotTable>& own,
                                      const SetSurroundings& around);

/// The first of them for a set as the document holds it, to be seen small and at once: of many rows
/// it has at most a thousand, evenly spread, and sets around it that are too long are passed over.
/// Null for a set without two points.
std::shared_ptr<PlotTable> PictureOfRecord(const DataSet& set);

} // namespace vexora
