#pragma once

#include <string>

#include "shell/Workbench.h"
#include "ui/FileSystem.h"

namespace vexora {

/// Makes the application folder if it is missing and copies into it, from what was installed, the
/// databases and introductory texts that it does not hold yet. The answer is the reason of a
/// failure, empty when all went well; a file that was not installed either is no failure here.
std::string PrepareHome(const Places& places, ui::FileSystem& files);

/// Copies the introductory texts that were installed with the help into an application folder that
/// has neither a configuration nor such texts yet, so that a person's first start shows them;
/// scripts start without. What cannot be copied is not shown.
void BringIntroduction(const Places& places, ui::FileSystem& files);

} // namespace vexora
