#include "records/Walk.h"

#include "globals/KVOGlobal.h"
#include "records/clsR.h"

namespace vexora {

void Walk(Record& root, const std::function<void(Record&)>& visit) {
    visit(root);
    root.EachChild([&visit](Record& child) { Walk(child, visit); });
}

void WalkDocument(const std::function<void(Record&)>& visit) {
    for (const auto& source : Globals().recR)
        Walk(*source, visit);
}

} // namespace vexora
