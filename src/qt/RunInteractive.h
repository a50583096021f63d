#pragma once

#include <string>

#include "qt/Application.h"
#include "shell/Workbench.h"

namespace vexora::qt {

/// Runs the workbench for a person until the main window closes; the answer is the exit status.
int RunInteractive(Application& application, const Places& places, const std::string& document);

} // namespace vexora::qt
