// The columns that stored sets need in a table of phase equilibria: which quantities stand in
// which, and in what unit.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "records/UnitConversion.h"
#include "tables/ProcessTable.h"

namespace vexora {

class clsMV;

/// A unit by what it does: two of these are equal when values in one stand in the other as well.
struct ColumnUnit {
    UnitConversion conversion;
    /// The unit of a column as its heads say it.
    static ColumnUnit Of(const ProcessColumn& head);
    bool operator==(const ColumnUnit& other) const;
};

/// A quantity of a set and the column that it stands in.
struct StoredItem {
    const clsMV* set = nullptr;
    int item = 0; // 0 the property, 1 to 3 the variables; with isConstant the one of Constants()
    bool isConstant = false;
    std::size_t column = 0;
    bool isAsTyped = false;  // figures in the units of the paper stand in the unit of the column
    bool isAsSystem = false; // the same of figures in system units
    UnitConversion unit;     // of figures in the units of the paper

    /// A figure of the set as it reads in the column.
    std::string Shown(std::string_view figure, bool inOriginalUnits,
                      const ColumnUnit& columnUnit) const;
    std::string ShownDifference(const std::string& figure, bool inOriginalUnits,
                                const ColumnUnit& columnUnit) const;
};

struct StoredColumns {
    std::vector<ProcessColumn> heads;
    std::vector<ColumnUnit> units; // one a column
    std::vector<StoredItem> items; // set by set
    /// For each property with uncertainties of the operator, the column of them; -1 for none, one a
    /// column.
    std::vector<int> uncertainties;
    std::vector<std::string> notStated; // "P" before "T"
};

/// Columns for sets that may stand in one table (FillRules.h): T, P, then the compositions phase by
/// phase. A phase or a state that no figure is known of has a column without values, for without it
/// the heads would tell of another equilibrium.
StoredColumns ColumnsOf(const std::vector<std::shared_ptr<clsMV>>& sets);

/// The phases that such a table tells of, the main one first. Air above a liquid is none of them:
/// it stands for a pressure that is not stated.
std::vector<std::string> TablePhases(const clsMV& set);

/// The codes of compositions that stand in such a table.
bool IsTableComposition(std::string_view code);

} // namespace vexora
