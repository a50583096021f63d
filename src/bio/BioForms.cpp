#include "bio/BioForms.h"

#include "bio/frmBioData.h"
#include "bio/frmBioProp.h"
#include "bio/frmBioReact.h"

namespace vexora {

void RegisterBioForms(ui::Forms& forms) {
    forms.Register<frmBioData>("frmBioData");
    forms.Register<frmBioReact>("frmBioReact");
    forms.Register<frmBioProp>("frmBioProp");
}

} // namespace vexora
