#include "bio/BioForms.h"

namespace vexora {

void RegisterBioForms(ui::Forms&) {}

} // namespace vexora
