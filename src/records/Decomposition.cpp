#include "records/Decomposition.h"

#include "records/clsComplexSample.h"
#include "records/clsQ.h"
#include "reference/Numbers.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr const char* OtherReaction = "OTH";

bool IsComposed(const clsComplexSample& sample) {
    const auto& components = sample.Components;
    if (components.empty() || components.size() >= clsQ::MostParticipants) return false;
    return std::ranges::all_of(components, [&](const SampleComponent& one) {
        return IsNumeric(one.content.value) && Val(one.content.value) > 0 &&
               one.content.kind == components.front().content.kind;
    });
}

} // namespace

std::shared_ptr<clsQ> DecompositionOf(const clsComplexSample& sample) {
    if (!sample.Parent || !IsComposed(sample)) return nullptr;
    auto reaction = std::make_shared<clsQ>();
    reaction->REACTCLASS = OtherReaction;
    reaction->RN(1, sample.Parent->RN);
    reaction->SMPNM(1, sample.SMPNM);
    reaction->Coeff(1, "-1");
    int place = 1;
    for (const SampleComponent& one : sample.Components) {
        ++place;
        reaction->RN(place, one.RN);
        reaction->SMPNM(place, one.SMPNM);
        reaction->Coeff(place, one.content.value);
    }
    return reaction;
}

} // namespace vexora
