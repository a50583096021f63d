#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace vexora {

/// An empirical formula as a list of elements with their counts, the first node being the formula.
/// Build takes a typed text apart, Formula writes the canonical text (Hill order, hydrogen isotopes
/// behind hydrogen), MMass is the molar mass. A text that is no formula leaves Symbol "Error".
class clsAtom {
public:
    std::string Symbol; // element, "{...}" for a pseudo-symbol, "" not built, "Error" failed
    double Count = 0;   // number of atoms, fractions allowed
    bool isLast = true;
    std::unique_ptr<clsAtom> nextAtom;

    clsAtom();
    ~clsAtom();
    clsAtom(clsAtom&&) noexcept;
    clsAtom& operator=(clsAtom&&) noexcept;

    /// Reads a formula such as "CH3(CH2)2OH"; upper and lower case matter. A "*" or a raised dot
    /// with a number and a formula behind it is that many of the latter ("CuSO4*5H2O").
    /// A bracket without its other half, a count of 0, a symbol without atomic mass and a wrong
    /// letter make an error; a symbol in braces ("{R}2O") is a group of unknown composition and
    /// passes.
    void Build(std::string_view text);
    /// Counts of all elements times a factor, as a bracket with a number behind it asks for.
    void Multiply(double factor);
    /// Merges another list into this one.
    /// Counts of the same element add up; new ones are put behind. B may be moved from.
    void AddB(clsAtom& B);
    /// Canonical text, empty for a text that is no formula.
    std::string Formula() const;
    /// Molar mass [g/mol], not rounded; a symbol without a row counts 0.
    double MMass() const;

private:
    struct SymbolPlaces;
    void AddB(clsAtom& B, SymbolPlaces& places);
    void BuildPart(std::string_view text);
    void SetError();
    bool HasPlainCounts() const;
};

/// The canonical text of a typed formula, empty when it is none.
/// "OH2" and "H2O" have one text: formulas are compared by it.
std::string CanonicalFormula(std::string_view text);
/// What a formula means when its point is taken as the dot of a hydrate, as a sum ("CuSO4.5H2O",
/// else 4.5 oxygens and water); empty when it holds no count with a point in front of an element,
/// or cannot be read so ("Fe0.95O").
std::string HydrateReading(std::string_view text);
/// Molar mass of a formula [g/mol], 0 when it is none.
/// Groups in braces add nothing, so that the figure of such a formula is too small.
double MolarMassOfFormula(std::string_view text);

} // namespace vexora
