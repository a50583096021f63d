#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/DataSet.h"
#include "records/MixtureLine.h"

namespace vexora {

class clsM;

/// A property of a mixture measured against one to three state variables, under constraints, in a
/// described set of phases.
///
///   ^1 SMPNM1 SMPNM2 PRPCODE unit PROPERTY_FUNCTION PRPSETNO DATATYPE PHASE1
///      { CONSTRAINTn CNnVALUE }  VARIABLE1 VARIABLE1_UNIT
///      SOLVENT STANDARD_STATE COMPOSITION REFERENCE_TEMPERATURE REFERENCE_PRESSURE REFERENCE_PHASE
///   ^2 ... VARIABLE1 VARIABLE1_UNIT VARIABLE2 VARIABLE2_UNIT ...
///   ^3 ... and VARIABLE3 VARIABLE3_UNIT
///
/// A ternary has SMPNM3 behind SMPNM2. There are MixType + 1 - nVar constraints (MixtureLine.h);
/// their values stand in system units. SMPNMn is the number of the sample of component n; units are
/// conversion codes of one letter, "S" the system unit; SOLVENT is "1", "2" or "3", or "C", "D",
/// "E" for components 1+2, 1+3, 2+3. REFERENCE_TEMPERATURE [K], REFERENCE_PRESSURE [kPa] and
/// REFERENCE_PHASE are the state that relative results go by. "&" is an empty field.
///
/// All figures of the set stand in the units that its line names: rows, statements, precisions.
class clsMV : public DataSet {
public:
    int MixType = 2; // number of components, 2 or 3
    std::string SMPNM1, SMPNM2, SMPNM3, PHASE1, SOLVENT, STANDARD_STATE, COMPOSITION,
        REFERENCE_TEMPERATURE, REFERENCE_PRESSURE, REFERENCE_PHASE;
    std::array<MixtureVariable, 3> Variables;
    std::array<ConstraintSlot, MixtureLine::MostSlots> Constraints;
    clsM* Parent = nullptr;
    bool SavedInXML = false; // while an export runs: this set is in it already
    bool isPhaseErrorTold = false, isContextTold = false; // once a session is enough

    /// Sample number of component n, 1 to 3; empty outside.
    const std::string& SMPNM(int n) const;
    void SMPNM(int n, std::string_view number);
    /// Code, value and unit of constraint n, 1 to MixType + 1 - nVar; empty outside.
    const std::string& CONSTRAINT(int n) const;
    const std::string& CNVALUE(int n) const;
    const std::string& CN_UNIT(int n) const;
    int ConstraintCount() const;

    std::string_view DataContext() const override { return MixType == 2 ? "Bin" : "Tern"; }
    std::string SystemName() const override;
    /// 0 is the property.
    const std::string& VARIABLE(int n) const override;
    const std::string& VAR_UNIT(int n) const override;
    /// 0 the property, 1 to nVar the variables, behind them the constraints.
    const std::string& PhaseFor(int n) const override;
    std::vector<std::string> Phases() const override;
    /// Rows of a ternary in several phases, and of a binary in three, may be parts of one tie line.
    bool HasTies() const override;
    using DataSet::MolarMass;
    /// By the composition of PHASE1, as variables, constraints or the property itself tell it.
    double MolarMass(const clsData& row) const override;
    bool MolarMassFollowsRows() const override { return true; }
    const Record* Owner() const override;
    std::vector<HeldConstant> Constants() const override;
    SetSurroundings Surroundings() const override;
    std::string ConstantOf(std::string_view code) const override;
    std::string PropertyContext() const override { return Context(); }
    bool StatesInUnitsOfLine() const override { return true; }
    bool RatioHasNoUnit() const override { return true; }
    std::shared_ptr<DataSet> Copy() const override;
    void ExportAll(XmlWriter& xml) const override;

    /// Reads the line of the definition; MixType has to be set. False when it ends before the last
    /// variable. `isAmbiguous` tells that a short code could mean two components.
    bool Load(std::string_view line, bool* isAmbiguous = nullptr);
    void TakePending(const clsA& pending) override;
    Placement AddX(const clsX& item) override;

    /// Numbers of phases of a kind: solid, liquid, gas (air counts), fluid; negative when PHASE1 is
    /// of that kind.
    int iSolid() const;
    int iLiquid() const;
    int iGas() const;
    int iFluid() const;
    int nPhases() const;
    /// The kind of equilibrium: "vle", "lle", "sle", "sub", "sse", or empty. `isKnown` gets false
    /// for several phases that make none.
    std::string Context(bool* isKnown = nullptr) const;
    /// The phases, then what is constant: "Liquid + Gas, P = 101.325".
    std::string PhaseStatement() const;
    /// Some row is part of a tie line.
    bool IsTied() const;

    std::string Key() const override;
    std::string ShowKey() const override;
    /// Its rows belong together with those of other sets.
    bool StandsOut() const override { return IsTied(); }
    void SetMe() override;
    void AttachTo(clsM& mixture);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Takes over all fields and rows of another set and stays where it is: same parent, position
    /// and node, under the key that it has now.
    void Replace(const clsMV& other);
    /// Renumbers what names a component: component n becomes number[n].
    void Sort(const std::array<int, 4>& number);

    /// Rows at the end of a composition tell of a pure component, those of a ternary without one of
    /// its components of a binary: adds what they tell to the records of these. True when it added
    /// any; `told` gets what a person has to know, the text of the set on its last line. The rows
    /// stay, and what is there already is not added again.
    bool Detect(std::vector<std::string>& told);

    /// What the line says, in the form of memory; and the way back.
    MixtureLine Definition() const;
    void Define(const MixtureLine& definition);

protected:
    std::string DefinitionLine() const override;
    void PrintEnd(LineWriter&) const override {}
    void AdjustConstants() override;

private:
    const ConstraintSlot* Slot(int n) const; // null for one that the set has not
    std::string ValueInLine(const HeldConstant& constant) const;
};

/// The number for a new set of a mixture: one above the highest among those of equal samples,
/// property and number of variables.
int NextSetNumber(const clsM& mixture, const clsMV& set);

} // namespace vexora
