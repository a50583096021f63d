#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "records/Record.h"
#include "shell/KnownFile.h"

namespace vexora {

/// Why the record of a node of that kind (its node key, "R", "RL", ...) cannot go now, because
/// others depend on it; empty when it may, and for a kind that is not deleted at all.
std::string WhyItStays(std::string_view nodeKey, const Record& record);
/// Whether nodes of that kind are deleted.
bool IsDeletable(std::string_view nodeKey);
/// The record has rows of its own, about which the user is asked.
bool HasRows(const Record& record);

/// A record that was taken out of the document, with its node and all below it, as long as it may
/// still be put back.
class DeletedRecord {
public:
    /// Takes it out of collection and tree. The document must show it.
    explicit DeletedRecord(std::shared_ptr<Record> record);

    /// Puts it back at its old place; null, and nothing happens, when another record has its number
    /// by now. To be called once.
    ui::TreeNode* PutBack();

    const Record& What() const { return *record_; }
    /// The document says what it said after the deletion: nothing has been done since.
    bool IsLastChange() const;

    std::string FileName;     // of a document that went with its source
    KnownFile Known;          // what stands in that file
    bool WasSaved = false;    // the document, before
    bool WasDocument = false; // the source went, and the document with it

private:
    std::shared_ptr<Record> record_;
    std::unique_ptr<ui::TreeNode> node_;
    std::size_t place_ = 0;     // among the records, from 1
    std::size_t nodePlace_ = 0; // among the nodes, from 0
    std::size_t rest_ = 0;      // what the rest of the document says, as a hash
};

} // namespace vexora
