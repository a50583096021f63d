#include "records/BioSetFacts.h"

#include <algorithm>
#include <functional>

#include "records/BioSet.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Text.h"

namespace vexora {

namespace {

bool AnyBioSet(const clsR* source, const std::function<bool(const BioSet&)>& holds) {
    bool found = false;
    if (source != nullptr)
        source->ForEachBioSet([&](const BioSet& set) { found = found || holds(set); });
    return found;
}

bool StatesOne(const BioSet& set, std::size_t place) {
    const BioQuantity& quantity = set.Quantities()[place];
    if (place < set.recU.size() && set.recU[place].IsStated()) return true;
    if (!quantity.StatesByRow()) return !quantity.uncertainty.empty();
    return std::ranges::any_of(set.recD, [place](const clsBD& row) {
        return place < row.Cells.size() && !IsBlankField(row.Cells[place].uncertainty);
    });
}

} // namespace

bool IsUsedInBioSets(const clsL& compound) {
    return AnyBioSet(compound.Parent,
                     [&compound](const BioSet& set) { return set.Uses(compound.RN); });
}

bool IsUsedInBioSets(const clsS& sample) {
    const clsL* const compound = sample.Parent;
    return compound != nullptr && AnyBioSet(compound->Parent, [&](const BioSet& set) {
               return set.UsesSample(compound->RN, sample.SMPNM);
           });
}

bool StatesUncertainty(const BioSet& set) {
    for (std::size_t place = 0; place < set.CountOf(BioRole::Property); ++place)
        if (StatesOne(set, place)) return true;
    return false;
}

} // namespace vexora
