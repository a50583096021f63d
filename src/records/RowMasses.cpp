#include "records/RowMasses.h"

#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"

#include <string>
#include <string_view>

namespace vexora {

namespace {

/// The component whose content the code is, 0 for what tells no composition.
int ContentOf(const std::string& code) {
    return IsComposition(code) ? ComponentOf(code) : 0;
}

} // namespace

RowMasses::RowMasses(const DataSet& set) : set_(set), mixed_(dynamic_cast<const clsMV*>(&set)) {
    if (!mixed_ || !mixed_->Parent) return;
    SetMixture(calculator_, *mixed_->Parent);
    TakeComposition(*mixed_);
}

void RowMasses::TakeComposition(const clsMV& set) {
    // Another phase has another composition, and another molar mass.
    for (const HeldConstant& constant : set.Constants()) {
        if (constant.phase != set.PHASE1 || !IsNumeric(constant.value)) continue;
        calculator_.SetVariable(ContentOf(constant.code), clsMMM::NoLocation, constant.code,
                                set.Conversion(constant.item).Absolute(Val(constant.value)));
    }
    for (int n = 0; n <= set.nVar; ++n) { // a property can be a composition, too
        const int component = ContentOf(set.VARIABLE(n));
        if (component == 0 || set.PhaseFor(n) != set.PHASE1) continue;
        const auto place = static_cast<std::uint16_t>(n);
        units_[place] = set.Conversion(n);
        calculator_.SetVariable(component, place, set.VARIABLE(n), 0);
    }
}

double RowMasses::Of(const clsData& row) {
    if (!mixed_) return set_.MolarMass(row);
    if (!mixed_->Parent) return 0;
    for (int n = 1; n <= mixed_->MixType; ++n) {
        const std::uint16_t place = calculator_.GetLocation(n);
        if (place == clsMMM::NoLocation) continue;
        const ShortText& typed = row.Values[place];
        if (!IsNumeric(typed)) return 0;
        const double value = Val(typed);
        calculator_.SetVal(n, row.inOriginalUnits ? units_[place].Absolute(value) : value);
    }
    return calculator_.Calculate();
}

double clsMV::MolarMass(const clsData& row) const {
    return RowMasses(*this).Of(row);
}

} // namespace vexora
