#include "tables/PictureColumns.h"

#include <algorithm>

#include "reference/Numbers.h"
#include "reference/UnitText.h"

namespace vexora {

namespace {

std::string TextOf(const std::vector<HeadEntry>& entries, const std::string& code) {
    const auto found = std::ranges::find(entries, code, &HeadEntry::code);
    return found == entries.end() ? code : found->text;
}

} // namespace

PictureColumns::PictureColumns(const ProcessTable& table, const clsM* mixture)
    : table_(table), quantities_(Headings(mixture)), phases_(HeadPhases(mixture)) {
    for (int column = 0; column < static_cast<int>(table.columns.size()); ++column)
        values_.emplace_back(table, column);
}

std::string PictureColumns::Caption(int column, bool withPhase) const {
    const ProcessColumn& head = Head(column);
    std::string caption = TextOf(quantities_, head.quantity);
    if (withPhase && !head.phase.empty()) caption += ", " + PhaseText(head.phase);
    const std::string unit = UnitOf(column);
    return unit.empty() ? caption : caption + " (" + unit + ")";
}

std::string PictureColumns::PhaseText(const std::string& code) const {
    return TextOf(phases_, code);
}

std::string PictureColumns::UnitOf(int column) const {
    const ProcessColumn& head = Head(column);
    const std::string system = HeadSystemUnit(head.quantity);
    const UnitConversion& conversion = Conversion(column);
    if (head.unit.empty() || head.IsUncertainty()) return {};
    if (!system.empty()) return UnitText(system, conversion.code, conversion.factor);
    if (!conversion.ChangesValues()) return {};
    return conversion.Absolute(100) == 1 ? "%" : UnitText("1", conversion.code, conversion.factor);
}

std::optional<double> PictureColumns::Value(int row, int column) const {
    return values_[At(column)].Value(row);
}

std::optional<double> PictureColumns::Typed(int row, int column) const {
    const std::string text = NormalizeNumber(table_.Cell(row, column));
    return IsNumeric(text) ? std::optional(Val(text)) : std::nullopt;
}

bool PictureColumns::Varies(int column) const {
    std::optional<double> first;
    for (int row = 0; row < static_cast<int>(table_.rows.size()); ++row) {
        const auto value = Value(row, column);
        if (value && first && !Equal(*value, *first)) return true;
        if (!first) first = value;
    }
    return false;
}

} // namespace vexora
