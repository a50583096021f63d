#include "records/TakenRecord.h"

#include <utility>

#include "globals/KVOGlobal.h"

namespace vexora {

TakenRecord::TakenRecord(std::shared_ptr<Record> record) : record_(std::move(record)) {
    TakeAgain();
}

void TakenRecord::TakeAgain() {
    if (record_->tNode != nullptr) {
        ui::TreeView& tree = *Globals().tvwTree;
        nodePlace_ = tree.PlaceOf(*record_->tNode);
        node_ = tree.Take(*record_->tNode);
    }
    place_ = record_->Leave();
}

bool TakenRecord::PutBack() {
    if (!record_->Return(place_)) return false;
    if (node_) Globals().tvwTree->Put(std::move(node_), nodePlace_);
    record_->Refresh(); // those above may bear other keys by now
    return true;
}

} // namespace vexora
