#include "entry/PhaseRules.h"

#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

using Codes = std::vector<std::string>;

/// Codes of the phases of a context that pass a test, in table order.
template <class Test>
Codes PhasesThat(std::string_view context, Test test) {
    Codes codes;
    for (const std::string& name : PhaseList(context)) {
        std::string code = PhaseCode(name);
        if (test(code)) codes.push_back(std::move(code));
    }
    return codes;
}

bool IsAnyPhase(std::string_view code) {
    return code != "air"; // an atmosphere, never a phase of the compound
}

/// Solids, liquids and mesophases: all but gas, ideal gas, fluid and air.
bool IsCondensed(std::string_view code) {
    return !IsOneOf(code, {"G", "IG", "FL", "air"});
}

/// What boils or sublimes: the normal liquid and the crystals.
bool IsLiquidOrCrystal(std::string_view code) {
    return code == "L" || IsCrystalPhase(code);
}

PhaseOffer OfferAll(std::string_view code, std::string_view context) {
    const auto phasesThat = [context](auto test) { return PhasesThat(context, test); };
    // At the critical point the two phases are known.
    if (IsOneOf(code, {"TC", "PC", "VC", "VDC", "VSC", "ZC"})) return {{"L"}, {"G"}, {}};
    // A liquid's surface is measured under its vapour or in air.
    if (code == "IST") return {{"L"}, {"G", "air"}, {}};
    // Boiling and sublimation: vapour pressure and enthalpy belong to the same equilibrium.
    if (IsOneOf(code, {"TBN", "TB", "PV", "HVP"}))
        return {phasesThat(IsLiquidOrCrystal), {"G"}, {}};
    // A normal melting point is taken under air at one atmosphere: three phases.
    if (code == "TMN") return {phasesThat(IsCrystalPhase), {"L"}, {"air"}};
    // Freezing and cryoscopy: crystal and liquid, the air is not stated.
    if (IsOneOf(code, {"TF", "YRC"})) return {phasesThat(IsCrystalPhase), {"L"}, {}};
    // A glass softens to a liquid, a mesophase or a crystal without order.
    if (code == "TG") return {{"VG"}, phasesThat(IsCondensed), {}};
    if (code == "TTR") return {phasesThat(IsCrystalPhase), phasesThat(IsCrystalPhase), {}};
    if (code == "TDC") return {phasesThat(IsCondensed), {}, {}};
    if (code == "HTR") return {phasesThat(IsCondensed), phasesThat(IsCondensed), {}};
    // Three phases are in equilibrium at a triple point; the third is nearly always the vapour.
    if (IsOneOf(code, {"TTP", "PTP"}))
        return {phasesThat(IsCondensed), phasesThat(IsCondensed), {"G"}};
    return {phasesThat(IsAnyPhase), {}, {}};
}

} // namespace

PhaseOffer OfferPhases(std::string_view propertyCode, int variableCount, std::string_view phase1,
                       std::string_view context) {
    PhaseOffer offer = OfferAll(propertyCode, context);
    // A transition needs two different phases.
    std::erase(offer.Phase2, phase1);
    if (variableCount == 0) return offer;
    // With temperature or pressure fixed the state is that of one phase, but for a surface.
    if (propertyCode != "IST") offer.Phase2.clear();
    offer.Phase3.clear();
    return offer;
}

} // namespace vexora
