#pragma once

#include <string>

#include "qt/Application.h"
#include "shell/Workbench.h"

namespace vexora::qt {

/// Runs the workbench for a person until the main window closes; the answer is the exit status. The
/// look that was chosen in it last is taken, unless the start asked for one.
int RunInteractive(Application& application, const Places& places, const std::string& document,
                   const std::string& look);

} // namespace vexora::qt
