#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class LineWriter;
class XmlWriter;
struct UnitConversion;

/// The uncertainty statements of one quantity of a data set: of the property (N = 0) or of a
/// variable. The line and the meaning of a trailing "%" (per cent of the value) are those of the
/// record file:
///
///   ^X N PRPCODE PHASE iDS DSEvaluator DSLevel DSValue iRep RType RValue Repetitions
///      iUnc ULevel UValue iCU CType CLevel iCD CDRms CDSpec CValue
///
/// PHASE is the phase that the quantity is meant in. iDS to iCD are "+" or "-": what is meant to
/// hold; figures that bear no such mark are kept. DS is the device specification, R the
/// repeatability, U the uncertainty that the author states, C the combined one and CD the deviation
/// from a curve; a Level is a level of confidence in per cent. DSEvaluator says who judged the
/// device, CType "A" propagation or "B" comparison, CDSpec the equation of the curve. Words of two
/// parts have "_" for the blank; "&" is empty.
class clsX {
public:
    int N = -1; // 0 the property, 1 to 4 variables, -1 not known
    /// Name and Unit follow from the code and are not in the line.
    std::string PRPCODE, PHASE, Name, Unit;
    /// Of a state variable that is the same for all rows; it has its place behind the variables.
    bool Constr = false;
    bool iDS = false;
    std::string DSEvaluator, DSLevel, DSValue;
    bool iRep = false;
    int RType = -1; // 0 of the mean, 1 of a single measurement, -1 not chosen
    std::string Repetitions, RValue;
    bool iUnc = false;
    std::string ULevel, UValue;
    bool iCU = false;
    /// KVOUValue, the figure of the evaluation, belongs to the line of the value.
    std::string CLevel, CValue, KVOUValue, CType;
    bool iCD = false;
    std::string CDSpec, CDRms;
    /// Values stand in system units: true after Load, false when a dialog wrote them.
    /// Without it each load and save would convert them once more.
    bool inSystemUnits = false;
    /// RValue and Repetitions came with the value line; a ^X line states them only with iRep.
    bool repOfValueLine = false;
    /// A line that names no quantity of its set; it is written back as it came.
    std::string Verbatim;

    bool operator==(const clsX&) const = default;

    /// Takes any line: a word that lacks or makes no sense counts as not stated, N as -1.
    void Load(std::string_view line);
    /// Whether there is a statement that is meant to hold.
    bool IsStated() const;
    /// Whether there is anything to write: a statement, or figures without the mark of one, as a
    /// file may have them.
    bool IsKept() const;
    /// Figures without their mark, in any block of the line and by blocks.
    bool HasUnmarked() const;
    bool HasUnmarkedDS() const;
    bool HasUnmarkedRep() const; // none of the line of a value, which needs no mark
    bool HasUnmarkedUnc() const;
    bool HasUnmarkedCU() const;
    bool HasUnmarkedCD() const;
    /// The same statement, whatever line it was read from.
    bool SaysTheSame(const clsX& other) const;
    /// False when words of the line that it was read from are not among what it writes.
    bool HoldsAll() const;
    /// Writes the line when there is anything to write. A code other than "" or "S" converts the
    /// values of a dialog to system units, as differences; values read from a file are never
    /// converted again. factor and molarMass [g/mol] are those of the conversion.
    void SaveX(LineWriter& out, std::string_view code, double factor = 0,
               double molarMass = 0) const;
    /// Puts `changed(code)` in the place of quantity and phase, in the line as read as well.
    void ChangeCodes(const std::function<std::string(const std::string&)>& changed);
    /// The heads of the statements in the export; role is "Prop" or "Var".
    void ExportX(XmlWriter& xml, std::string_view role) const;

private:
    /// The fields of its line.
    std::vector<std::string> Words(const UnitConversion& unit) const;
};

/// Writes the statements that have no place in their set: lines of a file as they came.
void SaveOthers(LineWriter& out, const std::vector<clsX>& others);

} // namespace vexora
