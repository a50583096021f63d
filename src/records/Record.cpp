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

std::string Record::NodeKey(const ui::TreeNode* above) const {
    return (above ? above->Key() : "R") + KeyInTree();
}

void Record::MakeNode(ui::TreeNode* above) {
    ui::TreeView* tree = Globals().tvwTree;
    if (!tree) return;
    tNode = &tree->Add(above, NodeKey(above), readsUnderWay > 0 ? std::string() : ShowKey());
    tNode->Tag = shared_from_this();
    tNode->Bold(StandsOut());
    tNode->EnsureVisible();
}

void Record::Refresh() {
    if (!tNode) return;
    Label(ShowKey());
    tNode->Bold(StandsOut());
    Globals().tvwTree->Rekey(*tNode, NodeKey(tNode->Parent()));
}

void Record::Label(const std::string& text) {
    if (tNode) tNode->Text(text);
}

} // namespace vexora
