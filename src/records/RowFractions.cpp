#include "records/RowFractions.h"

#include <array>
#include <cmath>

#include "records/clsMV.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

// What is left of 1 by the conversion of per cent.
bool IsNear(double value, double whole) {
    return std::abs(value - whole) < 1e-9;
}

} // namespace

std::optional<Fraction> FractionOf(std::string_view code) {
    if (code.size() != 2 || std::string_view("XWV").find(code[0]) == std::string_view::npos)
        return std::nullopt;
    if (code[1] < '1' || code[1] > '3') return std::nullopt;
    return Fraction{code[0], code[1] - '0'};
}

RowFractions::RowFractions(const clsMV& set) : components_(set.MixType) {
    if (set.Relation() == "A") Add(set, 0, set.PRPCODE);
    for (int n = 1; n <= set.nVar; ++n)
        Add(set, n, set.VARIABLE(n));
    for (const HeldConstant& constant : set.Constants()) {
        const std::size_t known = items_.size();
        Add(set, constant.item, constant.code);
        if (items_.size() == known) continue;
        const UnitConversion unit = set.Conversion(constant.item);
        if (IsNumeric(constant.value) && unit.IsPossible())
            items_.back().constant = unit.Absolute(Val(constant.value));
    }
}

void RowFractions::Add(const clsMV& set, int item, const std::string& code) {
    const auto fraction = FractionOf(code);
    if (!fraction || fraction->component > components_) return;
    const std::string& phase = set.PhaseFor(item);
    StatedFraction stated{*fraction, item, IsBlankField(phase) ? set.PHASE1 : phase, 0};
    for (const StatedFraction& known : Groups()) {
        if (known.fraction.kind == fraction->kind && known.phase == stated.phase) break;
        ++stated.group;
    }
    Item& added = items_.emplace_back();
    added.stated = stated;
    if (item <= set.nVar) added.column.emplace(set, item);
}

std::vector<StatedFraction> RowFractions::Groups() const {
    std::vector<StatedFraction> groups;
    for (const Item& item : items_)
        if (item.stated.group == groups.size()) groups.push_back(item.stated);
    return groups;
}

std::optional<double> RowFractions::Item::Of(const clsData& row) const {
    if (!column) return constant;
    return column->Converts(row) ? column->Of(row) : std::nullopt;
}

int RowFractions::PureComponent(const clsData& row, std::string_view phase) const {
    int alone = 0;
    std::array<bool, 4> isAbsent{};
    Each(row, [&](const StatedFraction& stated, double value) {
        if (!phase.empty() && stated.phase != phase) return;
        if (IsNear(value, 1)) alone = stated.fraction.component;
        if (IsNear(value, 0)) isAbsent[static_cast<std::size_t>(stated.fraction.component)] = true;
    });
    if (alone != 0) return alone;
    const int absent = isAbsent[1] + isAbsent[2] + isAbsent[3];
    if (absent != components_ - 1) return 0;
    for (int n = 1; n <= components_; ++n)
        if (!isAbsent[static_cast<std::size_t>(n)]) alone = n;
    return alone;
}

} // namespace vexora
