#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vexora {

class DataSet;
class clsZ;

/// What is the same in all rows of a set.
struct SetConstant {
    std::string code, phase; // phase empty for none
    double value = 0;        // in its system unit
};

/// What the document holds around a set of a mixture. It is good until the document changes.
struct SetSurroundings {
    std::vector<std::string> components;           // their names, in the order of the mixture
    std::vector<const DataSet*> sameSystem;        // all sets of the mixture, this one among them
    std::vector<std::vector<const DataSet*>> pure; // the sets of each component

    std::vector<std::vector<const clsZ*>> pureValues; // the single values of each component

    /// Component 1 and on; a number for one without a name.
    std::string NameOf(int component) const {
        const auto at = static_cast<std::size_t>(component - 1);
        return at < components.size() ? components[at] : "Component " + std::to_string(component);
    }
};

} // namespace vexora
