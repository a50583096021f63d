#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vexora {

/// Average molar mass and purity of a mixture of two or three components from its composition. The
/// composition is told by codes, one in the slot of the component that it speaks of ("X2", "M1S"),
/// once for a set; values follow row by row. One instance serves the dialogs of mixtures and the
/// export (KVOGlobal::MixtureMass). Slots and components count from 1; calls with other numbers
/// change nothing.
class clsMMM {
public:
    static constexpr std::uint16_t NoLocation = 65535;

    /// The molar mass of component n [g/mol], 0 when it is not known.
    double getMM(int n) const;
    /// Two or three components with their molar masses [g/mol], 0 for one that is not known.
    /// What was said about the purity of others is forgotten, the codes stay.
    void SetComponents(int nComp, const std::array<double, 3>& molarMasses);
    /// The composition variable of slot n and the column in which the caller holds it. Fractions
    /// are from 0 to 1, molality in mol/kg, molarity in mol/dm3.
    void SetVariable(int n, std::uint16_t location, std::string_view code, double value);
    /// The value alone, as it goes from row to row.
    void SetVal(int n, double value);
    /// NoLocation where slot n has no variable.
    std::uint16_t GetLocation(int n) const;
    /// Empties codes and locations.
    void Clear();
    /// In per cent. Zero or less counts as not stated and becomes 95.
    void SetIndPurity(int n, double purity);

    /// Average molar mass [g/mol]; 0 when it is not known, for want of a molar mass or because the
    /// codes do not fix the composition.
    double Calculate() const;
    /// Purity of the mixture [%]: that of the components weighted by the composition, and their
    /// mean where the codes tell no weights. One figure serves mass and amount.
    double Purity() const;

private:
    /// Kinds of composition with a rule; Other is a code without one.
    enum class Kind : std::uint8_t {
        None,
        Mole,
        Mass,
        Volume,
        Molality,
        Molarity,
        MoleInSolvent,
        MolalityInSolvent,
        Other
    };
    struct Slot {
        std::string code;
        Kind kind = Kind::None;
        std::uint16_t location = NoLocation;
        double value = 0;
        double molarMass = 0; // [g/mol]
        double purity = 0;    // [%]
    };

    static Kind KindOf(std::string_view code, int n);
    Slot* Find(int n);
    const Slot* Find(int n) const;
    double BinaryMass() const;
    double TernaryMass() const;
    double BinaryPurity() const;
    double TernaryPurity() const;
    double MeanPurity() const;

    int nComp_ = 0;
    std::array<Slot, 3> slots_;
};

} // namespace vexora
