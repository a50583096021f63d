#include "records/Record.h"

#include "globals/KVOGlobal.h"

namespace vexora {

namespace {

int readsUnderWay = 0;

} // namespace

LabelsLater::LabelsLater() {
    ++readsUnderWay;
}
LabelsLater::~LabelsLater() {
    --readsUnderWay;
}

void Record::MakeNode(ui::TreeNode* above) {
    ui::TreeView* tree = Globals().tvwTree;
    if (!tree) return;
    const std::string key = (above ? above->Key() : "R") + Key();
    tNode = &tree->Add(above, key, readsUnderWay > 0 ? std::string() : ShowKey());
    tNode->Tag = shared_from_this();
    tNode->EnsureVisible();
}

void Record::Label(const std::string& text) {
    if (tNode) tNode->Text(text);
}

} // namespace vexora
