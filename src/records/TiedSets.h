#pragma once

#include <memory>
#include <vector>

namespace vexora {

class clsMV;

/// The sets of the same mixture whose rows bear tie numbers that this set bears too, those that
/// bear numbers of these, and so on; in the order of the document, itself among them. Alone when it
/// has none or is in no mixture. Each of them tells a part of the same equilibrium states: one
/// composition in one phase.
std::vector<std::shared_ptr<clsMV>> TiedSets(clsMV& set);

} // namespace vexora
