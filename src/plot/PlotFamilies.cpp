#include "plot/PlotFamilies.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vexora {

namespace {

constexpr int MostGroups = 1000;
constexpr int ComparedColumns = 4;

bool Agree(const PlotTable::Row& point, const PlotTable::Row& other, int xVar, int nVar,
           double tolerance) {
    for (int n = 1; n <= nVar; ++n) {
        if (n == xVar) continue;
        const double a = point[static_cast<std::size_t>(n)];
        const double b = other[static_cast<std::size_t>(n)];
        const double difference = b == 0 ? std::abs(a) / 2 : std::abs(a - b) / std::abs(b);
        if (difference >= tolerance) return false;
    }
    return true;
}

} // namespace

int GT(const PlotTable::Row& a, const PlotTable::Row& b, int xVar, int nVar) {
    const auto order = [&](int column) {
        const auto at = static_cast<std::size_t>(column);
        return a[at] < b[at] ? -1 : a[at] > b[at] ? 1 : 0;
    };
    int result = order(xVar);
    for (int n = 1; result == 0 && n <= std::min(nVar, ComparedColumns); ++n)
        result = order(n);
    return result;
}

void Arrange(PlotTable& table, int xVar) {
    std::vector<std::size_t> order(table.PointTable.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return GT(table.PointTable[a], table.PointTable[b], xVar, table.nVar) < 0;
    });
    PlotTable arranged;
    for (const std::size_t at : order)
        arranged.Add(table.PointTable[at], table.PointUnc[at], table.PointRow[at],
                     table.PointFar[at]);
    table.PointTable = std::move(arranged.PointTable);
    table.PointUnc = std::move(arranged.PointUnc);
    table.PointRow = std::move(arranged.PointRow);
    table.PointFar = std::move(arranged.PointFar);
}

PlotFamilies FamiliesOf(const PlotTable& table, int xVar, double tolerance) {
    PlotFamilies families;
    for (int point = 0; point < table.PointCount(); ++point) {
        const PlotTable::Row& row = table.PointTable[static_cast<std::size_t>(point)];
        int group = static_cast<int>(families.GroupRows.size()) - 1;
        const auto stands = [&](int one) -> const PlotTable::Row& {
            const int at = families.GroupRows[static_cast<std::size_t>(one)];
            return table.PointTable[static_cast<std::size_t>(at)];
        };
        while (group >= 0 && !Agree(row, stands(group), xVar, table.nVar, tolerance))
            --group;
        if (group < 0 && families.GroupRows.size() < MostGroups)
            families.GroupRows.push_back(point);
        families.GroupOf.push_back(group >= 0 ? group
                                              : static_cast<int>(families.GroupRows.size()) - 1);
    }
    return families;
}

} // namespace vexora
