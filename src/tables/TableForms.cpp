#include "tables/TableForms.h"

#include "tables/frmData2.h"
#include "tables/frmPasteView.h"

namespace vexora {

void RegisterTableForms(ui::Forms& forms) {
    forms.Register<frmData2>("frmData2");
    forms.Register<frmPasteView>("frmPasteView");
}

} // namespace vexora
