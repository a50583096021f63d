#include "reactions/ReactionForms.h"

#include "reactions/frmReact.h"

namespace vexora {

void RegisterReactionForms(ui::Forms& forms) {
    forms.Register<frmReact>("frmReact");
}

} // namespace vexora
