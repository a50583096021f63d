#include "records/TiedSets.h"

#include <string>
#include <unordered_set>

#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Text.h"

namespace vexora {

namespace {

std::unordered_set<std::string> TieNumbers(const clsMV& set) {
    std::unordered_set<std::string> numbers;
    for (const clsData& row : set.recData)
        if (!IsBlankField(row.TIELINE)) numbers.emplace(row.TIELINE);
    return numbers;
}

bool BearsOneOf(const clsMV& set, const std::unordered_set<std::string>& numbers) {
    for (const clsData& row : set.recData)
        if (!IsBlankField(row.TIELINE) && numbers.contains(row.TIELINE)) return true;
    return false;
}

} // namespace

std::vector<std::shared_ptr<clsMV>> TiedSets(clsMV& set) {
    const std::unordered_set<std::string> numbers = TieNumbers(set);
    if (numbers.empty() || set.Parent == nullptr) return {set.As<clsMV>()};
    std::vector<std::shared_ptr<clsMV>> tied;
    for (const auto& other : set.Parent->recMV)
        if (other.get() == &set || BearsOneOf(*other, numbers)) tied.push_back(other);
    return tied;
}

} // namespace vexora
