// What sets and single values of mixtures share in the export.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "export/DataHead.h"
#include "records/clsL.h"
#include "records/clsM.h"

namespace vexora {

/// The components of the mixture with the samples of a set or value. One that is no compound of the
/// source has none.
template <class Data>
std::vector<SystemComponent> ComponentsOf(const clsM& mixture, const Data& data) {
    std::vector<SystemComponent> components;
    for (int n = 1; n <= data.MixType; ++n)
        components.push_back({mixture.Component(n).get(), std::string(data.SMPNM(n))});
    return components;
}

/// Why data of this mixture have no place, in words for the user, or empty.
std::string SystemFault(const clsM& mixture, const DataSubject& subject);
/// All phases of the data. Azeotropic states have a liquid and a gas, stated or not.
std::vector<std::string> PhasesOfMixture(const DataSubject& subject,
                                         std::vector<std::string> phases);

} // namespace vexora
