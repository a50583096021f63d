#include "bio/BioForms.h"

#include "bio/frmBioProp.h"

namespace vexora {

void RegisterBioForms(ui::Forms& forms) {
    forms.Register<frmBioProp>("frmBioProp");
}

} // namespace vexora
