#pragma once

#include <memory>

namespace vexora {

class clsComplexSample;
class clsQ;

/// The reaction in which a sample of a complex falls apart into its components, as it is composed:
/// "Gas Hydrate (methane + water) = 0.148 methane + 0.852 water". It stands in no source yet. Null
/// when the content of a component is not stated, or some are mole fractions and others moles.
std::shared_ptr<clsQ> DecompositionOf(const clsComplexSample& sample);

} // namespace vexora
