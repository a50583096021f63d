#include "export/MixtureParts.h"

#include <algorithm>

namespace vexora {

std::string SystemFault(const clsM& mixture, const DataSubject& subject) {
    for (std::size_t i = 0; i < subject.components.size(); ++i)
        if (!subject.components[i].compound)
            return "Component of mixture not described: " + mixture.RN(static_cast<int>(i) + 1);
    return {};
}

std::vector<std::string> PhasesOfMixture(const DataSubject& subject,
                                         std::vector<std::string> phases) {
    if (subject.PropertyName().find("zeotrop") == std::string::npos) return phases;
    for (const char* phase : {"L", "G"})
        if (std::ranges::find(phases, phase) == phases.end()) phases.emplace_back(phase);
    return phases;
}

} // namespace vexora
