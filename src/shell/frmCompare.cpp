#include "shell/frmCompare.h"

#include <utility>

#include "globals/KVOGlobal.h"
#include "records/Outline.h"
#include "records/clsR.h"

namespace vexora {

namespace {

constexpr int CompareHelp = 420;

/// The node that a difference is about; null when it is not in the open document.
ui::TreeNode* NodeOf(const Difference& difference) {
    if (Globals().recR.IsEmpty()) return nullptr;
    const Record* record = RecordAt(difference.place);
    return record == nullptr ? nullptr : record->tNode;
}

} // namespace

frmCompare::frmCompare() : Form("frmCompare", "Differences") {
    Arrangement = ui::Column({lblFile, lstDifferences, ui::Field("In full:", txtDifference),
                              lblPlace, ui::ButtonRow({cmdGo, cmdCancel})});
    PreferredColumns = 140;
    PreferredRows = 28;
    HelpContext = CompareHelp;
    txtDifference.Locked(true);
    UseButtons(cmdGo, cmdCancel, [this] { GoToNode(); });
    lstDifferences.OnClick = [this] { lstDifferences_Click(); };
    lstDifferences.OnDoubleClick = [this] { GoToNode(); };
}

void frmCompare::Take(const std::string& path, std::vector<Difference> differences) {
    differences_ = std::move(differences);
    const std::string count = std::to_string(differences_.size());
    lblFile.Caption(count + (differences_.size() == 1 ? " difference" : " differences") + " from " +
                    path + " to the open document");
}

void frmCompare::Load() {
    cmdGo.Enabled(false);
    lstDifferences.SetFocus();
}

/// The window stands by now: a list that is filled before gets no more room than its lines take.
void frmCompare::Activate() {
    std::vector<std::string> lines;
    lines.reserve(differences_.size());
    for (const Difference& difference : differences_)
        lines.push_back(DifferenceText(difference));
    lstDifferences.Assign(std::move(lines));
}

void frmCompare::lstDifferences_Click() {
    const int index = lstDifferences.Index();
    if (index < 0) return;
    txtDifference.Text(lstDifferences.Chosen());
    ui::TreeNode* node = NodeOf(differences_[static_cast<std::size_t>(index)]);
    cmdGo.Enabled(node != nullptr);
    lblPlace.Caption(node != nullptr ? "" : "The open document has no such node.");
    if (node == nullptr) return;
    node->EnsureVisible();
    Globals().tvwTree->Select(node);
    hasLed_ = true;
}

/// The node is selected already; the main form makes it the current one.
void frmCompare::GoToNode() {
    if (cmdGo.Enabled()) Close();
}

} // namespace vexora
