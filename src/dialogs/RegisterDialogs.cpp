#include "dialogs/RegisterDialogs.h"

#include "dialogs/frmSample.h"
#include "dialogs/frmSubst.h"

namespace vexora {

void RegisterDialogs(ui::Forms& forms) {
    forms.Register<frmSample>("frmSample");
    forms.Register<frmSubst>("frmSubst");
}

} // namespace vexora
