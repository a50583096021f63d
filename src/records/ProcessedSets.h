#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "records/TakenRecord.h"

namespace vexora {

class clsMV;
class clsS;
class clsM;
class clsTwo;

/// The sets that one processed table has brought into the document, so that the step can be taken
/// back: what was made goes, what was replaced or deleted stands again as it was, to the byte.
/// The globals hold the last one until the next save.
class ProcessedSets {
public:
    /// Attaches sets to the mixture. A new set that agrees in property, PHASE1, variables and their
    /// phases with one of `shown` takes its place and keeps its number, header, comment and
    /// statements; the others are attached under the next free number. Sets of `shown` that no new
    /// one replaces are deleted when `deletes` says so for them; it is asked before anything
    /// changes. Null, and nothing has changed, for no sets at all.
    static std::shared_ptr<ProcessedSets> Attach(clsM& mixture,
                                                 const std::vector<std::shared_ptr<clsMV>>& made,
                                                 const std::vector<std::shared_ptr<clsMV>>& shown,
                                                 const std::function<bool(clsMV& unused)>& deletes);
    static std::shared_ptr<ProcessedSets> Attach(clsS& sample,
                                                 const std::vector<std::shared_ptr<clsTwo>>& made);

    /// The sets as they stand in the document now, in order.
    const std::vector<std::shared_ptr<Record>>& Made() const { return made_; }
    /// What they belong to.
    Record& Owner() const { return *owner_; }
    /// False, and nothing changes, when a record that it needs is gone or has changed since. To be
    /// called once when it is true.
    bool Undo();

private:
    struct Replaced {
        std::shared_ptr<clsMV> set, before;
    };

    explicit ProcessedSets(Record& owner);
    void Replace(const std::shared_ptr<clsMV>& set, const clsMV& made);
    void NoteTexts();
    bool CanUndo() const;

    std::shared_ptr<Record> owner_; // mixture or sample
    std::vector<std::shared_ptr<Record>> made_;
    std::vector<std::string> texts_; // what each of them says
    std::vector<Replaced> replaced_;
    std::vector<std::shared_ptr<Record>> added_;
    std::vector<TakenRecord> deleted_;
};

} // namespace vexora
