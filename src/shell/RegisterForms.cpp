#include "shell/RegisterForms.h"

#include "dialogs/RegisterDialogs.h"
#include "plot/frmBox.h"
#include "plot/frmGraph.h"
#include "shell/frmConfigure.h"
#include "shell/frmMain.h"

namespace vexora {

void RegisterForms(ui::Forms& forms) {
    forms.Register<frmMain>("frmMain");
    forms.Register<frmConfigure>("frmConfigure");
    forms.Register<frmBox>("frmBox");
    forms.Register<frmGraph>("frmGraph");
    RegisterDialogs(forms);
}

} // namespace vexora
