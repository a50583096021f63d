#include "export/Constants.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "export/DataHead.h"
#include "export/XmlWriter.h"
#include "records/DataSet.h"
#include "records/clsMZ.h"
#include "records/clsX.h"
#include "reference/KVODefinitions.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// Of a comment, where values stand in system units.
ExportedConstant OfComment(const std::string& code, std::string value) {
    ExportedConstant constant{code, std::move(value), {}, {}, nullptr};
    constant.unit.wavelength = code == "WL";
    return constant;
}

/// Numbers above those of the variables are of what is constant.
const clsX* StatementsAbout(const DataSet& set, const std::string& code) {
    const auto found = std::ranges::find_if(set.UX, [&](const clsX& item) {
        return item.N > set.nVar && item.PRPCODE == code && item.IsStated();
    });
    return found == set.UX.end() ? nullptr : &*found;
}

const clsX* StatementsAbout(const DataSet& set, const HeldConstant& constant) {
    const auto place = static_cast<std::size_t>(constant.item);
    return place < set.UX.size() && set.UX[place].IsStated() ? &set.UX[place] : nullptr;
}

/// A critical curve is a constraint that has no value.
bool IsInPlace(const ExportedConstant& constant) {
    return constant.HasNumber() || IsCriticalCurve(constant.code);
}

void ExportValue(XmlWriter& xml, const DataSubject& subject, const ExportedConstant& constant) {
    const ExportNumber number = ExportedValue(constant.value, constant.unit);
    xml.Element("nConstraintValue", number.text);
    xml.Element("nConstrDigits", std::to_string(number.digits));
    // Behind the value, as in the schema: no row repeats it.
    if (constant.statements &&
        !ExportConstraintStatements(xml, *constant.statements, constant.value, constant.unit))
        TellDataError(subject, NoRepeatability);
}

void ExportConstraint(XmlWriter& xml, const DataSubject& subject,
                      const ExportedConstant& constant) {
    xml.Open("Constraint");
    xml.Open("ConstraintID");
    xml.Open("ConstraintType");
    const std::string inTables = CodeInTables(subject, constant.code);
    xml.Element(XMLVariableGroup(inTables), XMLVariableName(inTables));
    xml.Close();
    ExportComponentOf(xml, subject, constant.code);
    xml.Close();
    // Temperature and pressure are those of all phases.
    if (IsComposition(constant.code))
        ExportPhase(xml, subject, "ConstraintPhaseID", "eConstraintPhase", constant.phase);
    ExportSolvent(xml, subject, constant.code);
    if (constant.HasNumber()) ExportValue(xml, subject, constant);
    xml.Close();
}

} // namespace

bool ExportedConstant::HasNumber() const {
    return IsNumeric(NormalizeNumber(value));
}

std::vector<ExportedConstant> ConstantsOf(const DataSet& set) {
    std::vector<ExportedConstant> constants;
    const std::vector<HeldConstant> ofDefinition = set.Constants();
    for (const HeldConstant& held : ofDefinition) {
        ExportUnit unit{set.Conversion(held.item), true};
        unit.wavelength = held.code == "WL";
        constants.push_back({held.code, held.value, held.phase, unit, StatementsAbout(set, held)});
    }
    for (const std::string code : {"T", "P", "WL", "WF"}) {
        const auto held = std::ranges::find(ofDefinition, code, &HeldConstant::code);
        if (held != ofDefinition.end()) continue;
        std::string value = set.DataSet::ConstantOf(code);
        if (value.empty()) continue;
        constants.push_back(OfComment(code, std::move(value)));
        constants.back().statements = StatementsAbout(set, code);
    }
    return constants;
}

std::vector<ExportedConstant> ConstantsOf(const clsMZ& value) {
    const CommentTags tags(value.Header.DATACOMMENT);
    std::vector<ExportedConstant> constants;
    for (const std::string code : {"T", "P"}) {
        const std::string typed(Trim(tags.Constant(code)));
        if (!typed.empty()) constants.push_back(OfComment(code, typed));
    }
    return constants;
}

std::string ConstantFault(const DataSubject& subject,
                          const std::vector<ExportedConstant>& constants) {
    for (const ExportedConstant& constant : constants) {
        if (!VariableHasPlace(CodeInTables(subject, constant.code))) return NoPlaceInExport;
        if (!constant.HasNumber()) continue;
        if (std::string fault = ConversionFault(constant.unit); !fault.empty()) return fault;
    }
    return {};
}

void ExportConstants(XmlWriter& xml, const DataSubject& subject,
                     const std::vector<ExportedConstant>& constants) {
    for (const ExportedConstant& constant : constants)
        if (IsInPlace(constant)) ExportConstraint(xml, subject, constant);
    if (!std::ranges::all_of(constants, IsInPlace))
        TellDataError(subject, "Constraint without a valid number in ");
}

void ExportAtmosphere(XmlWriter& xml, const DataSubject& subject) {
    ExportConstraint(xml, subject, OfComment("P", "101.325"));
}

} // namespace vexora
