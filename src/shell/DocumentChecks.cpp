#include "shell/DocumentChecks.h"

#include "records/clsL.h"
#include "records/clsS.h"

namespace vexora {

bool LosesCompounds(const clsR& source) {
    for (const auto& compound : source.recL) {
        if (compound->recS.IsEmpty() && !compound->isNew) return true;
    }
    return false;
}

} // namespace vexora
