#pragma once

#include "ui/Forms.h"

namespace vexora {

/// Makes the dialogs of this room known, one line each. A form that is not listed does not exist
/// for the workbench: what would open it stays disabled.
void RegisterDialogs(ui::Forms& forms);

} // namespace vexora
