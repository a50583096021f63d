#pragma once

#include "ui/Layout.h"

namespace vexora::qt {

/// True when the part can use more height (or width) than its content asks for.
bool GrowsDown(const ui::Layout& layout);
bool GrowsAcross(const ui::Layout& layout);

} // namespace vexora::qt
