#pragma once

#include "ui/Forms.h"

namespace vexora {

/// Makes the forms of this room known. One that is not listed does not exist for the workbench:
/// what would open it stays disabled.
void RegisterBioForms(ui::Forms& forms);

} // namespace vexora
