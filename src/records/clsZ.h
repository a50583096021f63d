#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Record.h"
#include "records/clsA.h"
#include "records/clsX.h"

namespace vexora {

class clsS;
class LineWriter;
class XmlWriter;

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
class clsZ : public Record {
public:
    clsA Header; // NOTE ... DATACOMMENT
    int nVar = 0;
    std::string SMPNM, PRPCODE, PROPERTY_UNIT, PRPSETNO, PHASE1,
        PHASE2 = "&", PHASE3 = "&", INDVARIABLE, VARIABLE_UNIT, PRPVALUE, PRPUNCERTY, PRECIS,
        DETERMNM;
    double Factor = 0; // factor of a non-standard unit to the system unit, 0 when none
    bool isOriginalUnit = true;
    /// Precision tags of the comment stand in system units (see clsX::inSystemUnits).
    bool commentInSystemUnits = false;
    std::array<clsX, 2> UX;       // 0 the property, 1 the variable
    std::vector<clsX> OtherX;     // statements about quantities that a single value does not have
    double FallbackMolarMass = 0; // [g/mol] of the file, for a compound whose formula gives none
    clsS* Parent = nullptr;

    /// Puts a statement in its place; what the line of the item does not carry stays as it is.
    void AddX(const clsX& item);
    /// Reads the value line; false when it ends before the value.
    bool Load(std::string_view line);
    /// Takes over what stood in front of the value line. The pending factor is the user's own for
    /// a value in the system unit, and the molar mass for a unit that is based on mass.
    void TakePending(const clsA& pending);
    /// Throws SaveRefused for a unit that has no factor.
    void PrintZ(LineWriter& out);

    std::string Key() const override;
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsS& sample);
    /// Puts it under the key that it has now, at the same place among its siblings.
    void Rekey();

    /// Value of the property in the system unit, 0 when it cannot be converted.
    double SystemValue() const;
    /// Molar mass of the compound [g/mol], 0 when it is not known.
    double MolarMass() const;
    /// The unit is based on mass, so that the molar mass stands in front of the set.
    bool NeedsMolarMass() const;
    /// Code of the fixed variable (nVar 1).
    std::string Variable() const;

    void ExportZ(XmlWriter& xml) const;

private:
    std::string CommentForRecord() const;
    double UserFactor() const { return isOriginalUnit ? Factor : 0; }
    std::string PrecisionForRecord(const std::string& precision) const;
    bool PrintFactor(LineWriter& out) const;
    std::string SystemPrecision(const std::string& code, const std::string& typed) const;
};

} // namespace vexora
