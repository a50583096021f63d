#pragma once

#include "shell/Workbench.h"

namespace vexora {

/// Brings the globals to their state at the start and reads the configuration.
void InitGlobals(const Places& places);

/// What happens before the main form shows: the first-run steps, the user's name, the databases.
/// False when the user chose to end the program.
bool RunStartUp();

} // namespace vexora
