// The texts of a row of a table as a row of a data set. What stored rows know beside their texts
// stays with the cells that nobody has touched.
#pragma once

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "records/UnitConversion.h"
#include "records/clsData.h"
#include "tables/ProcessTable.h"

namespace vexora {

class DataSet;

/// The columns of a row of a set: 0 the property, 1 to 3 the variables; -1 for none.
struct RowColumns {
    std::array<int, 4> items{-1, -1, -1, -1};
    int nVar = 1;
    int uncertainty = -1;
};

/// Made once for a set.
class ProcessedRows {
public:
    /// The set has its definition and no rows.
    ProcessedRows(const ProcessTable& table, const DataSet& set, const RowColumns& columns);

    clsData NewRow(int row, const std::string& tie) const;

private:
    const clsData* StoredRow(int row) const;
    bool IsUntouched(int row) const;
    bool IsOfThisKind(const clsData& stored) const;
    void TakeStored(clsData& made, const clsData& stored, int row) const;
    std::string Text(int row, int column) const;

    const ProcessTable& table_;
    const DataSet& set_;
    RowColumns columns_;
    /// Of each stored row, whether its set has the quantities and units of this one.
    std::unordered_map<const clsData*, bool> isAlike_;
};

/// A row of stored sets that stands in the table as it was filled.
bool IsUntouchedRow(const ProcessTable& table, int row);

/// Where rows state combined uncertainties, the set says that they do, and that they come of
/// propagation.
void StateUncertainties(DataSet& set);

/// Conversions that lead each number to the same.
bool IsSame(const UnitConversion& a, const UnitConversion& b);

} // namespace vexora
