#include "records/clsTwo.h"

#include "chem/CommentTags.h"
#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/Text.h"

#include <initializer_list>

namespace vexora {

namespace {

std::string Joined(std::initializer_list<std::string_view> fields) {
    std::string line;
    for (const std::string_view field : fields)
        AppendField(line, field);
    return line;
}

/// The code of a property as lines of a gas bear it.
std::string_view CodeInLine(std::string_view code, bool hasGas) {
    if (hasGas && code == "PV") return "P";
    return hasGas && code == "HVP" ? "HTR" : code;
}

} // namespace

void clsTwo::PrintTwo(LineWriter& out) const {
    Header.PrintHeader(out, CommentForRecord());
    if (isOriginalUnit) {
        double factor = Factor;
        if (factor <= 0 && IsUnitLong(PROPERTY_UNIT))
            factor = FactorOfLongUnit(PROPERTY_UNIT, *this, Parent);
        if (factor > 0) PrintFactor(out, factor);
    }
    out.Line(Definition());
}

std::string clsTwo::Definition() const {
    const std::string unit =
        isOriginalUnit && Factor > 0 ? std::string("S") : UnitField(PROPERTY_UNIT);
    std::string line = Joined({nVar == 2 ? "^2" : "^1", SMPNM, CodeInLine(PRPCODE, HasGas()), unit,
                               PROPERTY_FUNCT, PRPSETNO});
    line += '\t';
    line += Joined({DATATYPE, PHASE1, PHASE2, CONSTRAINT});
    if (nVar == 2) AppendField(line, VARIABLE1);
    AppendField(line, UnitField(VAR1_UNIT));
    if (nVar == 2) {
        AppendField(line, VARIABLE2);
        AppendField(line, UnitField(VAR2_UNIT));
    }
    AppendField(line, REF_TEMP);
    AppendField(line, REF_PRESSURE);
    return line + " " + OrPlaceholder(Trim(REF_PHASE));
}

void clsTwo::PrintAll(LineWriter& out) const {
    PrintTwo(out);
    PrintStatements(out);
    PrintRows(out);
    out.Line("^M 0");
}

void clsTwo::PrintStatements(LineWriter& out) const {
    for (int n = 1; n < static_cast<int>(UX.size()); ++n) {
        const bool inEnteredUnit = isOriginalUnit && n <= nVar; // a constraint is in system units
        UX[static_cast<std::size_t>(n)].SaveX(out, inEnteredUnit ? VAR_UNIT(n) : "");
    }
    UX[0].SaveX(out, "");
    SaveOthers(out, OtherX);
}

void clsTwo::PrintRows(LineWriter& out) const {
    std::array<UnitConversion, 3> units;
    bool converts = false;
    for (int n = 1; n <= nVar; ++n) {
        const std::string& code = VAR_UNIT(n);
        if (!isOriginalUnit || !IsUnitLong(code)) continue;
        units[static_cast<std::size_t>(n)].factor = FactorOfLongUnit(code, *this, Parent);
        converts = true;
    }
    for (const auto& row : recData) {
        if (!converts || !row->inOriginalUnits) {
            row->PrintData(out);
            continue;
        }
        clsData converted = *row;
        for (int n = 1; n <= nVar; ++n)
            converted.Convert(n, units[static_cast<std::size_t>(n)]);
        converted.PrintData(out);
    }
}

/// The comment with the precisions that a dialog wrote brought to system units, as differences.
std::string clsTwo::CommentForRecord() const {
    const std::string comment = CommentWithVariable();
    if (commentInSystemUnits || !isOriginalUnit) return comment;
    return CommentInSystemUnits(comment, [this](const std::string& code, const std::string& typed) {
        return SystemPrecision(code, typed);
    });
}

std::string clsTwo::SystemPrecision(const std::string& code, const std::string& typed) const {
    if (code == PRPCODE) return PropertyConversion().DifferenceText(typed);
    for (int n = 1; n <= nVar; ++n)
        if (code == VARIABLE(n)) return VariableConversion(n).DifferenceText(typed);
    return typed;
}

/// The comment, whose tag "V1:" tells the variable of a ^1 line where nothing else does.
std::string clsTwo::CommentWithVariable() const {
    std::string comment = Header.DATACOMMENT;
    if (nVar != 1 || VARIABLE1.empty()) return comment;
    const std::string stated = CommentTag(comment, "V1");
    if (VARIABLE1 == (stated.empty() ? DerivedVariable() : stated)) return comment;
    const std::string tag = ":V1:" + stated + ":";
    if (!stated.empty()) comment.replace(comment.find(tag, comment.find("::")), tag.size(), ":");
    if (VARIABLE1 == DerivedVariable()) return comment;
    if (comment.find("::") == std::string::npos) comment += comment.empty() ? "::" : " ::";
    if (!comment.ends_with(':')) comment += ':';
    return comment + "V1:" + VARIABLE1 + ":";
}

} // namespace vexora
