// What the heads of a table of phase equilibria say, before its values are looked at.
#pragma once

#include <string>
#include <vector>

#include "tables/ProcessTable.h"

namespace vexora {

/// The columns of one phase that hold compositions, in their order; none for a phase that the heads
/// only name, as the crystal of a pure component.
struct PhaseColumns {
    std::string phase;
    std::vector<int> compositions;
};

struct PhaseHeads {
    static constexpr int MostPhases = 4, MostQuantities = 5;

    std::string hint;                  // what to mend; empty when all is well
    std::vector<std::string> VarNames; // the quantities: "T", then "P", then each other once
    std::vector<PhaseColumns> phases;  // in the order of the columns
    int TColumn = -1, PColumn = -1;
    std::vector<int> uncertainty; // for each column that of its uncertainties, -1 for none

    bool HasGas() const;
};

PhaseHeads ReadHeads(const ProcessTable& table);

/// "vle" for a gas and "sle" for a crystal, of which the later one wins, else "lle".
std::string ContextOf(const std::vector<PhaseColumns>& phases);

/// Which columns of a phase are stored: fractions that the others imply are not.
struct KeptColumns {
    std::vector<int> kept;         // in the order of the columns
    int variable = -1, other = -1; // the one of wide range that the other is told against
    std::vector<int> implied;
};

/// Of a binary the first. Of three components the two of widest range; of these the first is the
/// variable, unless the second's range is far wider.
KeptColumns KeepCompositions(const ProcessTable& table, const std::vector<int>& rows,
                             const std::vector<int>& compositions);

} // namespace vexora
