#pragma once

#include <memory>
#include <string>
#include <vector>

#include "grid/Finding.h"
#include "records/MixtureLine.h"
#include "tables/ProcessTable.h"

namespace vexora {

class clsMV;

/// One data set that a table of phase equilibria will give.
struct PlannedSet {
    int property = -1;                 // its column
    int uncertainty = -1;              // column of its combined uncertainties, -1 for none
    std::vector<int> variables;        // their columns, one to three
    std::string PRPCODE, PHASE1;       // codes
    std::vector<ConstraintSlot> slots; // phases, then T and P; values in system units
    std::vector<int> rows;             // rows of the table that give a row of the set
    bool isTied = false;               // rows of several sets belong together
};

/// What the heads and values of a table of a binary or ternary mixture tell.
struct PhaseAnalysis {
    bool Ok = false;
    /// For the box of a refusal; empty with Ok.
    std::string message;
    std::string hint; // the same in plain words: what to do, and where; empty with Ok
    std::vector<std::string> PhaseList; // codes, in the order of the columns
    std::string Context;                // "vle", "lle" or "sle"
    int FreeVars = 0;                   // constraints of each set: further phases, T, P
    int nVar = 0;                       // variables of each set
    /// A constant that has a place and no column, which is to be asked for: 't' before 'p'.
    bool asksT = false, asksP = false;
    std::vector<PlannedSet> sets;
    /// Columns of fractions that follow from the others of their phase: checked, and not stored.
    std::vector<int> implied;

    int PhaseCount() const { return static_cast<int>(PhaseList.size()); }
};

/// Recognises the kind of equilibrium, which columns are independent, and the sets to make.
/// Nothing is asked and nothing changes; a constant that is still to be asked for counts as there.
PhaseAnalysis AnalyseVLE(const ProcessTable& table, const AskedConstants& constants = {});

/// The first thing to mend in the cells of a table that has passed the analysis, in the order of
/// rows, and what is suspicious: faults and questions. Rows and columns count as in the table.
std::vector<Finding> CheckPhaseTable(const ProcessTable& table, const PhaseAnalysis& analysis,
                                     const ProcessSystem& system);

/// The sets of the analysis, with all rows, attached to nothing; sets without rows are left out.
std::vector<std::shared_ptr<clsMV>>
MakeSets(const ProcessTable& table, const PhaseAnalysis& analysis, const ProcessSystem& system);

} // namespace vexora
