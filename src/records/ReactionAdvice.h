// What follows from data of reactions, as a figure to compare with the paper. All of it is a hint,
// and none of it is kept.
#pragma once

#include "records/RecordChecks.h"

namespace vexora {

/// The enthalpy of formation of the compound that an enthalpy of combustion at 298.15 K tells,
/// where it burns, one at a time, to carbon dioxide, liquid water and nitrogen. The enthalpies of
/// acids depend on their dilution, so that nothing is said where one is formed.
void AdviseOnCombustion(const clsC& value, Findings& findings);
/// Enthalpy and entropy of reaction that the constants of a set against temperature tell by ln K
/// against 1/T, with their standard errors; nothing for fewer than five rows.
void AdviseOnEquilibrium(const clsE& set, Findings& findings);

} // namespace vexora
