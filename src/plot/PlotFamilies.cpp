#include "plot/PlotFamilies.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "plot/PlotScale.h"

namespace vexora {

namespace {

constexpr int MostGroups = 1000;
constexpr int ComparedColumns = 4;

/// The axes are no part of what tells curves apart: X, in a triangle both fractions.
bool IsOnAxis(const PlotTable& table, int column, int xVar) {
    return table.IsTriangle() ? column <= 2 : column == xVar;
}

bool Agree(const PlotTable& table, const PlotTable::Row& point, const PlotTable::Row& other,
           int xVar, double tolerance) {
    for (int n = 1; n <= table.nVar; ++n) {
        if (IsOnAxis(table, n, xVar)) continue;
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
    table.ForEachList([&order](auto& list) {
        auto arranged = list;
        for (std::size_t to = 0; to < order.size(); ++to)
            arranged[to] = list[order[to]];
        list = std::move(arranged);
    });
}

namespace {

/// Points series by series, so that the first series has the first colours whatever the order of
/// the points is.
std::vector<int> BySeries(const PlotTable& table) {
    std::vector<int> points(table.PointTable.size());
    std::iota(points.begin(), points.end(), 0);
    std::stable_sort(points.begin(), points.end(), [&](int a, int b) {
        return table.PointSeries[static_cast<std::size_t>(a)] <
               table.PointSeries[static_cast<std::size_t>(b)];
    });
    return points;
}

/// The values of a property in a triangle have no axis: they are told by classes.
PlotFamilies Classes(const PlotTable& table) {
    const std::vector<double> bounds = ClassBounds(table);
    std::vector<int> classes, groups(bounds.size() + 1, -1);
    for (const PlotTable::Row& row : table.PointTable)
        classes.push_back(static_cast<int>(std::upper_bound(bounds.begin(), bounds.end(), row[0]) -
                                           bounds.begin()));
    PlotFamilies families;
    for (std::size_t point = 0; point < classes.size(); ++point) {
        int& stands = groups[static_cast<std::size_t>(classes[point])];
        if (stands < 0) stands = static_cast<int>(point);
    }
    for (int& group : groups) {
        if (group < 0) continue;
        families.GroupRows.push_back(group);
        group = static_cast<int>(families.GroupRows.size()) - 1;
    }
    for (const int one : classes)
        families.GroupOf.push_back(groups[static_cast<std::size_t>(one)]);
    return families;
}

} // namespace

std::vector<double> ClassBounds(const PlotTable& table) {
    double min = std::numeric_limits<double>::infinity();
    double max = -min;
    for (const PlotTable::Row& row : table.PointTable) {
        min = std::min(min, row[0]);
        max = std::max(max, row[0]);
    }
    return table.PointTable.empty() ? std::vector<double>() : Ticks(min, max);
}

PlotFamilies FamiliesOf(const PlotTable& table, int xVar, double tolerance) {
    if (table.IsTriangle() && !table.YName.empty()) return Classes(table);
    PlotFamilies families;
    families.GroupOf.resize(table.PointTable.size());
    for (const int point : BySeries(table)) {
        const auto at = static_cast<std::size_t>(point);
        const auto agrees = [&](int group) {
            const auto other =
                static_cast<std::size_t>(families.GroupRows[static_cast<std::size_t>(group)]);
            return table.PointSeries[at] == table.PointSeries[other] &&
                   Agree(table, table.PointTable[at], table.PointTable[other], xVar, tolerance);
        };
        int group = static_cast<int>(families.GroupRows.size()) - 1;
        while (group >= 0 && !agrees(group))
            --group;
        if (group < 0 && families.GroupRows.size() < MostGroups)
            families.GroupRows.push_back(point);
        families.GroupOf[at] = group >= 0 ? group : static_cast<int>(families.GroupRows.size()) - 1;
    }
    return families;
}

} // namespace vexora
