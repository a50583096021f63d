#include "plot/PlotFamilies.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "plot/PlotScale.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr int MostGroups = 1000;
constexpr int ComparedColumns = 4;

/// The axes are no part of what tells curves apart: X, in a triangle both fractions.
bool IsOnAxis(const PlotTable& table, int column, int xVar) {
    return table.IsTriangle() ? column <= 2 : column == xVar;
}

/// A variable that tells curves apart, and by how much.
struct Divider {
    std::size_t column;
    double tolerance;
    double shift; // to an absolute value
};

std::vector<Divider> DividersOf(const PlotTable& table, int xVar,
                                const CurveTolerances& tolerances) {
    std::vector<Divider> dividers;
    for (int n = 1; n <= table.nVar; ++n) {
        if (IsOnAxis(table, n, xVar)) continue;
        const std::string name = LowerAscii(table.NameOf(n));
        const bool isPressure = name.find("pressure") != name.npos;
        const bool isTemperature = name.find("temperature") != name.npos;
        dividers.push_back({static_cast<std::size_t>(n),
                            isPressure ? tolerances.pressure : tolerances.other,
                            isTemperature ? ShiftOf(table.NameOf(n)) : 0});
    }
    return dividers;
}

bool Agree(const std::vector<Divider>& dividers, const PlotTable::Row& point,
           const PlotTable::Row& other) {
    return std::ranges::all_of(dividers, [&](const Divider& one) {
        const double a = point[one.column] + one.shift;
        const double b = other[one.column] + one.shift;
        const double difference = b == 0 ? std::abs(a) / 2 : std::abs(a - b) / std::abs(b);
        return difference < one.tolerance;
    });
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

PlotFamilies FamiliesOf(const PlotTable& table, int xVar, const CurveTolerances& tolerances) {
    if (table.IsTriangle() && !table.YName.empty()) return Classes(table);
    const std::vector<Divider> dividers = DividersOf(table, xVar, tolerances);
    PlotFamilies families;
    families.GroupOf.resize(table.PointTable.size());
    for (const int point : BySeries(table)) {
        const auto at = static_cast<std::size_t>(point);
        const auto agrees = [&](int group) {
            const auto other =
                static_cast<std::size_t>(families.GroupRows[static_cast<std::size_t>(group)]);
            return table.PointSeries[at] == table.PointSeries[other] &&
                   Agree(dividers, table.PointTable[at], table.PointTable[other]);
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

std::vector<int> FamiliesByValue(const PlotTable& table, int xVar, const PlotFamilies& families) {
    std::vector<int> order(families.GroupRows.size());
    std::iota(order.begin(), order.end(), 0);
    const bool areClasses = table.IsTriangle() && !table.YName.empty();
    const auto before = [&](int one, int other) {
        const auto a = static_cast<std::size_t>(families.GroupRows[static_cast<std::size_t>(one)]);
        const auto b =
            static_cast<std::size_t>(families.GroupRows[static_cast<std::size_t>(other)]);
        const PlotTable::Row &first = table.PointTable[a], &second = table.PointTable[b];
        if (areClasses) return first[0] < second[0];
        if (table.PointSeries[a] != table.PointSeries[b])
            return table.PointSeries[a] < table.PointSeries[b];
        for (int n = 1; n <= table.nVar; ++n) {
            const auto at = static_cast<std::size_t>(n);
            if (!IsOnAxis(table, n, xVar) && first[at] != second[at]) return first[at] < second[at];
        }
        return false;
    };
    std::stable_sort(order.begin(), order.end(), before);
    return order;
}

} // namespace vexora
