#include "compounds/CompoundForms.h"

#include "compounds/frmSample.h"
#include "compounds/frmSubst.h"
#include "compounds/frmTables.h"

namespace vexora {

void RegisterCompoundForms(ui::Forms& forms) {
    forms.Register<frmSample>("frmSample");
    forms.Register<frmSubst>("frmSubst");
    forms.Register<frmTables>("frmTables");
}

} // namespace vexora
