#pragma once

class QGridLayout;

namespace vexora::qt {

/// Labels in the groups of a column stand on one edge with those around them and with those of
/// neighbouring groups.
void ShareLabelEdge(QGridLayout& column);

} // namespace vexora::qt
