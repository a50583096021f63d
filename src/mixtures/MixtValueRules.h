// What a single value of a mixture may state: its phases, the temperature and pressure at which it
// holds, and the composition that goes with it.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "reference/Vocabulary.h"

namespace vexora {

class clsM;
class clsMMM;
class clsMZ;
class clsS;

constexpr int MostMixturePhases = 5;

/// Codes of the phases that each place may name. A critical state is named behind the two phases
/// that form it.
struct MixturePhaseOffer {
    std::array<std::vector<std::string>, MostMixturePhases> places;
    bool isCriticalState = false;
};
/// The phases of the context ("Bin" or "Tern") for a property. Consolute and critical properties
/// have their first three places given.
MixturePhaseOffer OfferMixturePhases(std::string_view propertyCode, std::string_view context);

/// Temperature or pressure (code "T" or "P") is something to state besides the property; not where
/// the property is one itself.
bool MayState(std::string_view code, const PropertyRow& property);

/// The samples of the components, null for one that is not chosen.
using ComponentSamples = std::array<std::shared_ptr<clsS>, 3>;

/// Puts components, purities of their samples and the composition of the state into the
/// calculator. The composition is the value itself and what the mixture's other values of the same
/// kind of state on the same samples say; mole fractions go before mass fractions.
void PrepareAverage(clsMMM& calculator, const clsM& mixture, const ComponentSamples& samples,
                    const clsMZ& value);

} // namespace vexora
