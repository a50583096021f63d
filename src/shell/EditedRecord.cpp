#include "shell/EditedRecord.h"

#include "records/LineWriter.h"
#include "records/Record.h"
#include "records/Walk.h"
#include "reference/Database.h"

namespace vexora {

EditedRecord::EditedRecord(std::shared_ptr<Record> record)
    : record_(std::move(record)), count_(CountRecords()), before_(Text()) {}

bool EditedRecord::IsUnchanged() const {
    return !before_.empty() && count_ == CountRecords() && before_ == Text();
}

/// Its lines and those of the record above it, to which the way to some dialogs leads. Empty when
/// that cannot be told.
std::string EditedRecord::Text() const {
    if (!record_ || record_->tNode == nullptr) return {};
    LineWriter lines;
    lines.WritesAll = true;
    try {
        lines.Line(record_->ShowKey());
        record_->Print(lines);
        const ui::TreeNode* const above = record_->tNode->Parent();
        const auto owner = above ? std::dynamic_pointer_cast<Record>(above->Tag.lock()) : nullptr;
        if (owner) owner->Print(lines);
    } catch (const SaveRefused&) {
        return {};
    } catch (const DatabaseError&) {
        return {};
    }
    return lines.Text();
}

} // namespace vexora
