#pragma once

#include <cstddef>
#include <memory>

#include "records/Record.h"
#include "ui/TreeView.h"

namespace vexora {

/// A record that is out of the document, with its node and all below it, as long as it may come
/// back. Of several, the one that went last has to come back first: places hold on that way.
class TakenRecord {
public:
    /// Takes it out of collection and tree; it has to stand in its parent's collection.
    explicit TakenRecord(std::shared_ptr<Record> record);

    /// Puts it back at its old place. False, and nothing happens, when a sibling bears its number
    /// by now.
    bool PutBack();
    /// Takes one out again that has come back.
    void TakeAgain();
    const std::shared_ptr<Record>& What() const { return record_; }

private:
    std::shared_ptr<Record> record_;
    std::unique_ptr<ui::TreeNode> node_; // null for a record that shows none
    std::size_t place_ = 0;              // among the records, from 1
    std::size_t nodePlace_ = 0;          // among the nodes, from 0
};

} // namespace vexora
