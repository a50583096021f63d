#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A state variable of a mixture set: its code, the conversion code of its unit, and the phase in
/// which it is meant.
struct MixtureVariable {
    std::string code, unit, phase;
    bool operator==(const MixtureVariable&) const = default;
};

/// What restricts a mixture set: either a further phase in equilibrium, or a state variable or
/// composition that is the same in all rows, with its value and the phase in which it is meant, or
/// a critical curve, which has no value. "" is an empty slot.
struct ConstraintSlot {
    std::string code, value; // value as typed
    std::string phase;       // of a constraint; empty for a slot that names a phase
    std::string unit = "S";  // conversion code of the value
    bool operator==(const ConstraintSlot&) const = default;
};

/// True for a slot that names a further phase: a phase of the tables or a solution ("S", "S1",
/// "S2"), and no critical curve.
bool NamesPhase(std::string_view code);
/// True for a variable that may be held constant for a whole set, critical curves among them.
bool IsConstraint(std::string_view code);

/// What a mixture set is about, and the two forms that it has.
///
/// In memory every variable and constraint bears its phase, and slots that name a phase come first,
/// without a value. In the line of a file phases of variables are folded into the values of these
/// slots, and those of constraints follow from the order of the slots:
///
///   value of a slot that names a phase: a negative number whose amount tells the variables that
///   are meant in it, as a sum of 1 for the first and 2 for the second; of three variables it is
///   1, 2, 3 for one of them, 4 all, 5 the first and third, 6 the second and third, 7 the first and
///   second. "&" for none.
///   a constraint is meant in the phase of the slot before it; in front of all phases, in PHASE1.
///
/// Codes that need the solvent to be understood have a short form in the file (M for M1 of a
/// binary in component 2, HEX, PHM, PHJ, HA for an enthalpy of solution).
struct MixtureLine {
    static constexpr int MostSlots = 3;

    int MixType = 2; // number of components, 2 or 3
    int nVar = 1;    // 1 to 3
    std::string PRPCODE, PROPERTY_FUNCT, PHASE1, SOLVENT;
    std::array<MixtureVariable, 3> variables;
    std::array<ConstraintSlot, MostSlots> slots;

    bool operator==(const MixtureLine&) const = default;

    /// By the rule of phases each set is determined: a variable more is a slot less.
    int SlotCount() const;
    /// From memory to the line: order, phases into values, short codes.
    void ToFile();
    /// The way back. False when the solvent leaves the reading of a short code unsure; it is read
    /// all the same.
    bool ToMemory();

    // The steps of these ways.

    /// Each phase is followed by what is constant in it. The order among equals stays.
    void Arrange();
    /// Phases in front; the order among equals stays.
    void Dearrange();
    void Encode();
    void Decode();
    /// The code as the line bears it; fills an empty SOLVENT where the short code says it.
    std::string PushBack(const std::string& code);
    /// The code that is meant by one of a line. May turn the function of a result.
    std::string Translate(const std::string& code);
    /// A short code under this solvent could mean two components.
    bool IsAmbiguous(std::string_view code) const;

private:
    template <class Change>
    void ForEachCode(Change change);
    bool TranslateCodes();
    std::vector<std::string> Codes() const;
};

} // namespace vexora
