#pragma once

#include <QImage>

#include "qt/Windows.h"

namespace vexora::qt::test {

/// What the screen shows of a control, which has a window.
QImage PictureOf(const Windows& windows, const ui::Control& control);
/// Whether the second picture shows a mark around the control that the first has not: much more
/// than the thin line of a caret is another colour, far enough from the old one to be seen.
bool IsMarked(const QImage& before, const QImage& after);

} // namespace vexora::qt::test
