#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/BioSet.h"

namespace vexora {

class clsComplexSample;

/// A property of a biological substance in a defined solution: a change between two states from
/// calorimetry ("D"), a solubility ("S"); or the phase equilibrium of a complex sample ("G").
///
///   BN SetNo
///   BP key 0 SMPNM & name RN formula mmass charge EC PDB
///   BH PrpType SMPNM State1 State2 PHASE1 PHASE2 PHASE3 PHASE4
///   BC ... BV ... BE BM BD ... ^X ...           (see BioSet)
///
/// The first BP line is the substance, the others are the compounds of the components. Blanks in
/// names and states are written as "_".
class clsBP : public BioSet {
public:
    std::string PrpType;        // "D", "S" or "G"
    std::string RN, SMPNM;      // of the substance, or of the complex and its sample
    std::string State1, State2; // initial and final state, in words
    std::string PHASE1, PHASE2, PHASE3, PHASE4; // codes; initial and final phase of "D"
    clsComplexSample* Sample = nullptr;         // the owner of a set of type "G"

    bool IsReaction() const override { return false; }
    BioQuantityTexts TableOf(BioRole role) const override;
    std::vector<std::string> ParticipantKeys() const override;
    bool Uses(std::string_view rn) const override;
    bool UsesSample(std::string_view rn, std::string_view sample) const override;

    std::string Key() const override { return PlaceKey(SetNo); }
    static std::string PlaceKey(int setNo);
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsR& source);
    void AttachTo(clsComplexSample& sample);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    std::shared_ptr<clsBP> Copy() const;
    void Replace(const clsBP& other);

    /// Reads the BN line; false for one without a number.
    bool Load(std::string_view line);
    void PrintBP(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintBP(out); }
    void ExportAll(XmlWriter& xml) const override;

protected:
    void AddParts(std::vector<BioPart>& parts) const override;
    std::vector<std::string> ParticipantTexts() const override;
};

} // namespace vexora
