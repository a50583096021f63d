// Deleting the record of the selected node, putting the last one back, and taking back what the
// last table to be processed has made.

#include "entry/DeletionQuestion.h"
#include "globals/KVOGlobal.h"
#include "records/ProcessedSets.h"
#include "records/TiedSets.h"
#include "records/clsMV.h"
#include "shell/Deletion.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"

namespace vexora {

void frmMain::mnuDelete_Click() {
    if (HasMouseSelection()) DeleteNode();
}

namespace {

/// What is to go with the record of the node: the other sets of its tie lines, if that is wished.
std::vector<std::shared_ptr<Record>> WithTiedSets(const std::shared_ptr<Record>& record) {
    auto* const set = dynamic_cast<clsMV*>(record.get());
    std::vector<std::shared_ptr<Record>> group = {record};
    if (set == nullptr || !set->IsTied()) return group;
    const auto tied = TiedSets(*set);
    if (tied.size() > 1 && ui::AskYesNo("This data set is tied with other data sets.\n"
                                        "Do you want to delete all tied sets?")) {
        for (const auto& other : tied)
            if (other != record) group.push_back(other);
    }
    return group;
}

} // namespace

/// Only what nothing else refers to goes, after a question.
bool frmMain::MayDelete(const Record& record) {
    if (const std::string reason = WhyItStays(Globals().CurrentKey, record); !reason.empty()) {
        ui::Say(reason);
        return false;
    }
    return AskToDelete(record);
}

void frmMain::DeleteNode() {
    KVOGlobal& globals = Globals();
    const ui::TreeNode* node = tvwTree.SelectedNode();
    if (globals.ShellLocked || node == nullptr || !IsDeletable(globals.CurrentKey)) return;
    const auto record = std::dynamic_pointer_cast<Record>(node->Tag.lock());
    if (!record || RefuseReadOnly()) return;
    std::vector<std::shared_ptr<Record>> group = WithTiedSets(record);
    std::erase_if(group, [](const auto& one) { return !MayDelete(*one); });
    if (group.empty()) return;
    auto deleted = std::make_unique<DeletedRecords>(group);
    deleted->FileName = FileName;
    deleted->Known = known_;
    deleted->WasDocument = globals.recR.IsEmpty();
    if (deleted->WasDocument) {
        EmptyDocument();
        txtFind.Text({});
    }
    globals.Saved = deleted->WasDocument;
    globals.CurrentKey.clear();
    deleted_ = std::move(deleted);
    FollowDocument();
    Enable();
}

/// The document counts as saved again when nothing else has been changed since.
void frmMain::mnuUndoDelete_Click() {
    KVOGlobal& globals = Globals();
    if (!deleted_ || globals.ShellLocked) return;
    const bool wasSaved = deleted_->WasSaved && deleted_->IsLastChange();
    ui::TreeNode* node = deleted_->PutBack();
    if (node == nullptr)
        return ui::Say("\"" + deleted_->What().ShowKey() +
                       "\" cannot be put back: its number has been given to another record.");
    globals.Saved = wasSaved;
    if (deleted_->WasDocument) {
        FileName = deleted_->FileName;
        known_ = deleted_->Known;
    }
    deleted_.reset();
    FollowDocument();
    tvwTree.Select(node);
    SelectBy(true);
}

/// What was made goes, and what it replaced stands there again.
void frmMain::mnuUndoProcess_Click() {
    KVOGlobal& globals = Globals();
    if (!globals.Processed || globals.ShellLocked || RefuseReadOnly()) return;
    Record& owner = globals.Processed->Owner();
    if (!globals.Processed->Undo())
        return ui::Say("The last table cannot be taken back: data sets that were made of it have "
                       "been changed or deleted since.");
    globals.Processed.reset();
    globals.Saved = false;
    FollowDocument();
    tvwTree.Select(owner.tNode);
    SelectBy(true);
}

} // namespace vexora
