#include "mixtures/MixtureForms.h"

namespace vexora {

void RegisterMixtureForms(ui::Forms&) {}

} // namespace vexora
