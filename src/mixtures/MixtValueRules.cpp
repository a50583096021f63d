#include "mixtures/MixtValueRules.h"

#include <cstddef>
#include <map>

#include "chem/clsMMM.h"
#include "records/clsM.h"
#include "records/clsMZ.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using Codes = std::vector<std::string>;

/// The two phases that become alike, and the state in which they do.
Codes CriticalStateOf(std::string_view code) {
    if (IsOneOf(code, {"TUC", "PUC", "XU1", "XU2", "XU3", "WU1", "WU2", "WU3"}))
        return {"L1", "L2", "CUL"};
    if (IsOneOf(code, {"TLC", "PLC", "XL1", "XL2", "XL3", "WL1", "WL2", "WL3"}))
        return {"L1", "L2", "CLL"};
    if (IsOneOf(code, {"PC", "TC", "VDC", "VSC", "VC", "ZC"})) return {"L", "G", "CLG"};
    return {};
}

Codes PhasesOf(std::string_view context) {
    Codes codes;
    for (const std::string& name : PhaseList(context))
        codes.push_back(PhaseCode(name));
    return codes;
}

/// The letter of the kind of state that a property is about: U and L consolute, C critical, A
/// azeotropic, E eutectic; 0 for others.
char StateOf(std::string_view code) {
    if (IsOneOf(code, {"TUC", "PUC"})) return 'U';
    if (IsOneOf(code, {"TLC", "PLC"})) return 'L';
    if (IsOneOf(code, {"TC", "PC", "VC", "VSC", "VDC", "ZC"})) return 'C';
    if (IsOneOf(code, {"TA", "PA"})) return 'A';
    if (code == "TE") return 'E';
    const bool isComposition =
        code.size() == 3 && (code[0] == 'X' || code[0] == 'W') && code[2] >= '1' && code[2] <= '3';
    return isComposition && IsOneOf(code.substr(1, 1), {"U", "L", "C", "A", "E"}) ? code[1] : '\0';
}

/// What values of the state say of the fractions of the components, by component.
using Fractions = std::map<int, double>;

void TakeFraction(const clsMZ& value, char scale, Fractions& fractions) {
    const std::string_view code = value.PRPCODE;
    if (StateOf(code) == '\0' || code[0] != scale || !IsNumeric(value.PRPVALUE.View())) return;
    const double fraction = value.SystemValue();
    if (fraction >= 0 && fraction <= 1) fractions.emplace(code[2] - '0', fraction);
}

Fractions FractionsOf(const clsM& mixture, const clsMZ& value, char scale) {
    Fractions fractions;
    const char state = StateOf(value.PRPCODE.View());
    if (state == '\0') return fractions;
    TakeFraction(value, scale, fractions);
    for (const auto& other : mixture.recMZ) {
        const bool isOfState = StateOf(other->PRPCODE.View()) == state &&
                               other->SMPNM1 == value.SMPNM1 && other->SMPNM2 == value.SMPNM2 &&
                               other->SMPNM3 == value.SMPNM3;
        if (isOfState) TakeFraction(*other, scale, fractions);
    }
    return fractions;
}

} // namespace

MixturePhaseOffer OfferMixturePhases(std::string_view propertyCode, std::string_view context) {
    const Codes all = PhasesOf(context);
    MixturePhaseOffer offer;
    offer.places.fill(all);
    const Codes given = CriticalStateOf(propertyCode);
    offer.isCriticalState = !given.empty();
    for (std::size_t n = 0; n < given.size(); ++n)
        offer.places[n] = {given[n]};
    return offer;
}

bool MayState(std::string_view code, const PropertyRow& property) {
    if (code == "T") return property.Unit != "K";
    return !IsOneOf(property.Code, {"P", "PV", "PC", "PUC", "PLC", "PA"});
}

void PrepareAverage(clsMMM& calculator, const clsM& mixture, const ComponentSamples& samples,
                    const clsMZ& value) {
    SetMixture(calculator, mixture);
    calculator.Clear();
    for (int n = 1; n <= mixture.MixType; ++n) {
        const auto& sample = samples[static_cast<std::size_t>(n - 1)];
        calculator.SetIndPurity(n, sample ? sample->Purity : 0);
    }
    const auto enough = static_cast<std::size_t>(mixture.MixType - 1);
    for (const char scale : {'X', 'W'}) {
        const Fractions fractions = FractionsOf(mixture, value, scale);
        if (fractions.size() < enough) continue;
        auto fraction = fractions.begin();
        for (std::size_t taken = 0; taken < enough; ++taken, ++fraction)
            calculator.SetVariable(fraction->first, 0, scale + std::to_string(fraction->first),
                                   fraction->second);
        return;
    }
}

} // namespace vexora
