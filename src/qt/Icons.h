#pragma once

#include <string_view>

#include <QIcon>
#include <QPalette>

namespace vexora::qt {

/// A picture for a tool button, drawn from simple shapes in the colours of the palette: the key of
/// the button picks the shape, a key without one gets a tile with its first letter.
QIcon IconFor(std::string_view key, const QPalette& palette);

/// The picture of the workbench for title bars and lists of windows; on a sheet of its own, for
/// nobody knows what lies behind it.
QIcon ApplicationIcon();

} // namespace vexora::qt
