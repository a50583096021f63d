#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Substance.h"
#include "records/clsA.h"
#include "records/clsComplex.h"
#include "ui/Collection.h"

namespace vexora {

class LineWriter;
class clsBP;
class clsCrS;

/// The content of a component in a sample, and the sample of its compound that was taken.
struct SampleComponent {
    std::string RN; // registry number of the compound
    ComplexContent content;
    std::string SMPNM; // number of its sample, empty for none
    bool operator==(const SampleComponent&) const = default;
};

/// A sample of a complex system: what it was prepared from, and its data: single values, tables,
/// phase equilibria and crystal structures.
///
///   ^A header                     (compiler, contributor, date, comment)
///   SB SetNo
///   SS RN value kind SMPNM        (a component)
///   GH PrepT PrepP aComp Method   (of a gas hydrate; Method is the rest of the line)
///   SE
///
/// Its number is SMPNM, which its values and sets name. It is that of a gas hydrate when its system
/// is one, or when it was read with a GH line.
class clsComplexSample : public SubstanceSample {
public:
    std::vector<SampleComponent> Components;
    bool HasPreparation = false; // what follows is stated, whatever the type of the system
    std::string PrepT, PrepP;    // preparation temperature [K] and pressure [kPa], as typed
    std::string aComp;           // composition of the preparation, in one word
    std::string Method;          // how it was prepared
    clsA Header;                 // COMPILER, CONTRIBUTOR, DATEADDED and the comment only
    ui::Collection<clsBP> recBP; // of type "G"
    ui::Collection<clsCrS> recCrS;
    clsComplex* Parent = nullptr;

    int SetNo() const;
    void SetNo(int number);
    bool isGH() const { return HasPreparation || (Parent && Parent->IsGasHydrate()); }
    /// "Sample n".
    std::string Name() const { return "Sample " + SMPNM; }
    /// The component that is this compound, null for none.
    const SampleComponent* FindComponent(std::string_view rn) const;
    /// Components, preparation and header of another one.
    void TakeDefinition(const clsComplexSample& other);

    std::string Key() const override { return Name(); }
    std::string ShowKey() const override { return Name(); }
    void SetMe() override;
    void AttachTo(clsComplex& complex);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    Substance* System() const override { return Parent; }
    std::string_view NodeType() const override { return "RXS"; }
    /// That of its components with their contents, as of clsComplex; of a sample without any, that
    /// of the system.
    std::string Formula() const override;
    double MolarMass() const override;

    /// Reads the SB line; false for one without a number.
    bool Load(std::string_view line);
    /// Reads an SS line; false for one whose compound is no number. `isWhole` gets false for words
    /// behind the last field.
    bool LoadComponent(std::string_view line, bool* isWhole = nullptr);
    void LoadPreparation(std::string_view line); // GH
    void PrintComplex(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintComplex(out); }
    void EachChild(const std::function<void(Record&)>& visit) const override;

    /// The phase equilibrium or crystal structure with this number, or null.
    std::shared_ptr<clsBP> FindBP(int number) const;
    std::shared_ptr<clsCrS> FindCrS(int number) const;
};

} // namespace vexora
