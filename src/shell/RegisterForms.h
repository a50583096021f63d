#pragma once

#include "ui/Forms.h"

namespace vexora {

/// Makes every form of the program known to the registry.
void RegisterForms(ui::Forms& forms);

} // namespace vexora
