#include "records/PropertyLabels.h"

#include "records/DataSet.h"
#include "records/SingleValue.h"
#include "reference/Numbers.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// The pass under way, null between two. Nodes ask for their labels from deep inside, where none
/// can be handed in.
PropertyLabels* present = nullptr;

std::string CodeOf(const SingleValue& value) {
    return value.UnitCode();
}

const std::string& CodeOf(const DataSet& set) {
    return set.PROPERTY_UNIT;
}

/// By whose mass a unit goes, where that needs saying.
std::string BasisOf(const SingleValue& value) {
    const std::string basis = value.UnitBasis();
    return basis.empty() ? basis : " of " + basis;
}

std::string BasisOf(const DataSet&) {
    return {};
}

template <class Set>
std::string UnitOf(const Set& value) {
    std::string unit = DefaultUnit(PropertyName(value.PRPCODE));
    if (!value.isOriginalUnit) return unit;
    const std::string code = CodeOf(value);
    if (unit == "1" && FactorInUnit(code, value.Factor) <= 0) return unit;
    return UnitText(unit, code, value.Factor) + BasisOf(value);
}

std::string ContextOf(const SingleValue&) {
    return {};
}

/// One code has rows by the kind of equilibrium in which it was measured.
std::string ContextOf(const DataSet& set) {
    return set.PropertyContext();
}

/// In equilibrium with a gas a temperature is a boiling point and a pressure that of the vapour;
/// for compounds these have codes of their own.
std::string_view NamingCode(std::string_view code, std::string_view context) {
    if (code == "T" && context == "vle") return "TB";
    return code == "P" && (context == "vle" || context == "sub") ? "PV" : code;
}

template <class Set>
PropertyLabel LookUp(const Set& value) {
    const std::string context = ContextOf(value);
    const std::string name =
        PropertyName(NamingCode(value.PRPCODE, context), value.DataContext(), context);
    return {name.empty() ? std::string(value.PRPCODE) : name, UnitOf(value)};
}

/// A factor of its own makes another unit, hence another label.
template <class Set>
std::string KindOf(const Set& value) {
    const std::string factor =
        value.isOriginalUnit ? CodeOf(value) + " " + NumberText(value.Factor) + BasisOf(value) : "";
    return std::string(value.DataContext()) + " " + ContextOf(value) + " " + value.PRPCODE + " " +
           factor;
}

} // namespace

PropertyLabels::PropertyLabels() {
    present = this;
}
PropertyLabels::~PropertyLabels() {
    present = nullptr;
}

template <class Set>
PropertyLabel PropertyLabels::LabelOf(const Set& value) {
    if (!present) return LookUp(value);
    const auto [entry, isNew] = present->known_.try_emplace(KindOf(value));
    if (isNew) entry->second = LookUp(value);
    return entry->second;
}

PropertyLabel PropertyLabels::Of(const SingleValue& value) {
    return LabelOf(value);
}

PropertyLabel PropertyLabels::Of(const DataSet& set) {
    return LabelOf(set);
}

} // namespace vexora
