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

std::size_t CountRecords() {
    std::size_t count = 0;
    WalkDocument([&count](Record&) { ++count; });
    return count;
}

void WalkDocument(const std::function<void(Record&)>& visit, const WorkHeard& heard) {
    if (!heard) return WalkDocument(visit);
    const auto all = static_cast<double>(CountRecords());
    double done = 0;
    WalkDocument([&](Record& record) {
        if (!heard(done++ / all)) throw WorkStopped();
        visit(record);
    });
}

} // namespace vexora
