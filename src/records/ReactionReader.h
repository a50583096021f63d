// The lines of reactions.
#pragma once

#include <string_view>

namespace vexora {

struct ReaderState;

/// ^Q: joins the source and is the reaction of the lines that follow; the same one again goes on
/// with the first.
void ReadReaction(ReaderState& state, std::string_view line);
/// ^q: coefficients and samples of a reaction whose data do not tell them.
void ReadCoefficients(ReaderState& state, std::string_view line);
/// ^C ^c: a property change joins the reaction.
void ReadPropertyChange(ReaderState& state, std::string_view line);
/// ^E ^H: an equilibrium joins it; its rows follow.
void ReadEquilibrium(ReaderState& state, std::string_view line);

} // namespace vexora
