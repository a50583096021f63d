#pragma once

#include "tables/PhaseEquilibria.h"
#include "tables/ThermalFunctions.h"
#include "tables/frmProcess.h"

namespace vexora {

struct frmProcess::Outlook {
    ProcessTable table;
    PhaseAnalysis phases;      // of a mixture
    ThermalAnalysis functions; // of a pure compound
    std::vector<Finding> findings = {};

    bool Ok() const { return table.MixType == 1 ? functions.Ok : phases.Ok; }
    const std::string& Message() const {
        return table.MixType == 1 ? functions.message : phases.message;
    }
};

} // namespace vexora
