#include "records/Record.h"

#include "globals/KVOGlobal.h"

namespace vexora {

void Record::MakeNode(ui::TreeNode* above, const std::string& text) {
    ui::TreeView* tree = Globals().tvwTree;
    if (!tree) return;
    const std::string key = (above ? above->Key() : "R") + Key();
    tNode = &tree->Add(above, key, text);
    tNode->Tag = shared_from_this();
    tNode->EnsureVisible();
}

void Record::Label(const std::string& text) {
    if (tNode) tNode->Text(text);
}

} // namespace vexora
