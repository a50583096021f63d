#include "compounds/CompoundForms.h"

#include "compounds/frmSample.h"
#include "compounds/frmSubst.h"

namespace vexora {

void RegisterCompoundForms(ui::Forms& forms) {
    forms.Register<frmSample>("frmSample");
    forms.Register<frmSubst>("frmSubst");
}

} // namespace vexora
