#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// How the stored number relates to the property, as the field PROPERTY_FUNCT says it: the property
/// itself ("DIR"), a difference or a mean between two temperatures or pressures ("DT", "DX", "MN"),
/// or a difference ("D"), ratio ("R") or relative difference ("K") to a reference state, whose code
/// follows the letter ("DFR").
struct ResultDefinition {
    /// The relation is empty for the property itself and for two temperatures or pressures.
    std::string function, relation;
    bool operator==(const ResultDefinition&) const = default;

    /// A text that is none of these is kept whole as the function.
    static ResultDefinition Of(std::string_view code);
    std::string Code() const { return function + relation; }

    /// The value is one against a reference state.
    bool IsRelative() const;
    /// "A" for absolute values (direct, mean, and what is not understood), "D" for differences, "R"
    /// for ratios: what decides whether values have limits, and whether the offset of a unit
    /// counts.
    std::string_view Relation() const;
    /// One that values can be stored by.
    /// Others are kept and written back, but no value of theirs can be entered.
    bool IsKnown() const;

    /// What the reference state of the relation consists of.
    /// "FR" fixes both, "PF" a temperature at the pressure of the row, "TF" the other way round.
    bool FixesTemperature() const;
    bool FixesPressure() const;
    bool NamesPhase() const;
};

/// True for "D", "R" and "K", which say nothing without a relation to a reference state.
bool NeedsRelation(std::string_view function);

} // namespace vexora
