#pragma once

#include <string>

#include "shell/Workbench.h"
#include "ui/FileSystem.h"

namespace vexora {

/// Makes the application folder if it is missing and copies into it, from what was installed, the
/// databases and introductory texts that it does not hold yet. The answer is the reason of a
/// failure, empty when all went well; a file that was not installed either is no failure here.
std::string PrepareHome(const Places& places, ui::FileSystem& files);

} // namespace vexora
