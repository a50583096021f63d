#include "entry/PlotColumns.h"

#include "entry/SetStates.h"
#include "records/FractionCode.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora {

PlotColumns PlotColumns::Of(const DataSet& set, bool original) {
    PlotColumns columns;
    for (int n = 0; n <= set.nVar; ++n) {
        const auto at = static_cast<std::size_t>(n);
        columns.codes[at] = n == 0 ? set.PRPCODE : set.VARIABLE(n);
        if (original) columns.units[at] = set.Conversion(n);
    }
    return columns;
}

int PlotColumns::FractionColumn() const {
    for (std::size_t n = 1; n < codes.size(); ++n)
        if (FractionCode::Of(codes[n])) return static_cast<int>(n);
    return 0;
}

int PlotColumns::Find(std::string_view code) const {
    for (std::size_t n = 0; n < codes.size(); ++n)
        if (StateCode(codes[n]) == code) return static_cast<int>(n);
    return -1;
}

double PlotColumns::InTable(int column, double system) const {
    constexpr int digits = 12;
    const UnitConversion& unit = units[static_cast<std::size_t>(column)];
    if (!unit.ChangesValues()) return system;
    return Val(FormatValue(FromSystem(unit.code, system, unit.factor, unit.molarMass), digits));
}

double PlotColumns::WholeOf(int column) const {
    return FractionCode::Of(codes[static_cast<std::size_t>(column)]) ? InTable(column, 1) : 0;
}

void MarkFractions(PlotTable& table, const PlotColumns& columns) {
    for (std::size_t n = 0; n < columns.codes.size(); ++n)
        table.Whole[n] = columns.WholeOf(static_cast<int>(n));
}

std::string ShortName(const std::string& name, std::size_t most) {
    if (name.size() <= most) return name;
    std::size_t end = most - 3;
    while (end > 0 && (name[end] & 0xC0) == 0x80) // within a letter of several bytes
        --end;
    return name.substr(0, end) + "...";
}

void NameComponents(PlotTable& table, const SetSurroundings& around) {
    table.YName = WithComponentName(table.YName, around);
    for (std::string& name : table.VarNames)
        name = WithComponentName(name, around);
}

std::string WithComponentName(std::string text, const SetSurroundings& around) {
    constexpr std::string_view general = "component ";
    constexpr std::size_t longest = 48; // that a caption has room for
    const std::size_t at = text.find(general);
    const std::size_t digit = at + general.size();
    if (at == text.npos || digit >= text.size() || text[digit] < '1' || text[digit] > '3')
        return text;
    const auto component = static_cast<std::size_t>(text[digit] - '1');
    if (component < around.components.size())
        text.replace(at, general.size() + 1, ShortName(around.components[component], longest));
    return text;
}

} // namespace vexora
