#include "structures/StructureForms.h"

#include "structures/frmGH.h"

namespace vexora {

void RegisterStructureForms(ui::Forms& forms) {
    forms.Register<frmGH>("frmGH");
}

} // namespace vexora
