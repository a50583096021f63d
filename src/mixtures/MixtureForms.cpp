#include "mixtures/MixtureForms.h"

#include "mixtures/frmMixt.h"
#include "mixtures/frmMixtSingle.h"

namespace vexora {

void RegisterMixtureForms(ui::Forms& forms) {
    forms.Register<frmMixt>("frmMixt");
    forms.Register<frmMixtSingle>("frmMixtSingle");
}

} // namespace vexora
