#include "records/clsZ.h"

#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace vexora {

namespace {

/// What the unit field of a record line holds: letters stay, all else stands as system unit.
std::string UnitField(const std::string& code) {
    return IsUnitLetter(code) ? code : "S";
}

/// Factor of a unit that has no letter.
double FactorOf(const clsZ& value, const std::string& code) {
    const double factor = ConversionFactor(code);
    if (factor != 0) return factor;
    throw SaveRefused("Invalid conversion factor: " + code + "\n" +
                      (value.Parent ? value.Parent->Key() + "\n" : std::string()) +
                      value.ShowKey());
}

/// The fixed variable and its unit as they stand in the line.
std::pair<std::string, std::string> VariableFields(const clsZ& value) {
    const std::string& code = value.VARIABLE_UNIT;
    if (!IsUnitLong(code)) return {value.INDVARIABLE, code};
    if (!value.isOriginalUnit) return {value.INDVARIABLE, "S"};
    FactorOf(value, code);
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
    for (const clsX& other : OtherX) {
        if (other.Verbatim.empty())
            other.SaveX(out, "");
        else
            out.Line(other.Verbatim);
    }
}

/// Writes the factor of a unit without a letter; true when it did.
bool clsZ::PrintFactor(LineWriter& out) const {
    if (!isOriginalUnit) return false;
    double factor = Factor;
    if (factor <= 0 && IsUnitLong(PROPERTY_UNIT)) factor = FactorOf(*this, PROPERTY_UNIT);
    if (factor <= 0) return false;
    out.Line("^M " + NormalizeNumber(NumberText(factor)));
    return true;
}

/// Per cent of the value becomes the figure itself.
std::string clsZ::PrecisionForRecord(const std::string& precision) const {
    if (precision.find('%') == std::string::npos) return precision;
    const double percent = Val(precision.substr(0, precision.find('%')));
    return NumberText(std::abs(percent * Val(PRPVALUE)) / 100);
}

/// The comment with the precisions that a dialog wrote brought to system units, as differences.
std::string clsZ::CommentForRecord() const {
    const std::string& stored = Header.DATACOMMENT;
    const std::size_t tags = stored.find("::");
    if (commentInSystemUnits || !isOriginalUnit || tags == std::string::npos) return stored;
    std::string comment = stored.substr(0, tags + 1);
    for (std::size_t at = tags + 1; at < stored.size();) {
        const std::size_t codeEnd = stored.find(':', at + 1);
        const std::size_t valueEnd =
            codeEnd == std::string::npos ? codeEnd : stored.find(':', codeEnd + 1);
        const bool isPrecision = stored[at] == ':' && stored.compare(at, 2, ":d") == 0;
        if (!isPrecision || valueEnd == std::string::npos) {
            comment += stored.substr(at, codeEnd == std::string::npos ? codeEnd : codeEnd - at);
            at = std::min(codeEnd, stored.size());
            continue;
        }
        const std::string code = stored.substr(at + 2, codeEnd - at - 2);
        const std::string typed = stored.substr(codeEnd + 1, valueEnd - codeEnd - 1);
        comment += ":d" + code + ":" + SystemPrecision(code, typed);
        at = valueEnd;
    }
    return comment;
}

std::string clsZ::SystemPrecision(const std::string& code, const std::string& typed) const {
    const bool ofProperty = code == PRPCODE;
    if (!IsNumeric(typed) || (!ofProperty && code != Variable())) return typed;
    const std::string& unit = ofProperty ? PROPERTY_UNIT : VARIABLE_UNIT;
    const double factor = ofProperty ? Factor : 0;
    const double mass = ofProperty && NeedsMolarMass() ? MolarMass() : 0;
    const double system =
        ToSystem(unit, Val(typed), factor, mass) - ToSystem(unit, 0, factor, mass);
    return system == 0 ? typed : FormatValue(system, SignificantDigits(typed));
}

} // namespace vexora
