#include "entry/EntryForms.h"

#include "entry/frmKey.h"
#include "entry/frmProperty.h"
#include "entry/frmUnc.h"

namespace vexora {

void RegisterEntryForms(ui::Forms& forms) {
    forms.Register<frmKey>("frmKey");
    forms.Register<frmProperty>("frmProperty");
    forms.Register<frmUnc>("frmUnc");
}

} // namespace vexora
