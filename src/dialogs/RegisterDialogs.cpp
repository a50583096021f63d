#include "dialogs/RegisterDialogs.h"

namespace vexora {

void RegisterDialogs([[maybe_unused]] ui::Forms& forms) {}

} // namespace vexora
