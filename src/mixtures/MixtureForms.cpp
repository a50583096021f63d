#include "mixtures/MixtureForms.h"

#include "mixtures/frmMixt.h"
#include "mixtures/frmMixtSingle.h"
#include "mixtures/frmMixtVar.h"

namespace vexora {

void RegisterMixtureForms(ui::Forms& forms) {
    forms.Register<frmMixt>("frmMixt");
    forms.Register<frmMixtSingle>("frmMixtSingle");
    forms.Register<frmMixtVar>("frmMixtVar");
}

} // namespace vexora
