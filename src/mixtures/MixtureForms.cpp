#include "mixtures/MixtureForms.h"

#include "mixtures/frmMixt.h"

namespace vexora {

void RegisterMixtureForms(ui::Forms& forms) {
    forms.Register<frmMixt>("frmMixt");
}

} // namespace vexora
