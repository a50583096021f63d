// The reaction dialog in front of data of the reaction: what is measured is meant with
// participants, coefficients and samples that the operator has seen.
#pragma once

namespace vexora {

/// Shows the reaction of the current property change with the samples of that, which takes back
/// what is chosen; false when it was cancelled.
bool ReviewReactionOfChange();
/// The same of the current equilibrium.
bool ReviewReactionOfEquilibrium();
/// Shows the current reaction where it came from a file and has not been looked at yet, for its
/// equation has not been tested; false when it was cancelled.
bool ReviewReactionOfFile();

} // namespace vexora
