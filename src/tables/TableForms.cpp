#include "tables/TableForms.h"

#include "tables/frmAverage.h"
#include "tables/frmData2.h"
#include "tables/frmProcess.h"
#include "tables/frmSelect.h"

namespace vexora {

void RegisterTableForms(ui::Forms& forms) {
    forms.Register<frmAverage>("frmAverage");
    forms.Register<frmData2>("frmData2");
    forms.Register<frmSelect>("frmSelect");
    forms.Register<frmProcess>("frmProcess");
}

} // namespace vexora
