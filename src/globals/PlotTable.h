#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vexora {

/// The points that a plot shows: what a dialog with a table hands to frmGraph through the globals.
/// The dialog makes and fills it; the plot only brings its rows into another order.
struct PlotTable {
    static constexpr std::size_t MostPoints = 16384;
    using Row = std::array<double, 9>; // 0 the dependent quantity, 1 to 8 the variables

    std::vector<Row> PointTable;
    std::vector<double> PointUnc;        // uncertainty of column 0 of the same row, 0 for none
    std::array<std::string, 8> VarNames; // captions with their units, "Temperature (K)"
    std::string YName;                   // caption of the dependent quantity
    int nVar = 1;

    int PointCount() const { return static_cast<int>(PointTable.size()); }
    const std::string& NameOf(int variable) const {
        return VarNames.at(static_cast<std::size_t>(variable - 1));
    }
};

} // namespace vexora
