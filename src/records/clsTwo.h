#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Record.h"
#include "records/UnitConversion.h"
#include "records/clsA.h"
#include "records/clsData.h"
#include "records/clsX.h"
#include "ui/Collection.h"

namespace vexora {

class clsS;
class LineWriter;
class XmlWriter;

/// A property of one sample measured against one or two state variables.
///
///   ^1 SMPNM PRPCODE unit PROPERTY_FUNCT PRPSETNO<tab>DATATYPE PHASE1 PHASE2 CONSTRAINT VAR1_UNIT
///      REF_TEMP REF_PRESSURE REF_PHASE
///   ^2 SMPNM PRPCODE unit PROPERTY_FUNCT PRPSETNO<tab>DATATYPE PHASE1 PHASE2 CONSTRAINT
///      VARIABLE1 VAR1_UNIT VARIABLE2 VAR2_UNIT REF_TEMP REF_PRESSURE REF_PHASE
///
/// The ^A header and a ^M factor stand in front, ^X lines and the rows behind, ^M 0 closes. The
/// variable of ^1 is not in the line: it follows from constraint and property, else a tag "V1:" of
/// the comment names it. PV and HVP of a gas are written as P and HTR.
class clsTwo : public Record {
public:
    int nVar = 1;
    clsA Header;
    std::string SMPNM, PRPCODE, PROPERTY_UNIT,
        PROPERTY_FUNCT = "DIR", PRPSETNO, DATATYPE, PHASE1, PHASE2 = "&", CONSTRAINT, VARIABLE1,
        VAR1_UNIT, VARIABLE2, VAR2_UNIT, REF_TEMP, REF_PRESSURE, REF_PHASE;
    double Factor = 0; // factor of a non-standard unit to the system unit, 0 when none
    bool isOriginalUnit = true;
    bool commentInSystemUnits = false; // see clsZ
    std::array<clsX, 5> UX;            // 0 the property, 1 to 4 variables and constraints
    std::vector<clsX> OtherX;          // ^X lines with no place in the set, kept as read
    ui::Collection<clsData> recData;
    double FallbackMolarMass = 0; // [g/mol] of the file, for a compound whose formula gives none
    clsS* Parent = nullptr;

    clsTwo();

    /// Code and conversion code of variable n, 1 or 2; empty outside.
    const std::string& VARIABLE(int n) const;
    const std::string& VAR_UNIT(int n) const;
    /// The value of a state variable that the comment states for all rows, in its system unit;
    /// empty when there is none, or it varies.
    std::string ConstantOf(std::string_view code) const;
    /// "A" for absolute values (direct, mean), "D" for differences, "R" for ratios.
    std::string Relation() const;

    /// Puts a statement in its place: by its number, else by its code; what has none is kept as
    /// read.
    void AddX(const clsX& item);
    /// Adds a row; the set is in original units as long as any of its rows is.
    void AddRow(std::shared_ptr<clsData> row);
    /// Reads the line of the definition; false when it ends before the units.
    bool Load(std::string_view line);
    /// Header fields and a pending factor of the reader.
    void TakePending(const clsA& pending);
    /// Writes header, factor and definition. Throws SaveRefused for a unit that has no factor.
    void PrintTwo(LineWriter& out) const;
    /// Writes the set with its statements and rows. Values of variables in units without a letter
    /// are brought to system units in the lines.
    void PrintAll(LineWriter& out) const;

    std::string Key() const override;
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsS& sample);
    /// Takes over all fields and rows of another set and stays where it is: same parent, position
    /// and node, under the key that it has now.
    void Replace(const clsTwo& other);

    /// Molar mass [g/mol] for units by mass, 0 when not known.
    double MolarMass() const;
    /// The unit is based on mass, so that the molar mass stands in front of the set.
    bool NeedsMolarMass() const;
    /// The conversion of the property (none for a ratio) and of variable n, as entered.
    UnitConversion PropertyConversion() const;
    UnitConversion VariableConversion(int n) const;
    /// Brings all rows and statements to system units; the unit codes stay as the memory of the
    /// paper's units. False, and nothing changes, when a unit or a molar mass is not known.
    bool AdjustUnits();

    void ExportAll(XmlWriter& xml) const;

private:
    std::string DerivedVariable() const;
    std::string CommentForRecord() const;
    std::string CommentWithVariable() const;
    std::string SystemPrecision(const std::string& code, const std::string& typed) const;
    std::string Definition() const;
    void PrintStatements(LineWriter& out) const;
    void PrintRows(LineWriter& out) const;
    void AdjustStatements();
    bool HasGas() const;
};

} // namespace vexora
