#include "records/TiedSets.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Text.h"

namespace vexora {

std::vector<std::shared_ptr<clsMV>> TiedSets(clsMV& set) {
    if (!set.IsTied() || set.Parent == nullptr) return {set.As<clsMV>()};
    std::unordered_map<std::string, std::vector<clsMV*>> bearers; // of each number
    for (const auto& other : set.Parent->recMV)
        for (const clsData& row : other->recData)
            if (!IsBlankField(row.TIELINE)) bearers[row.TIELINE].push_back(other.get());
    std::unordered_set<const clsMV*> found = {&set};
    std::vector<const clsMV*> open = {&set};
    while (!open.empty()) {
        const clsMV* const next = open.back();
        open.pop_back();
        for (const clsData& row : next->recData) {
            if (IsBlankField(row.TIELINE)) continue;
            // Whom a number leads to has to be asked once.
            for (const clsMV* other : std::exchange(bearers[row.TIELINE], {}))
                if (found.insert(other).second) open.push_back(other);
        }
    }
    std::vector<std::shared_ptr<clsMV>> tied;
    for (const auto& other : set.Parent->recMV)
        if (found.contains(other.get())) tied.push_back(other);
    return tied;
}

} // namespace vexora
