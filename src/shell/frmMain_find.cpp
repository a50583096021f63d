// Finding nodes by words, and the menu of a node.

#include "globals/KVOGlobal.h"
#include "shell/NodeFilter.h"
#include "shell/frmMain.h"

namespace vexora {

namespace {

/// The first node shown below which none is: those above a hit are shown only for its sake.
ui::TreeNode* FirstHit(const std::vector<std::unique_ptr<ui::TreeNode>>& nodes) {
    for (const auto& node : nodes) {
        if (node->Hidden()) continue;
        ui::TreeNode* below = FirstHit(node->Children());
        return below == nullptr ? node.get() : below;
    }
    return nullptr;
}

} // namespace

void frmMain::WireFind() {
    mnuFind.OnClick = [this] {
        txtFind.SetFocus();
        txtFind.SelectAll();
    };
    txtFind.ToolTip("Words that a node has to hold: a name, a registry number, a formula, a "
                    "property, a unit, a method, a value, or a range such as 298..300 or >500");
    txtFind.OnChange = [this] { txtFind_Change(); };
    txtFind.OnKey = [this](ui::Key& key) { LeaveFind(key); };
    tvwTree.OnKey = [this](ui::Key& key) {
        if (key.name != "Escape" || !tvwTree.IsFiltered()) return;
        key.swallowed = true;
        EndFind();
    };
}

void frmMain::txtFind_Change() {
    NodeFilter filter(txtFind.Text());
    if (filter.IsEmpty())
        tvwTree.EndFilter();
    else
        tvwTree.Filter([&filter](const ui::TreeNode& node) { return filter.Hits(node); });
    if (!Globals().ShellLocked) SelectNode();
}

/// Escape gives the whole tree back; Enter and Down go on to what was found.
void frmMain::LeaveFind(ui::Key& key) {
    const std::string name = key.FullName();
    if (name != "Escape" && name != "Enter" && name != "Down") return;
    key.swallowed = true;
    if (name == "Escape") return EndFind();
    const ui::TreeNode* selected = tvwTree.SelectedNode();
    ui::TreeNode* hit = tvwTree.IsFiltered() ? FirstHit(tvwTree.Roots()) : nullptr;
    if (hit != nullptr && (selected == nullptr || selected->Hidden()))
        tvwTree.UserNodeReached(*hit);
    else
        tvwTree.SetFocus();
}

void frmMain::EndFind() {
    txtFind.Text({});
    tvwTree.SetFocus();
}

/// What toolbar and menus offer for the node that has just been clicked.
std::vector<ui::Captioned*> frmMain::OffersOfNode() {
    std::vector<ui::Captioned*> offers;
    for (ui::ToolButton* button : Toolbar1.Buttons())
        if (button->IsUsable()) offers.push_back(button);
    if (Globals().CurrentKey.empty()) return offers;
    if (!offers.empty()) offers.push_back(nullptr);
    for (ui::MenuItem* entry : {&mnuEditNode, &mnuNewLike, &mnuExpandNode, &mnuDelete})
        if (entry->IsReachable()) offers.push_back(entry);
    return offers;
}

} // namespace vexora
