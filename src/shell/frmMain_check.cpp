// The check of the whole document, and the way from what it found to the node.

#include <optional>

#include "globals/KVOGlobal.h"
#include "records/DocumentCheck.h"
#include "reference/Database.h"
#include "shell/frmCheck.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

/// Nothing when a table cannot be read, which has been told then, or when the person has stopped
/// it.
std::optional<std::vector<DocumentFinding>> Findings(const PassedOver& passedOver) {
    try {
        const ui::HourglassScope hourglass;
        const auto progress = ui::TheDesktop().Begin({"Checking the document", true});
        return CheckDocument(passedOver, [&](double share) { return progress->Reached(share); });
    } catch (const DatabaseError& damaged) {
        ui::Say(damaged.what());
        return std::nullopt;
    } catch (const WorkStopped&) {
        return std::nullopt;
    }
}

} // namespace

void frmMain::mnuCheck_Click() {
    if (Globals().recR.IsEmpty() || Globals().ShellLocked) return;
    auto findings = Findings(known_.Lines);
    if (!findings) return;
    ui::TreeNode* target = nullptr;
    auto& report = ui::Forms::Current().Get<frmCheck>("frmCheck");
    report.OnGo = [&target](ui::TreeNode& node) { target = &node; };
    report.Show(std::move(*findings));
    report.ShowModal();
    if (target == nullptr) return;
    target->EnsureVisible();
    tvwTree.Select(target);
    tvwTree.SetFocus();
    SelectBy(true);
}

} // namespace vexora
