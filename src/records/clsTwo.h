#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/DataSet.h"

namespace vexora {

class SubstanceSample;

/// A property of one sample measured against one or two state variables.
///
///   ^1 SMPNM PRPCODE unit PROPERTY_FUNCT PRPSETNO<tab>DATATYPE PHASE1 PHASE2 CONSTRAINT VAR1_UNIT
///      REF_TEMP REF_PRESSURE REF_PHASE
///   ^2 SMPNM PRPCODE unit PROPERTY_FUNCT PRPSETNO<tab>DATATYPE PHASE1 PHASE2 CONSTRAINT
///      VARIABLE1 VAR1_UNIT VARIABLE2 VAR2_UNIT REF_TEMP REF_PRESSURE REF_PHASE
///
/// The variable of ^1 is not in the line: it follows from constraint and property, else a tag "V1:"
/// of the comment names it. PV and HVP of a gas are written as P and HTR.
///
/// SMPNM is the number of the sample, or "*" or "S1" for the one above; unit and VARn_UNIT are
/// conversion codes of one letter, "S" the system unit; PROPERTY_FUNCT says how the number relates
/// to the property, PRPSETNO tells sets of one property apart, DATATYPE how the paper presents
/// them. CONSTRAINT is "PB" on a phase boundary, "FP", "FT", "FV" in a single phase with one
/// quantity fixed, "SP" with none, "DP" for a derived property; REF_TEMP [K], REF_PRESSURE [kPa]
/// and REF_PHASE are the state that relative results go by. "&" is an empty field, but a value in a
/// phase.
class clsTwo : public DataSet {
public:
    std::string SMPNM, PHASE1, PHASE2 = "&", CONSTRAINT, VARIABLE1, VAR1_UNIT, VARIABLE2, VAR2_UNIT,
                               REF_TEMP, REF_PRESSURE, REF_PHASE;
    SubstanceSample* Parent = nullptr;

    std::string_view DataContext() const override { return "Pure"; }
    std::string SystemName() const override;
    const std::string& VARIABLE(int n) const override;
    const std::string& VAR_UNIT(int n) const override;
    const std::string& PhaseFor(int n) const override;
    std::vector<std::string> Phases() const override { return {PHASE1, PHASE2}; }
    using DataSet::MolarMass;
    double MolarMass(const clsData& row) const override;
    const Record* Owner() const override;
    std::shared_ptr<DataSet> Copy() const override;
    void ExportAll(XmlWriter& xml) const override;

    void PrintAll(LineWriter& out) const { Print(out); }

    /// Reads the line of the definition; false when it ends before the units.
    /// Codes that no table holds are kept: the check tells of them.
    bool Load(std::string_view line);
    void TakePending(const clsA& pending) override;

    /// The set is said to hold at one pressure, and which one is not stated.
    bool LacksPressure() const;

    std::string Key() const override;
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(SubstanceSample& sample);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Takes over all fields and rows of another set and stays where it is: same parent, position
    /// and node, under the key that it has now.
    void Replace(const clsTwo& other);

protected:
    std::string DefinitionLine() const override;
    std::string CommentOfLine() const override;

private:
    std::string DerivedVariable() const;
    bool HasGas() const;
};

} // namespace vexora
