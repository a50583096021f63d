#include "reactions/ReactionForms.h"

#include "reactions/frmChanged.h"
#include "reactions/frmEquil.h"
#include "reactions/frmReact.h"

namespace vexora {

void RegisterReactionForms(ui::Forms& forms) {
    forms.Register<frmReact>("frmReact");
    forms.Register<frmChanged>("frmChanged");
    forms.Register<frmEquil>("frmEquil");
}

} // namespace vexora
