#include "shell/Deletion.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "records/LineWriter.h"
#include "records/Walk.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"

namespace vexora {

namespace {

constexpr const char* Blocked = "All dependent entries (samples, mixtures, properties)\n"
                                "must be deleted before this entry can be removed";

std::string WhySourceStays(const Record& record) {
    const auto& source = static_cast<const clsR&>(record);
    const bool isEmpty = source.recL.IsEmpty() && source.recM.IsEmpty() && source.recQ.IsEmpty() &&
                         source.recComplex.IsEmpty() && source.recBR.IsEmpty() &&
                         source.recBP.IsEmpty();
    return isEmpty ? "" : Blocked;
}

std::string WhyCompoundStays(const Record& record) {
    const auto& compound = static_cast<const clsL&>(record);
    if (compound.recS.IsEmpty()) return {};
    return "This compound cannot be deleted now\nA sample for this compound is described";
}

std::string WhySampleStays(const Record& record) {
    const auto& sample = static_cast<const clsS&>(record);
    return sample.recZ.IsEmpty() && sample.recTwo.IsEmpty() ? "" : Blocked;
}

struct DeletionRule {
    std::string_view nodeKey;
    std::string (*whyItStays)(const Record&) = nullptr; // none: nothing depends on it
};

// One line for each kind of node that can go.
constexpr DeletionRule Rules[] = {
    {"R", WhySourceStays},
    {"RL", WhyCompoundStays},
    {"RLS", WhySampleStays},
    {"RLSZ"},
    {"RLS1"},
    {"RLS2"},
};

const DeletionRule* RuleOf(std::string_view nodeKey) {
    const auto* rule = std::find_if(std::begin(Rules), std::end(Rules),
                                    [nodeKey](const auto& r) { return r.nodeKey == nodeKey; });
    return rule == std::end(Rules) ? nullptr : rule;
}

/// What the document says, labels included, for some of its records are not written.
std::size_t HashOfDocument() {
    LineWriter lines;
    try {
        WalkDocument([&lines](Record& record) {
            lines.Line(record.ShowKey());
            record.Print(lines);
        });
    } catch (const SaveRefused& refused) {
        lines.Line(refused.what());
    }
    return std::hash<std::string>()(lines.Text());
}

} // namespace

bool IsDeletable(std::string_view nodeKey) {
    return RuleOf(nodeKey) != nullptr;
}

std::string WhyItStays(std::string_view nodeKey, const Record& record) {
    const DeletionRule* rule = RuleOf(nodeKey);
    return rule == nullptr || rule->whyItStays == nullptr ? "" : rule->whyItStays(record);
}

bool HasRows(const Record& record) {
    const auto* set = dynamic_cast<const DataSet*>(&record);
    return set != nullptr && !set->recData.IsEmpty();
}

DeletedRecord::DeletedRecord(std::shared_ptr<Record> record)
    : WasSaved(Globals().Saved), record_(std::move(record)) {
    ui::TreeView& tree = *Globals().tvwTree;
    nodePlace_ = tree.PlaceOf(*record_->tNode);
    node_ = tree.Take(*record_->tNode);
    place_ = record_->Leave();
    rest_ = HashOfDocument();
}

bool DeletedRecord::IsLastChange() const {
    return HashOfDocument() == rest_;
}

ui::TreeNode* DeletedRecord::PutBack() {
    if (!record_->Return(place_)) return nullptr;
    Globals().tvwTree->Put(std::move(node_), nodePlace_);
    record_->Refresh(); // those above may bear other keys by now
    return record_->tNode;
}

} // namespace vexora
