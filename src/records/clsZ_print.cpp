#include "records/clsZ.h"

#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "records/UnitConversion.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <cmath>
#include <utility>
#include <vector>

namespace vexora {

namespace {

/// The fixed variable and its unit as they stand in the line.
std::pair<std::string, std::string> VariableFields(const clsZ& value) {
    const std::string& code = value.VARIABLE_UNIT;
    if (!IsUnitLong(code)) return {value.INDVARIABLE, code};
    if (!value.isOriginalUnit) return {value.INDVARIABLE, "S"};
    FactorOfLongUnit(code, value, value.Parent);
    const double system = ToSystem(code, Val(value.INDVARIABLE), 0, 0);
    return {FormatConverted(value.INDVARIABLE, code, system), "S"};
}

} // namespace

void clsZ::PrintZ(LineWriter& out) {
    Header.PrintHeader(out, CommentForRecord());
    const bool factorStands = PrintFactor(out);
    const bool bySystemUnit = UserFactor() > 0;
    std::string tag = nVar == 0 ? "^Z" : "^F";
    if (isOriginalUnit) tag = nVar == 0 ? "^z" : "^f";
    std::vector<std::string> fields = {
        tag, SMPNM, PRPCODE, bySystemUnit ? "S" : UnitField(PROPERTY_UNIT), PRPSETNO, PHASE1};
    if (nVar == 0) {
        fields.insert(fields.end(), {PHASE2, PHASE3});
    } else {
        const auto [variable, unit] = VariableFields(*this);
        fields.insert(fields.end(), {variable, unit});
    }
    fields.insert(fields.end(), {PRPVALUE, UX[0].KVOUValue, PrecisionForRecord(UX[0].RValue)});
    out.Fields(fields, UX[0].Repetitions);
    if (factorStands || NeedsMolarMass()) out.Line("^M 0");
    if (nVar == 1) UX[1].SaveX(out, isOriginalUnit ? VARIABLE_UNIT : "");
    UX[0].SaveX(out, "");
    SaveOthers(out, OtherX);
}

/// Writes the factor of a unit without a letter; true when it did.
bool clsZ::PrintFactor(LineWriter& out) const {
    if (!isOriginalUnit) return false;
    double factor = Factor;
    if (factor <= 0 && IsUnitLong(PROPERTY_UNIT))
        factor = FactorOfLongUnit(PROPERTY_UNIT, *this, Parent);
    if (factor <= 0) return false;
    vexora::PrintFactor(out, factor);
    return true;
}

/// Per cent of the value becomes the figure itself; a sign alone says nothing.
std::string clsZ::PrecisionForRecord(const std::string& precision) const {
    if (precision.find('%') == std::string::npos) return precision;
    if (Trim(precision) == "%") return {};
    const double percent = Val(precision.substr(0, precision.find('%')));
    return NumberText(std::abs(percent * Val(PRPVALUE)) / 100);
}

/// The comment with the precisions that a dialog wrote brought to system units, as differences.
std::string clsZ::CommentForRecord() const {
    if (commentInSystemUnits || !isOriginalUnit) return Header.DATACOMMENT;
    return CommentInSystemUnits(Header.DATACOMMENT,
                                [this](const std::string& code, const std::string& typed) {
                                    return SystemPrecision(code, typed);
                                });
}

std::string clsZ::SystemPrecision(const std::string& code, const std::string& typed) const {
    if (code == PRPCODE)
        return UnitConversion{PROPERTY_UNIT, Factor, NeedsMolarMass() ? MolarMass() : 0}
            .DifferenceText(typed);
    return code == Variable() ? UnitConversion{VARIABLE_UNIT}.DifferenceText(typed) : typed;
}

} // namespace vexora
