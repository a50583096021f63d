#include "entry/EditStatements.h"

#include <algorithm>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/clsX.h"
#include "ui/Forms.h"

namespace vexora {

bool EditStatements(std::span<clsX> items) {
    KVOGlobal& globals = Globals();
    const auto before = globals.CurrentUX;
    globals.CurrentUX = std::make_shared<std::vector<clsX>>(items.begin(), items.end());
    const bool acceptedBefore = std::exchange(globals.DialogAccepted, false);
    ui::Forms::Current().Get("frmUnc").ShowModal();
    const bool accepted = std::exchange(globals.DialogAccepted, acceptedBefore);
    if (accepted) std::ranges::copy(*globals.CurrentUX, items.begin());
    globals.CurrentUX = before;
    return accepted;
}

} // namespace vexora
