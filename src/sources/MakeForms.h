#pragma once

#include "ui/Forms.h"

namespace vexora {

/// Makes the forms for the details of a publication known. Each asks for the parts of one kind of
/// publication, and on Accept builds from them the one source text of the description of the
/// document, which stands open below it. Opened again it shows the parts of the present text.
void RegisterMakeForms(ui::Forms& forms);

} // namespace vexora
