#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Substance.h"
#include "ui/Collection.h"

namespace vexora {

class LineWriter;
class clsComplexSample;
class clsR;

/// How much of a compound there is in a complex or in a sample of it.
struct ComplexContent {
    std::string value; // as typed, empty when it is not stated
    std::string kind;  // "X" mole fraction, "n" moles; empty when there is none
    bool operator==(const ComplexContent&) const = default;
};

/// A component of a complex.
struct ComplexComponent {
    std::string RN;       // registry number of its compound
    std::string SMPNM;    // number of its sample, empty for none
    std::string function; // in words: "Enclathrated species", "Gas", "Water", "Other", or as typed
    ComplexContent content;
    bool operator==(const ComplexComponent&) const = default;
};

/// A complex system: a substance of non-stoichiometric composition, as a gas hydrate.
///
///   CS SetNo CType                       (the rest of the line)
///   CC RN SMPNM function content         (a component; content is the rest: its value and "X" or
///   "n") CE
///
/// Reactions, bio sets and samples name it by its RN, which is "-" and SetNo: a number, but never
/// one of the registry. Blanks in a function are written as "_".
class clsComplex : public Substance {
public:
    std::string CType; // "Gas Hydrate", or as typed
    std::vector<ComplexComponent> Components;
    ui::Collection<clsComplexSample> recS;

    /// Its number in the source, 0 as long as it has none; the RN follows.
    int SetNo() const;
    void SetNo(int number);
    /// "Gas Hydrate (methane + water)".
    std::string Name() const;
    bool IsGasHydrate() const { return CType == "Gas Hydrate"; }
    /// The formulas of the components with their contents, "(CH4)0.148(H2O)0.852"; "Error" when
    /// one of these is not known, or when there is no component.
    std::string Formula() const;
    /// Molar mass [g/mol] of that formula; 0 when it is not known, or when contents of both kinds
    /// stand in it.
    double MMass() const;
    /// The component that is this compound, null for none.
    const ComplexComponent* FindComponent(std::string_view rn) const;
    /// A compound, or a sample of it (by its number), stands among the components, or a sample of
    /// this complex names it.
    bool Uses(std::string_view rn) const;
    bool UsesSample(std::string_view rn, std::string_view sample) const;
    /// Type and components of another one.
    void TakeDefinition(const clsComplex& other);

    std::string Key() const override;
    std::string ShowKey() const override { return Name(); }
    void SetMe() override;
    void AttachTo(clsR& source);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    std::string FormulaText() const override { return Formula(); }
    double MolarMass() const override { return MMass(); }
    std::vector<std::shared_ptr<SubstanceSample>> Samples() const override;

    /// Reads the CS line; false for one without a number.
    bool Load(std::string_view line);
    /// Reads a CC line; false for one whose compound is no number.
    bool LoadComponent(std::string_view line);
    void PrintComplex(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintComplex(out); }
    void EachChild(const std::function<void(Record&)>& visit) const override;

    /// The sample with this number, or null; its place from 1 goes into index.
    std::shared_ptr<clsComplexSample> FindS(int number, std::size_t* index = nullptr) const;
    /// Number for the next sample: one above the count, or the next free one.
    int NextSampleNumber() const;
};

/// Number for the next complex of a source: one above the count, or the next free one.
int NextComplexNumber(const clsR& source);
/// The value and kind as one text, and back: "0.148 X", "&" for none.
std::string ContentText(const ComplexContent& content);
ComplexContent ContentOf(std::string_view text);
/// Contents with the compounds that they are of: formula and molar mass as clsComplex gives them.
std::string FormulaOfContents(const std::vector<std::pair<std::string, ComplexContent>>& contents,
                              const clsR* source);
double MolarMassOfContents(const std::vector<std::pair<std::string, ComplexContent>>& contents,
                           const clsR* source);

} // namespace vexora
