#pragma once

#include <memory>
#include <string>
#include <vector>

#include "grid/Finding.h"
#include "tables/ProcessTable.h"

namespace vexora {

class clsTwo;

/// One set of a thermal function against temperature that a table of a pure compound will give.
struct PlannedFunction {
    int property = -1, uncertainty = -1; // columns, -1 for none
    std::string PRPCODE;
    std::vector<int> rows; // rows of the table with both values
};

/// What the heads of a table of a pure compound tell.
struct ThermalAnalysis {
    bool Ok = false;
    std::string message; // for the box of a refusal; empty with Ok
    std::string hint;    // the same in plain words: what to do, and where; empty with Ok
    int TColumn = -1, PropColumn = -1;
    std::vector<PlannedFunction> sets;
};

ThermalAnalysis AnalyseTDF(const ProcessTable& table);

/// What is to be mended in the cells, as CheckPhaseTable tells it.
std::vector<Finding> CheckThermalTable(const ProcessTable& table, const ThermalAnalysis& analysis,
                                       const ProcessSystem& system);

/// The sets with all rows, attached to nothing; sets without rows are left out.
std::vector<std::shared_ptr<clsTwo>>
ProcessTwo(const ProcessTable& table, const ThermalAnalysis& analysis, const ProcessSystem& system);

} // namespace vexora
