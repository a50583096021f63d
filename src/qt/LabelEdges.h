#pragma once

class QGridLayout;

namespace vexora::qt {

/// Labels in the groups of a column stand on one edge with those around them and with those of
/// neighbouring groups.
void ShareLabelEdge(QGridLayout& column);

/// Rows of fields below each other, each beside its own label: their first fields begin and end in
/// line, and their second ones begin in line.
void LineUpRows(const QGridLayout& column);

} // namespace vexora::qt
