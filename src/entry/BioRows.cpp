#include "entry/BioRows.h"

#include <utility>

#include "entry/SetRevision.h"
#include "globals/KVOGlobal.h"

namespace vexora {

bool EnterBioRows(ui::Control& field, const std::shared_ptr<BioSet>& set) {
    const auto before = std::exchange(Globals().BioSetInHand, set);
    const bool isAccepted = EnterTable(field, "frmBioData");
    Globals().BioSetInHand = before;
    return isAccepted;
}

} // namespace vexora
