// What a picture of a mixture set draws on besides its own rows.
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"

namespace vexora {

SetSurroundings clsMV::Surroundings() const {
    SetSurroundings around;
    if (Parent == nullptr) return around;
    for (const auto& set : Parent->recMV)
        around.sameSystem.push_back(set.get());
    for (int n = 1; n <= MixType; ++n) {
        const auto compound = Parent->Component(n);
        around.components.push_back(compound ? compound->ShowKey() : Parent->RN(n));
        auto& sets = around.pure.emplace_back();
        auto& values = around.pureValues.emplace_back();
        if (!compound) continue;
        for (const auto& sample : compound->recS) {
            for (const auto& set : sample->recTwo)
                sets.push_back(set.get());
            for (const auto& value : sample->recZ)
                values.push_back(value.get());
        }
    }
    return around;
}

} // namespace vexora
