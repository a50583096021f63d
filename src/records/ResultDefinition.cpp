#include "records/ResultDefinition.h"

#include "reference/Text.h"

namespace vexora {

namespace {

bool IsReferenceState(std::string_view relation) {
    return IsOneOf(relation,
                   {"FR", "PF", "TF", "FX", "TP", "PH", "RX", "EQ", "PC", "PR", "PS", "PT"});
}

} // namespace

bool NeedsRelation(std::string_view function) {
    return IsOneOf(function, {"D", "R", "K"});
}

ResultDefinition ResultDefinition::Of(std::string_view code) {
    // Two of these begin with the letter of a relative one.
    if (IsOneOf(code, {"DIR", "DT", "DX", "MN"}) || !NeedsRelation(code.substr(0, 1)))
        return {std::string(code), {}};
    return {std::string(code.substr(0, 1)), std::string(code.substr(1))};
}

bool ResultDefinition::IsRelative() const {
    return NeedsRelation(function) && IsReferenceState(relation);
}

std::string_view ResultDefinition::Relation() const {
    // A mean has the limits of the property and a zero point, a difference has neither.
    if (IsOneOf(function, {"DT", "DX"})) return "D";
    if (!IsRelative()) return "A";
    return function == "D" ? "D" : "R";
}

bool ResultDefinition::IsKnown() const {
    return IsOneOf(function, {"DIR", "MN"}) || Relation() != "A";
}

bool ResultDefinition::FixesTemperature() const {
    return IsOneOf(relation, {"FR", "PF"});
}

bool ResultDefinition::FixesPressure() const {
    return IsOneOf(relation, {"FR", "TF", "FX"}); // FX is an older code of TF
}

bool ResultDefinition::NamesPhase() const {
    return !relation.empty() && relation != "RX";
}

} // namespace vexora
