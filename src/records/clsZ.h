#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

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
///   ^M factor                 (for a unit that has no letter of its own)
///   ^Z SMPNM PRPCODE PROPERTY_UNIT PRPSETNO PHASE1 PHASE2 PHASE3 PRPVALUE PRPUNCERTY PRECIS
///   DETERMNM ^F SMPNM PRPCODE PROPERTY_UNIT PRPSETNO PHASE1 INDVARIABLE VARIABLE_UNIT PRPVALUE ...
///   DETERMNM ^M 0                      (closes a factor) ^X ...                    (of the
///   variable, then of the property)
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
    std::array<clsX, 2> UX; // 0 the property, 1 the variable
    clsS* Parent = nullptr;

    /// Puts a statement in its place; what the line of the item does not carry stays as it is.
    void AddX(const clsX& item);
    bool Load(std::string_view line);
    void PrintZ(LineWriter& out);

    std::string Key() const override;
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsS& sample);

    /// Value of the property in the system unit; nothing when it cannot be converted.
    double SystemValue() const;
    /// Code of the fixed variable (nVar 1).
    std::string Variable() const;

    void ExportZ(XmlWriter& xml) const;

private:
    std::string CommentForRecord() const;
};

} // namespace vexora
