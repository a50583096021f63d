#include "structures/StructureForms.h"

namespace vexora {

void RegisterStructureForms(ui::Forms&) {}

} // namespace vexora
