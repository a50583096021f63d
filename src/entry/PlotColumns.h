#pragma once

#include <array>
#include <string>

#include "globals/PlotTable.h"
#include "records/DataSet.h"

namespace vexora {

/// What stands in the columns of a plot: codes, and units as entered. Column 0 is the dependent
/// quantity. A column with no code does not exist.
struct PlotColumns {
    std::array<std::string, DataSet::MostVariables + 1> codes;
    std::array<UnitConversion, DataSet::MostVariables + 1> units;

    /// Those of the table of a set. With `original` its cells stand in the units of the paper.
    static PlotColumns Of(const DataSet& set, bool original);

    /// The first column from 1 on that holds a fraction of the mixture; 0 for none.
    int FractionColumn() const;
    /// The column of a quantity by its StateCode, -1 for none.
    int Find(std::string_view code) const;
    /// A value of a column in the system unit as it stands in the table, without the noise of the
    /// conversion.
    double InTable(int column, double system) const;
    /// The whole composition in the unit of a column, 0 for a column of other quantities.
    double WholeOf(int column) const;
};

/// Marks the columns of fractions, so that they are drawn from pure to pure.
void MarkFractions(PlotTable& table, const PlotColumns& columns);
/// A name with an ending of "..." where it is longer than so many bytes.
std::string ShortName(const std::string& name, std::size_t most);
/// "component 1" in the captions becomes its name, where it is known.
void NameComponents(PlotTable& table, const SetSurroundings& around);
/// The same in one text.
std::string WithComponentName(std::string text, const SetSurroundings& around);

} // namespace vexora
