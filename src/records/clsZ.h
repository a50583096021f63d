#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "records/SingleValue.h"

namespace vexora {

class SubstanceSample;

/// One value of one property of one sample, by itself (nVar 0) or at a fixed value of one variable
/// (nVar 1).
///
///   ^M factor     (for a unit that has no letter of its own; before the header for a molar mass)
///   ^A header
///   ^Z SMPNM PRPCODE PROPERTY_UNIT PRPSETNO PHASE1 PHASE2 PHASE3
///      PRPVALUE PRPUNCERTY PRECIS DETERMNM
///   ^F SMPNM PRPCODE PROPERTY_UNIT PRPSETNO PHASE1 INDVARIABLE VARIABLE_UNIT
///      PRPVALUE PRPUNCERTY PRECIS DETERMNM
///   ^M 0          (closes a factor)
///   ^X            (of the variable, then of the property)
///
/// ^z and ^f hold values in the unit of the paper, ^Z and ^F in the system unit.
///
/// SMPNM is the number of the sample, or "*" or "S1" for the one above; the units are conversion
/// codes of one letter, "S" the system unit; PRPSETNO tells values of one property apart. "&" in
/// PHASE2 and PHASE3 says that there is no such phase. INDVARIABLE is the fixed variable as typed;
/// which one it is follows from the property. PRPUNCERTY is the figure of the evaluation, PRECIS
/// the repeatability, DETERMNM the number of determinations.
class clsZ : public SingleValue {
public:
    int nVar = 0;
    /// The phases are those that the property connects: a boiling point has two, a triple point
    /// three.
    ShortText SMPNM, PHASE1, PHASE2 = "&", PHASE3 = "&", INDVARIABLE, VARIABLE_UNIT;
    SubstanceSample* Parent = nullptr;

    std::string_view DataContext() const override { return "Pure"; }
    std::string SystemName() const override;
    int VariableCount() const override { return nVar; }
    std::string VARIABLE(int) const override { return Variable(); }
    std::string VAR_UNIT(int) const override { return VARIABLE_UNIT; }
    double MolarMass() const override;
    const Record* Owner() const override;
    void ExportAll(XmlWriter& xml) const override { ExportZ(xml); }
    void ExportZ(XmlWriter& xml) const;

    /// Reads the value line; false when it ends before the value.
    bool Load(std::string_view line);

    std::string Key() const override;
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(SubstanceSample& sample);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Puts it under the key that it has now, at the same place among its siblings.
    void Rekey();

    /// Code of the phase beside PHASE1. At a fixed variable the line has no place for it: of a
    /// surface the tag PB tells the gas and FP the air; "" or "&" when it is not stated.
    std::string PhaseBeside() const;
    /// Code of the fixed variable (nVar 1).
    std::string Variable() const;

protected:
    std::vector<std::string> LineFields(std::string unitField) const override;
};

} // namespace vexora
