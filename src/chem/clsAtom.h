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

    /// Reads a formula such as "CH3(CH2)2OH"; upper and lower case matter.
    void Build(std::string_view text);
    void Multiply(double factor);
    /// Merges another list into this one.
    void AddB(clsAtom& B);
    /// Canonical text, empty for a text that is no formula.
    std::string Formula() const;
    /// Molar mass [g/mol], not rounded; a symbol without a row counts 0.
    double MMass() const;

private:
    void SetError();
};

/// The canonical text of a typed formula, empty when it is none.
std::string CanonicalFormula(std::string_view text);
/// Molar mass of a formula [g/mol], 0 when it is none.
double MolarMassOfFormula(std::string_view text);

} // namespace vexora
