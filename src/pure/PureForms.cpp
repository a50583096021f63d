#include "pure/PureForms.h"

#include "pure/frmSingle.h"
#include "pure/frmTwo.h"

namespace vexora {

void RegisterPureForms(ui::Forms& forms) {
    forms.Register<frmSingle>("frmSingle");
    forms.Register<frmTwo>("frmTwo");
}

} // namespace vexora
