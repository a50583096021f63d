#pragma once

#include "ui/Picture.h"
#include "ui/TreeView.h"

namespace vexora {

/// The small plot below the reading pane: the first picture that the plot would show of the
/// selected set. Hidden for other records, and for a set without two points.
void ShowReadingPlot(ui::Picture& picture, const ui::TreeTag* record);

} // namespace vexora
