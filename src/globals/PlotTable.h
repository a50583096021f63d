#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vexora {

/// The points that a plot shows: what a dialog with a table hands to frmGraph through the globals.
/// The dialog makes and fills it; the plot brings its rows into another order and says which of
/// them was chosen.
struct PlotTable {
    static constexpr std::size_t MostPoints = 16384;
    using Row = std::array<double, 9>; // 0 the dependent quantity, 1 to 8 the variables

    std::vector<Row> PointTable;
    // One entry a row of PointTable:
    std::vector<double> PointUnc; // uncertainty of column 0, 0 for none
    std::vector<int> PointRow;    // row of the dialog's table
    std::vector<bool> PointFar;   // far from its neighbours, to be looked at again

    std::array<std::string, 8> VarNames; // captions with their units, "Temperature (K)"
    std::string YName;                   // caption of the dependent quantity
    int nVar = 1;
    int ChosenRow = 0; // set by the plot: where the person wants to go on, 0 for nowhere

    void Add(const Row& point, double uncertainty = 0, int row = 0, bool isFar = false) {
        PointTable.push_back(point);
        PointUnc.push_back(uncertainty);
        PointRow.push_back(row);
        PointFar.push_back(isFar);
    }
    /// Only the points that a plot has room for stay.
    void Cut() {
        const std::size_t count = std::min(PointTable.size(), MostPoints);
        PointTable.resize(count);
        PointUnc.resize(count);
        PointRow.resize(count);
        PointFar.resize(count);
    }
    int PointCount() const { return static_cast<int>(PointTable.size()); }
    const std::string& NameOf(int variable) const {
        return VarNames.at(static_cast<std::size_t>(variable - 1));
    }
};

} // namespace vexora
