#include "reactions/ReactionForms.h"

namespace vexora {

void RegisterReactionForms(ui::Forms&) {
}

} // namespace vexora
