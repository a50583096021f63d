// The bio sets of a source.
#include "records/clsR.h"

#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"

namespace vexora {

namespace {

/// One above the count, or the next one that no set bears.
template <class Find>
int NextFree(std::size_t count, Find find) {
    int number = static_cast<int>(count) + 1;
    while (find(number))
        ++number;
    return number;
}

} // namespace

std::shared_ptr<clsBR> clsR::FindBR(int setNo) const {
    return recBR.Item(clsBR::PlaceKey(setNo));
}

std::shared_ptr<clsBP> clsR::FindBP(int setNo) const {
    return recBP.Item(clsBP::PlaceKey(setNo));
}

int clsR::NextBRNumber() const {
    return NextFree(recBR.Count(), [this](int number) { return FindBR(number) != nullptr; });
}

int clsR::NextBPNumber() const {
    return NextFree(recBP.Count(), [this](int number) { return FindBP(number) != nullptr; });
}

void clsR::ForEachBioSet(const std::function<void(BioSet&)>& visit) const {
    for (const auto& set : recBR)
        visit(*set);
    for (const auto& set : recBP)
        visit(*set);
    for (const auto& complex : recComplex)
        for (const auto& sample : complex->recS)
            for (const auto& set : sample->recBP)
                visit(*set);
}

void clsR::MarkCompoundsOfBioSets() {
    ForEachBioSet([this](const BioSet& set) {
        for (const std::string& rn : set.Compounds())
            if (const auto compound = FindL(rn)) compound->isUsed = true;
    });
}

bool clsR::StandsInBioSets(std::string_view rn) const {
    bool stands = false;
    ForEachBioSet([&](const BioSet& set) { stands = stands || set.Uses(rn); });
    return stands;
}

} // namespace vexora
