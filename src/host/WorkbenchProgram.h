#pragma once

#include "host/Program.h"
#include "shell/Workbench.h"

namespace vexora::host {

/// Makes a workbench in these places for the player.
MakeProgram WorkbenchIn(const Places& places);

} // namespace vexora::host
