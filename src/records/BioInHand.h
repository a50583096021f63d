#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace vexora {

class BioSet;
class clsBP;
class clsBR;

/// The bio set that is being read; its lines may stand behind the one that attaches it.
struct BioInHand {
    /// What a key in the lines of the set means.
    struct Meaning {
        std::string RN;
        std::string key;        // the key in the set, empty as long as the component lacks
        std::string sample;     // for a component that names none
        bool takesPart = false; // a participant or the substance
    };

    std::shared_ptr<BioSet> set; // null for none
    std::shared_ptr<clsBR> reaction;
    std::shared_ptr<clsBP> property; // one of the two
    bool isAttached = false;
    std::unordered_map<std::string, Meaning> keys;
    /// Places of the quantities in the order of their lines, by which statements number them.
    std::vector<std::size_t> places;
    int methodLine = 0, kindLine = 0, flagLine = 0; // 0 for none yet
};

} // namespace vexora
