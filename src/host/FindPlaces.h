#pragma once

#include <optional>
#include <string>

#include "shell/Workbench.h"

namespace vexora::host {

/// Where the workbench finds its things, as full paths. The application folder is the first of:
/// home when it is given, VEXORA_HOME, the folder of the program when it holds VXR.ini or the
/// databases and can be written, vexora below XDG_DATA_HOME (or ~/.local/share). What was installed
/// lies in ../share/vexora beside the program. argv0 serves where the system does not tell the
/// path of the program. Nothing is made; PrepareHome does that.
Places FindPlaces(const std::optional<std::string>& home, const std::string& argv0);

} // namespace vexora::host
