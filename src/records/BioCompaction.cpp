#include "records/BioCompaction.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsR.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace vexora {

namespace {

using Sets = std::vector<std::shared_ptr<BioSet>>;

std::string LinesOf(const BioSet& set) {
    LineWriter out;
    set.Print(out);
    return out.Text();
}

/// Whose sets may become one: those of a source, or of one complex sample.
std::string OwnerOf(const BioSet& set) {
    const auto* const property = dynamic_cast<const clsBP*>(&set);
    if (!property) return "R";
    return property->Sample ? std::to_string(reinterpret_cast<std::uintptr_t>(property->Sample))
                            : "P";
}

/// Reaction or substance: sets of the same one are those that a person expects to become one.
std::string SubjectOf(const BioSet& set) {
    std::string subject = OwnerOf(set);
    for (const std::string& key : set.ParticipantKeys())
        subject += "," + key;
    return subject;
}

std::vector<std::string> Differences(const std::vector<BioPart>& a, const std::vector<BioPart>& b) {
    std::vector<std::string> names;
    for (std::size_t n = 0; n < a.size() && n < b.size(); ++n)
        if (a[n] != b[n]) names.push_back(a[n].name);
    return names;
}

/// Joins sets of which all agrees that has to.
class Joiner {
public:
    explicit Joiner(BioCompaction& result) : result_(result) {}

    void Take(const std::shared_ptr<BioSet>& set) {
        std::vector<BioPart> parts = set->Parts();
        std::string text = OwnerOf(*set);
        for (const BioPart& part : parts)
            text.append(1, '\x1d').append(part.text);
        const auto [known, isNew] = firsts_.try_emplace(std::move(text), set);
        if (!isNew) {
            known->second->Merge(*set);
            result_.joined.push_back({set, known->second->SetNo});
            return;
        }
        const auto [subject, isFirst] = subjects_.try_emplace(SubjectOf(*set));
        if (isFirst)
            subject->second = {set, std::move(parts)};
        else
            result_.apart.push_back(
                {set, subject->second.set, Differences(parts, subject->second.parts)});
        left_.push_back(set);
    }
    const Sets& Left() const { return left_; }

private:
    struct Subject {
        std::shared_ptr<BioSet> set;
        std::vector<BioPart> parts;
    };
    BioCompaction& result_;
    std::unordered_map<std::string, std::shared_ptr<BioSet>> firsts_;
    std::unordered_map<std::string, Subject> subjects_;
    Sets left_;
};

/// Takes sets out of a collection all at once: one by one would cost the square of their number.
template <class Set>
void TakeOut(ui::Collection<Set>& sets, const std::unordered_set<const BioSet*>& leaving) {
    std::vector<std::shared_ptr<Set>> staying;
    for (const auto& set : sets)
        if (!leaving.contains(set.get())) staying.push_back(set);
    if (staying.size() == sets.Count()) return;
    sets.Clear();
    for (const auto& set : staying)
        sets.Add(set, Set::PlaceKey(set->SetNo));
}

void TakeOutJoined(clsR& source, const BioCompaction& result) {
    std::unordered_set<const BioSet*> leaving;
    // From the end, where the tree finds them at once.
    for (auto one = result.joined.rbegin(); one != result.joined.rend(); ++one) {
        leaving.insert(one->set.get());
        if (one->set->tNode) Globals().tvwTree->Remove(*one->set->tNode);
        one->set->tNode = nullptr;
    }
    TakeOut(source.recBR, leaving);
    TakeOut(source.recBP, leaving);
    for (const auto& complex : source.recComplex)
        for (const auto& sample : complex->recS)
            TakeOut(sample->recBP, leaving);
}

/// The sets that are left when all that agree have become one.
Sets JoinOnce(const Sets& sets, BioCompaction& result) {
    result.apart.clear();
    Joiner joiner(result);
    for (const auto& set : sets) {
        set->Clean();
        set->Expand();
    }
    for (const auto& set : sets)
        joiner.Take(set);
    for (const auto& set : joiner.Left())
        set->Compact();
    return joiner.Left();
}

} // namespace

BioCompaction CompactBioSets(clsR& source) {
    BioCompaction result;
    Sets sets;
    source.ForEachBioSet([&](BioSet& set) { sets.push_back(set.As<BioSet>()); });
    std::ranges::copy_if(sets, std::back_inserter(result.invalid),
                         [](const auto& set) { return !set->Check(); });
    if (!result.invalid.empty()) return result;
    std::ranges::stable_sort(sets, {}, [](const auto& set) { return set->SetNo; });
    std::unordered_map<const BioSet*, std::string> before;
    for (const auto& set : sets)
        before[set.get()] = LinesOf(*set);
    // What has become constant in one may agree with another one only then: once more at least.
    sets = JoinOnce(sets, result);
    std::size_t joined = 0;
    do {
        joined = result.joined.size();
        sets = JoinOnce(sets, result);
    } while (result.joined.size() != joined);
    TakeOutJoined(source, result);
    for (const auto& set : sets) {
        if (LinesOf(*set) == before[set.get()]) continue;
        result.changed.push_back(set);
        set->Refresh();
    }
    return result;
}

std::vector<std::string> BioCompaction::Sentences() const {
    std::vector<std::string> sentences;
    for (const auto& set : invalid)
        sentences.push_back(set->ShowKey() + ": statements or rows do not fit the quantities");
    for (const auto& one : joined)
        sentences.push_back(one.set->ShowKey() + " has become part of set " +
                            std::to_string(one.into));
    for (const auto& one : apart) {
        std::string parts;
        for (const std::string& part : one.differs)
            parts += (parts.empty() ? "" : ", ") + part;
        sentences.push_back(one.set->ShowKey() + " stays apart from set " +
                            std::to_string(one.from->SetNo) + ", which differs in: " + parts);
    }
    return sentences;
}

} // namespace vexora
