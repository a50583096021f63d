#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entry/PlotColumns.h"
#include "tables/ColumnValues.h"
#include "tables/ProcessWords.h"

namespace vexora {

/// What pictures of a table take from its columns: captions, and values in the system unit.
class PictureColumns {
public:
    /// Mixture null: of a pure compound.
    PictureColumns(const ProcessTable& table, const clsM* mixture);

    const ProcessTable& Table() const { return table_; }
    const ProcessColumn& Head(int column) const { return table_.columns[At(column)]; }
    /// "Temperature (C)", "Mole fraction of ethanol, Gas"; the phase only on demand.
    std::string Caption(int column, bool withPhase = false) const;
    std::string PhaseText(const std::string& code) const;

    std::optional<double> Value(int row, int column) const;
    const UnitConversion& Conversion(int column) const { return values_[At(column)].Conversion(); }
    /// The number as it stands in the cell.
    std::optional<double> Typed(int row, int column) const;
    /// Two rows differ in it.
    bool Varies(int column) const;

private:
    static std::size_t At(int column) { return static_cast<std::size_t>(column); }
    std::string UnitOf(int column) const;

    const ProcessTable& table_;
    std::vector<HeadEntry> quantities_, phases_;
    std::vector<ColumnValues> values_;
};

} // namespace vexora
