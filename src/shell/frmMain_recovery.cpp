// The recovery copy of the document, and the way back from one.

#include <utility>

#include "globals/KVOGlobal.h"
#include "shell/DocumentAside.h"
#include "shell/Recovery.h"
#include "shell/frmMain.h"

namespace vexora {

void frmMain::KeepRecovery(std::shared_ptr<RecoveryFolder> folder) {
    recovery_ = std::make_unique<Recovery>(std::move(folder));
}

bool frmMain::RestoreDocument() {
    const bool isRestored =
        recovery_->Offer([this](const RecoveryCopy& copy) { return Restore(copy); });
    if (isRestored) Activate();
    return isRestored;
}

/// It is the document of its file, and not saved. The reason why it cannot be restored, or empty.
std::string frmMain::Restore(const RecoveryCopy& copy) {
    std::string fault = ReadRecoveryCopy(copy);
    if (!fault.empty()) return fault;
    FileName = copy.FileName;
    known_ = copy.Known;
    if (!FileName.empty()) Globals().OutDir = SplitPath(FileName).Folder;
    SelectRoot();
    return {};
}

/// While another document is looked for, the one that may come back keeps its copy.
void frmMain::FollowDocument() {
    if (!aside_) recovery_->Follow(FileName, known_);
}

} // namespace vexora
