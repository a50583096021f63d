// What thermodynamics and plain sums let a careful reader ask about mixtures. All of it is a hint:
// data that raise it may well be right, and data that raise none may be wrong.
#pragma once

#include "records/RecordChecks.h"

namespace vexora {

/// Fractions of the components of one phase have to sum to 1. Names rows of a set that state all of
/// them, or two of three that exceed 1 already; what is constant counts too.
void AdviseOnFractions(const clsMV& set, Findings& findings);
/// The same of fractions that stand in several sets and belong together by a tie number.
void AdviseOnTiedFractions(const clsM& mixture, Findings& findings);
/// An excess property that is not near 0 where a component is alone: by more than three stated
/// uncertainties, or 2 per cent of the greatest amount in the set where none is stated.
void AdviseOnExcess(const clsMV& set, Findings& findings);
/// Values of rows in which a component is alone that no value of its own sample in the same
/// document agrees with, at the same temperature and a pressure within 1 per cent: by more than
/// three of both stated uncertainties. Boiling curves are compared with vapor pressures and boiling
/// temperatures.
void AdviseOnPureEnds(const clsM& mixture, Findings& findings);
/// The slopes at both ends and the area test (VaporLiquidTests.h) of what sets of a binary tell
/// together of liquid and gas at one temperature or pressure. What was found is told either way.
void AdviseOnBoilingCurves(const clsM& mixture, Findings& findings);

} // namespace vexora
