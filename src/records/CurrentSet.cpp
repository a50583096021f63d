#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "records/clsTwo.h"

namespace vexora {

std::shared_ptr<DataSet> CurrentSet() {
    return Globals().CurrentTwo; // of a compound or a complex, the only ones that have sets here
}

} // namespace vexora
