#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// Phase codes that a single value may state, place by place; a place with an empty list is not
/// used.
/// Codes stand in the order of the phase table.
struct PhaseOffer {
    std::vector<std::string> Phase1, Phase2, Phase3;
};

/// The phases offered for a property: a saturation property stands between a condensed phase and
/// gas, a transition between two condensed ones, a melting point under air between three; all else
/// has any one phase of pure compounds. A value at a fixed variable (variableCount 1) states one
/// phase only, or a surface tension what the surface lies against as well. phase1 is the one
/// chosen, which cannot be the second as well. The context "Complex" adds the phases of gas
/// hydrates. A property that no rule names is offered every phase; an unknown code is not refused
/// here.
PhaseOffer OfferPhases(std::string_view propertyCode, int variableCount,
                       std::string_view phase1 = {}, std::string_view context = "Pure");

} // namespace vexora
