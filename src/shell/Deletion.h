#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Record.h"
#include "records/TakenRecord.h"
#include "shell/KnownFile.h"

namespace vexora {

/// Why the record of a node of that kind (its node key, "R", "RL", ...) cannot go now, because
/// others depend on it; empty when it may, and for a kind that is not deleted at all.
std::string WhyItStays(std::string_view nodeKey, const Record& record);
/// Whether nodes of that kind are deleted.
bool IsDeletable(std::string_view nodeKey);

/// Records that were taken out of the document in one go, with their nodes and all below them, as
/// long as they may still be put back.
class DeletedRecords {
public:
    /// Takes them out of collection and tree. There is at least one, and the document must show
    /// them all.
    explicit DeletedRecords(const std::vector<std::shared_ptr<Record>>& records);

    /// Puts them back at their old places, the answer is the node of the first; null, and nothing
    /// happens, when another record has the number of one by now. To be called once.
    ui::TreeNode* PutBack();

    const Record& What() const { return *taken_.front().What(); }
    /// The document says what it said after the deletion: nothing has been done since.
    bool IsLastChange() const;

    std::string FileName;     // of a document that went with its source
    KnownFile Known;          // what stands in that file
    bool WasSaved = false;    // the document, before
    bool WasDocument = false; // the source went, and the document with it

private:
    std::vector<TakenRecord> taken_;
    std::size_t rest_ = 0; // what the rest of the document says, as a hash
};

} // namespace vexora
