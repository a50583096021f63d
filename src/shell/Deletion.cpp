#include "shell/Deletion.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "globals/KVOGlobal.h"
#include "records/BioSetFacts.h"
#include "records/LineWriter.h"
#include "records/Walk.h"
#include "records/clsBP.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsQ.h"
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
    const std::string stays = "This compound cannot be deleted now\n";
    if (!compound.recS.IsEmpty()) return stays + "A sample for this compound is described";
    if (compound.Parent == nullptr) return {};
    for (const auto& mixture : compound.Parent->recM)
        if (mixture->PlaceOf(compound) != 0)
            return stays + "A mixture containing this compound is defined";
    const auto& reactions = compound.Parent->recQ;
    const bool isUsed = std::any_of(reactions.begin(), reactions.end(), [&](const auto& reaction) {
        return reaction->Uses(compound.RN);
    });
    const bool isInComplex =
        std::ranges::any_of(compound.Parent->recComplex,
                            [&](const auto& complex) { return complex->Uses(compound.RN); });
    return isUsed || isInComplex || IsUsedInBioSets(compound) ? Blocked : "";
}

/// A complex names it, or one of the samples of a complex.
bool IsUsedInComplexes(const clsS& sample) {
    const clsR* const source = sample.Parent ? sample.Parent->Parent : nullptr;
    return source && std::ranges::any_of(source->recComplex, [&](const auto& complex) {
               return complex->UsesSample(sample.Parent->RN, sample.SMPNM);
           });
}

std::string WhySampleStays(const Record& record) {
    const auto& sample = static_cast<const clsS&>(record);
    if (!sample.recZ.IsEmpty() || !sample.recTwo.IsEmpty()) return Blocked;
    const std::string stays = "You cannot delete this record because properties of ";
    if (IsUsedInMixtures(sample)) return stays + "mixtures containing this sample are present";
    if (IsUsedInReactionData(sample) || IsUsedInBioSets(sample))
        return stays + "reactions involving this sample are present";
    return IsUsedInReactions(sample) || IsUsedInComplexes(sample) ? Blocked : "";
}

std::string WhyComplexStays(const Record& record) {
    const auto& complex = static_cast<const clsComplex&>(record);
    const bool isUsed = complex.Parent && complex.Parent->Names(complex.RN);
    return !complex.recS.IsEmpty() || isUsed ? Blocked : "";
}

std::string WhyComplexSampleStays(const Record& record) {
    const auto& sample = static_cast<const clsComplexSample&>(record);
    const bool hasData = !sample.recZ.IsEmpty() || !sample.recTwo.IsEmpty() ||
                         !sample.recBP.IsEmpty() || !sample.recCrS.IsEmpty();
    if (hasData) return Blocked;
    if (IsUsedInReactionData(sample))
        return "You cannot delete this record because properties of reactions involving this "
               "sample are present";
    return IsUsedInReactions(sample) ? Blocked : "";
}

std::string WhyMixtureStays(const Record& record) {
    return static_cast<const clsM&>(record).HasData() ? Blocked : "";
}

std::string WhyReactionStays(const Record& record) {
    return static_cast<const clsQ&>(record).HasData() ? Blocked : "";
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
    {"RM", WhyMixtureStays},
    {"RMZ"},
    {"RM1"},
    {"RM2"},
    {"RM3"},
    {"RQ", WhyReactionStays},
    {"RQC"},
    {"RQE"},
    {"RBR"},
    {"RBP"},
    {"RX", WhyComplexStays},
    {"RXS", WhyComplexSampleStays},
    {"RXS1"},
    {"RXS2"},
    {"RXSP"},
    {"RXSX"},
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

DeletedRecords::DeletedRecords(const std::vector<std::shared_ptr<Record>>& records)
    : WasSaved(Globals().Saved), taken_(records.begin(), records.end()) {
    rest_ = HashOfDocument();
}

bool DeletedRecords::IsLastChange() const {
    return HashOfDocument() == rest_;
}

ui::TreeNode* DeletedRecords::PutBack() {
    for (std::size_t n = taken_.size(); n > 0; --n) {
        if (taken_[n - 1].PutBack()) continue;
        for (; n < taken_.size(); ++n)
            taken_[n].TakeAgain();
        return nullptr;
    }
    return What().tNode;
}

} // namespace vexora
