#include "pure/TwoRules.h"

#include <algorithm>

#include "records/StateRules.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

bool IsBoundary(const TwoDraft& draft) {
    return draft.constraint == "PB";
}

} // namespace

bool HasVariable(const TwoDraft& draft, std::string_view code) {
    return draft.variable1 == code || (draft.nVar > 1 && draft.variable2 == code);
}

bool HasLimits(const TwoDraft& draft) {
    for (const std::string_view code : {"TU", "TL", "PU", "PL"}) {
        if (HasVariable(draft, code)) return true;
    }
    return false;
}

std::vector<CodeText> ResultFunctions() {
    std::vector<CodeText> functions = {PureReferenceStates[0]};
    for (const CodeText& entry : ReferenceRelations)
        functions.push_back(entry);
    for (const CodeText& entry : PureReferenceStates) {
        if (IsOneOf(entry.code, {"DT", "DX", "MN"})) functions.push_back(entry);
    }
    return functions;
}

std::vector<CodeText> ResultRelations() {
    std::vector<CodeText> relations;
    for (const CodeText& entry : PureReferenceStates) {
        if (!IsOneOf(entry.code, {"DIR", "DT", "DX", "MN"})) relations.push_back(entry);
    }
    return relations;
}

// Temperature and pressure fix the state of one phase, one of them that of a phase boundary; a
// spectral property needs its wavelength or frequency besides. What is measured between two limits
// of one of them leaves the other open.
ConstantVariable OpenVariable(const TwoDraft& draft) {
    const std::string spectral(SpectralVariable(draft.property));
    const bool between = HasLimits(draft) && !IsBoundary(draft);
    if (spectral.empty() && (draft.nVar > 1 ? !between : draft.variable1.empty())) return {};
    if (IsOneOf(draft.constraint, {"DP", "FV"}) && spectral.empty()) return {};
    std::vector<std::string> needed;
    if (!IsTemperature(draft.property)) needed.emplace_back("T");
    if (!IsBoundary(draft) && !IsPressure(draft.property)) needed.emplace_back("P");
    if (!spectral.empty()) needed.insert(draft.nVar == 1 ? needed.begin() : needed.end(), spectral);
    for (const std::string& code : needed) {
        if (!HasVariable(draft, code) && !HasVariable(draft, code + "U") &&
            !HasVariable(draft, code + "L"))
            return {code, !spectral.empty()};
    }
    return {};
}

bool IsSameQuantity(std::string_view property, std::string_view variable) {
    if (IsTemperature(property)) return variable == "T";
    if (IsPressure(property)) return variable == "P";
    return variable == property;
}

TwoDraft PresetTwo(std::string_view property) {
    TwoDraft draft;
    draft.property = property;
    draft.variable1 = IsTemperature(property) ? "P" : "T";
    draft.constraint = "PB";
    if (IsOneOf(property, {"CP", "CPV", "CPW", "U", "H", "H/T", "S", "G", "G/T"}))
        draft.constraint = "FP";
    if (IsOneOf(property, {"CV", "CVV", "CVW"})) draft.constraint = "FV";
    if (property == "CGM" || property.starts_with("VV")) draft.constraint = "DP";
    if (IsOneOf(property, {"PV", "CS", "HVP"})) draft.phase2 = "G";
    draft.function = "DIR";
    if (!IsOneOf(property, {"UA", "U", "G", "H"})) return draft;
    draft.function = "D";
    draft.relation = "FR";
    draft.refPhase = "C";
    draft.refTemp = draft.refPressure = "0";
    return draft;
}

PhaseOffer OfferSetPhases(const TwoDraft& draft) {
    PhaseOffer offer = OfferPhases(draft.property, 0, {}, draft.context);
    if (offer.Phase2.empty()) offer.Phase2 = offer.Phase1;
    offer.Phase3.clear();
    if (!IsBoundary(draft)) {
        offer.Phase1 = OfferPhases({}, 0, {}, draft.context).Phase1;
        offer.Phase2.clear();
        return offer;
    }
    std::erase(offer.Phase1, draft.phase2);
    std::erase(offer.Phase2, draft.phase1);
    return offer;
}

std::string StoredPropertyCode(std::string_view property, std::string_view phase1,
                               std::string_view phase2) {
    const bool withGas = phase1 == "G" || phase2 == "G";
    if (withGas && property == "P") return "PV";
    if (withGas && property == "HTR") return "HVP";
    return std::string(property);
}

} // namespace vexora
