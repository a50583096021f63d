#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/BioSet.h"

namespace vexora {

/// Who takes part in a bio reaction.
struct BioParticipant {
    std::string RN, SMPNM;   // registry number, number of the sample (empty for none)
    std::string coefficient; // as typed, negative of a reactant
    std::string phase;       // code
    bool operator==(const BioParticipant&) const = default;
};

/// An enzyme-catalysed or other biochemical reaction measured in solution. In biochemical notation
/// its participants stand for all their forms at the pH of the solution, so that hydrogen and
/// charge need not balance; the components that fix the equilibrium are part of the record.
///
///   BR SetNo Notation
///   BP n key 0 SMPNM RN name formula mmass 0 coeff phase charge EC PDB
///   BC ... BV ... BE BM B0 BD ... ^X ...        (see BioSet)
///
/// Notation is 1 for the chemical one. A BP line is a participant (n = 1 with a sample, 0 without),
/// or, with coefficient 0, the compound of a component that takes no part; from it a source gets
/// the compound that it lacks. Blanks in a name are written as "_".
class clsBR : public BioSet {
public:
    bool Notation = false; // chemical; biochemical when false
    std::vector<BioParticipant> Participants;

    bool IsReaction() const override { return true; }
    BioQuantityTexts TableOf(BioRole role) const override;
    std::vector<std::string> ParticipantKeys() const override;
    bool Uses(std::string_view rn) const override;
    bool UsesSample(std::string_view rn, std::string_view sample) const override;

    /// The formulas and coefficients of all participants, as the balancer takes them.
    std::vector<std::string> Formulas() const;
    std::vector<std::string> Coefficients() const;
    /// "D-glucose = D-fructose"; reactants joined by " + ", coefficients but 1 in front.
    std::string Equation() const;

    /// "RBR" and the registry numbers of the participants, parted by commas.
    std::string Key() const override;
    /// The same with the number: sets of one reaction stand side by side.
    std::string KeyInTree() const override;
    static std::string PlaceKey(int setNo); // its key in the source
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsR& source);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// A set of its own with the same content and no node.
    std::shared_ptr<clsBR> Copy() const;
    /// Takes over all fields and rows of another set and stays where it is.
    void Replace(const clsBR& other);

    /// Reads the BR line; false for one without a number.
    bool Load(std::string_view line);
    void PrintBR(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintBR(out); }
    void ExportAll(XmlWriter& xml) const override;

protected:
    void AddParts(std::vector<BioPart>& parts) const override;
    std::vector<std::string> ParticipantTexts() const override;
};

} // namespace vexora
