#include "entry/EntryForms.h"

#include "entry/frmKey.h"
#include "entry/frmPasteView.h"
#include "entry/frmProperty.h"
#include "entry/frmUnc.h"

namespace vexora {

void RegisterEntryForms(ui::Forms& forms) {
    forms.Register<frmKey>("frmKey");
    forms.Register<frmPasteView>("frmPasteView");
    forms.Register<frmProperty>("frmProperty");
    forms.Register<frmUnc>("frmUnc");
}

} // namespace vexora
