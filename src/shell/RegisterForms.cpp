#include "shell/RegisterForms.h"

#include "dialogs/RegisterDialogs.h"
#include "plot/frmBox.h"
#include "shell/frmConfigure.h"
#include "shell/frmMain.h"

namespace vexora {

void RegisterForms(ui::Forms& forms) {
    forms.Register<frmMain>("frmMain");
    forms.Register<frmConfigure>("frmConfigure");
    forms.Register<frmBox>("frmBox");
    RegisterDialogs(forms);
}

} // namespace vexora
