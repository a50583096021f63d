#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vexora {

class BioSet;
class clsR;

/// What became of the bio sets of a source when those that belong together were made one.
struct BioCompaction {
    /// Sets whose statements or rows do not fit their definition. With any of them nothing has
    /// changed.
    std::vector<std::shared_ptr<BioSet>> invalid;
    /// Sets that have left the document, with the number of the set that has their rows.
    struct Joined {
        std::shared_ptr<BioSet> set;
        int into = 0;
    };
    std::vector<Joined> joined;
    /// Sets of one reaction or substance that stay apart, and by what they differ from the first of
    /// them ("method").
    struct Apart {
        std::shared_ptr<BioSet> set, from;
        std::vector<std::string> differs;
    };
    std::vector<Apart> apart;
    std::vector<std::shared_ptr<BioSet>> changed; // that are there still, with other lines
    /// All of it for the user, a sentence each.
    std::vector<std::string> Sentences() const;
};

/// Makes one of the bio sets of a source that can be: the lowest number stays, and the rows of the
/// others follow in the order of their numbers. Then what is the same in all rows of a set becomes
/// a constraint. A second run changes nothing.
BioCompaction CompactBioSets(clsR& source);

} // namespace vexora
