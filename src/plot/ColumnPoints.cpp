#include "plot/ColumnPoints.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace vexora {

namespace {

/// Rows that agree in them lie on one curve; as many as the plot has room for.
std::vector<std::size_t> OtherVariables(const ColumnsToPlot& table, std::size_t y, std::size_t x) {
    constexpr std::size_t most = std::tuple_size_v<PlotTable::Row> - 2;
    std::vector<std::size_t> others;
    for (std::size_t n = 0; n < table.columns.size() && others.size() < most; ++n)
        if (!table.columns[n].isProperty && n != y && n != x) others.push_back(n);
    return others;
}

} // namespace

std::pair<std::size_t, std::size_t> FirstColumns(const ColumnsToPlot& table) {
    const auto variable =
        std::ranges::find(table.columns, false, &ColumnsToPlot::Column::isProperty);
    const auto place = static_cast<std::size_t>(variable - table.columns.begin());
    return {0, variable != table.columns.end() ? place : std::min<std::size_t>(1, place - 1)};
}

PlotTable PointsOf(const ColumnsToPlot& table, std::size_t y, std::size_t x) {
    const std::vector<std::size_t> others = OtherVariables(table, y, x);
    const ColumnsToPlot::Column& upward = table.columns[y];
    const ColumnsToPlot::Column& across = table.columns[x];
    PlotTable points;
    points.System = table.System;
    points.SetNumber = table.SetNumber;
    points.YName = upward.name;
    points.VarNames[0] = across.name;
    points.nVar = 1 + static_cast<int>(others.size());
    for (std::size_t n = 0; n < others.size(); ++n)
        points.VarNames[n + 1] = table.columns[others[n]].name;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        PlotTable::Row point{upward.values[row], across.values[row]};
        if (std::isnan(point[0]) || std::isnan(point[1])) continue;
        for (std::size_t n = 0; n < others.size(); ++n)
            point[n + 2] = table.columns[others[n]].values[row];
        points.Add(point, upward.uncertainties[row], table.rows[row], table.isFar[row]);
        points.PointColumn.back() = upward.column;
    }
    points.Cut();
    return points;
}

} // namespace vexora
