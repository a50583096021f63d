#include "bio/BioForms.h"

#include "bio/frmBioData.h"
#include "bio/frmBioProp.h"

namespace vexora {

void RegisterBioForms(ui::Forms& forms) {
    forms.Register<frmBioData>("frmBioData");
    forms.Register<frmBioProp>("frmBioProp");
}

} // namespace vexora
