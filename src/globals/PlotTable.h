#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace vexora {

/// The points that a plot shows: what a dialog with a table hands to frmGraph through the globals.
/// The dialog makes and fills it; the plot brings its rows into another order and says which of
/// them was chosen. With corners it is a composition triangle: column 1 is the fraction of the
/// first component, column 2 that of the second, and column 0 a property where it has a name.
struct PlotTable {
    static constexpr std::size_t MostPoints = 16384;
    using Row = std::array<double, 9>; // 0 the dependent quantity, 1 to 8 the variables

    std::vector<Row> PointTable;
    // One entry a row of PointTable:
    std::vector<double> PointUnc; // uncertainty of column 0, 0 for none
    std::vector<int> PointRow;    // row of the dialog's table, 0 for a point from elsewhere
    std::vector<bool> PointFar;   // far from its neighbours, to be looked at again
    std::vector<int> PointSeries; // place in SeriesNames
    std::vector<int> PointTie;    // points of one number coexist, 0 for none
    std::vector<int> PointColumn; // column of the dialog's table that it tells, -1 for none

    std::array<std::string, 8> VarNames; // captions with their units, "Temperature (K)"
    std::string YName;                   // caption of the dependent quantity
    int nVar = 1;
    std::vector<std::string> SeriesNames; // "Liquid", "Gas"; empty where all points are of one
    std::array<double, 9> Whole{};      // of a column of fractions: 1, 100 for per cent; 0 for none
    std::array<std::string, 3> Corners; // names of the components, for a triangle
    std::string Title;                  // what a triangle shows: "Mass fraction, 291.15 K"
    // What the picture is of, for its heading and its file: "Ethanol + Water", and the number of
    // the set; empty where it is of none.
    std::string System, SetNumber;
    /// A value of a pure component, as a row of its own with the component's name.
    struct End {
        Row at{};
        std::string name;
    };
    std::vector<End> Ends;
    std::shared_ptr<PlotTable> Next; // another picture of the same table
    bool HasDiagonal = false;        // the line of equal values is drawn
    // Set by the plot: where the person wants to go on, 0 for nowhere; the column -1 for any.
    int ChosenRow = 0, ChosenColumn = -1;

    void Add(const Row& point, double uncertainty = 0, int row = 0, bool isFar = false,
             int series = 0, int tie = 0) {
        PointTable.push_back(point);
        PointUnc.push_back(uncertainty);
        PointRow.push_back(row);
        PointFar.push_back(isFar);
        PointSeries.push_back(series);
        PointTie.push_back(tie);
        PointColumn.push_back(-1);
    }
    /// Applies the same to each list that has one entry a point.
    template <class Change>
    void ForEachList(Change change) {
        change(PointTable);
        change(PointUnc);
        change(PointRow);
        change(PointFar);
        change(PointSeries);
        change(PointTie);
        change(PointColumn);
    }
    /// Only the points that a plot has room for stay.
    void Cut() {
        const std::size_t count = std::min(PointTable.size(), MostPoints);
        ForEachList([count](auto& list) { list.resize(count); });
    }
    int PointCount() const { return static_cast<int>(PointTable.size()); }
    const std::string& NameOf(int variable) const {
        return VarNames.at(static_cast<std::size_t>(variable - 1));
    }
    bool IsFraction(int column) const { return Whole.at(static_cast<std::size_t>(column)) > 0; }
    bool IsTriangle() const { return !Corners[0].empty(); }
    bool HasTies() const {
        return std::any_of(PointTie.begin(), PointTie.end(), [](int tie) { return tie > 0; });
    }
};

/// A table with any number of properties and variables, of which its plot draws one against
/// another: what the table of a bio set hands to frmBioPlot through the globals.
struct ColumnsToPlot {
    struct Column {
        std::string name; // with the unit, "Temperature (K)"
        bool isProperty = false;
        int column = 0;                    // of the dialog's table
        std::vector<double> values;        // one a row, not a number for none
        std::vector<double> uncertainties; // likewise, 0 for none
    };
    std::vector<Column> columns;
    std::string System, SetNumber; // as in PlotTable
    std::vector<int> rows;         // of the dialog's table
    std::vector<bool> isFar;       // to be looked at again
    // Set by the plot, as in PlotTable.
    int ChosenRow = 0, ChosenColumn = -1;
};

} // namespace vexora
