#include "records/RecordChecks.h"

#include "chem/PropertyLimits.h"
#include "records/MixtureWords.h"
#include "records/Presentation.h"
#include "records/StateRules.h"
#include "records/StatedUncertainty.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <optional>

namespace vexora {

namespace {

/// What nature does not allow is an error, what is rarely met a warning.
void CheckLimits(const std::string& code, double system, Remarks& remarks,
                 const std::string& name) {
    const std::string words = name + ": value " + NumberText(system);
    if (!IsValidValue(code, system))
        remarks.Error(words + " is not valid");
    else if (!IsPlausibleValue(code, system))
        remarks.Warn(words + " is suspicious");
}

// What is wrong with a unit; empty when nothing is. "*" says nothing without a factor of its own.
std::string UnitFault(const UnitConversion& entered) {
    if (entered.factor > 0) return {};
    if (entered.code == "*" || !IsKnownConversion(entered.code))
        return "unknown unit " + entered.code;
    if (IsConversionOf(entered.code, entered.unit)) return {};
    return "Invalid conversion factor: " + entered.code + " is no unit of " + entered.unit;
}

void CheckVariable(const clsZ& value, Remarks& remarks, const std::string& property) {
    const std::string name = property + ": " + VariableName(value.Variable(), value.DataContext());
    const UnitConversion entered = value.VariableConversion(1);
    const std::string fault = UnitFault(entered);
    if (!IsNumeric(value.INDVARIABLE)) {
        remarks.Error(property + ": the variable is no number: " + value.INDVARIABLE);
    } else if (!fault.empty()) {
        remarks.Error(name + ": " + fault);
    } else {
        CheckLimits(value.Variable(), entered.Absolute(Val(value.INDVARIABLE)), remarks, name);
    }
}

/// Such figures stay in the record, and nobody else sees them.
void CheckMarks(const clsX& stated, const std::string& name, Remarks& remarks) {
    if (stated.HasUnmarked())
        remarks.Warn(name + ": a figure of uncertainty has no mark and is not exported");
}

/// What nothing states of a set or a value, and nobody can tell from it.
template <class Data>
void CheckStatements(const Data& data, bool hasValues, const std::string& name, Remarks& remarks) {
    for (const std::string& unstated : UnstatedOf(data))
        remarks.Warn(name + ": no " + unstated + " is stated");
    if (hasValues && !StatesUncertainty(data)) remarks.Hint(name + ": no uncertainty is stated");
}

struct RowFindings {
    RowTally noNumber, noMass, invalid, suspicious;
};

/// Variables of a mixture bear the number of their component, those of a pure compound none;
/// a reaction has few.
bool IsVariableOf(const DataSet& set, int n) {
    const std::string& code = set.VARIABLE(n);
    if (set.DataContext() == "Pure") return VariableValid(code);
    if (set.DataContext() == "React") return !set.VariableWords(n).empty();
    const VariableRow* const row = FindVariable(code);
    return row && row->Offered.IsIn(set.DataContext());
}

// Quantity n of all rows. Differences and ratios have no limits.
void CheckColumn(const DataSet& set, int n, const std::string& name, Remarks& remarks) {
    const bool hasLimits = n > 0 || set.Relation() == "A";
    const std::string code = !hasLimits ? "" : n == 0 ? set.PRPCODE : set.VARIABLE(n);
    const SystemColumn column(set, n);
    RowFindings found;
    std::size_t place = 0;
    for (const clsData& row : set.recData) {
        ++place;
        const std::optional<double> system = column.Of(row);
        if (!system)
            found.noNumber.Add(place, "this is no number: " + std::string(column.TextOf(row)));
        else if (!column.Converts(row))
            found.noMass.Add(place, "the molar mass is not known");
        else if (!IsValidValue(code, *system))
            found.invalid.Add(place, "value " + NumberText(*system) + " is not valid");
        else if (!IsPlausibleValue(code, *system))
            found.suspicious.Add(place, "value " + NumberText(*system) + " is suspicious");
    }
    if (!found.noNumber.IsEmpty()) remarks.Error(name + ": " + found.noNumber.Text());
    if (!found.noMass.IsEmpty()) remarks.Error(name + ": " + found.noMass.Text());
    if (!found.invalid.IsEmpty()) remarks.Error(name + ": " + found.invalid.Text());
    if (!found.suspicious.IsEmpty()) remarks.Warn(name + ": " + found.suspicious.Text());
}

void CheckUnit(const DataSet& set, int n, const std::string& name, Remarks& remarks) {
    const std::string fault = set.isOriginalUnit ? UnitFault(set.Conversion(n)) : "";
    if (fault.empty())
        CheckColumn(set, n, name, remarks);
    else
        remarks.Error(name + ": " + fault);
}

} // namespace

void CheckPhases(const std::vector<std::string>& phases, Remarks& remarks) {
    for (const std::string& phase : phases) {
        if (!IsBlankField(phase) && !PhaseValid(phase)) remarks.Error("Unknown phase " + phase);
    }
    // The first is the phase that was measured; others need not be there.
    if (phases.empty() || IsBlankField(phases.front())) remarks.Error("No phase is given");
}

void CheckRows(const DataSet& set, const std::string& name, Remarks& remarks) {
    if (!set.Definition().IsKnown())
        remarks.Error(name + ": unknown definition of results " + set.PROPERTY_FUNCT);
    if (set.recData.IsEmpty() && Presentation::Of(set.DATATYPE).HasNumbers())
        remarks.Warn(name + ": the data set has no rows");
    for (const clsX& stated : set.UX)
        CheckMarks(stated, name, remarks);
    CheckUnit(set, 0, name, remarks);
    for (int n = 1; n <= set.nVar; ++n) {
        if (IsVariableOf(set, n))
            CheckUnit(set, n, name + ", " + FirstSmall(set.VariableWords(n)), remarks);
        else
            remarks.Error(name + ": unknown variable " + set.VARIABLE(n));
    }
}

void CheckFigures(const SingleValue& value, const std::string& name, Remarks& remarks) {
    for (int n = 0; n <= value.VariableCount(); ++n)
        CheckMarks(value.Statements(n), name, remarks);
    const std::string fault = UnitFault(value.PropertyConversion());
    if (!IsNumeric(value.PRPVALUE)) {
        remarks.Error(name + ": the value is no number: " + value.PRPVALUE);
    } else if (!fault.empty()) {
        remarks.Error(name + ": " + fault);
    } else if (value.NeedsMolarMass() && value.MolarMass() <= 0) {
        remarks.Error(name + ": the molar mass of the compound is not known");
    } else {
        CheckLimits(value.PRPCODE, value.SystemValue(), remarks, name);
    }
}

SystemColumn::SystemColumn(const DataSet& set, int n)
    : n_(static_cast<std::size_t>(n)), byRow_(n == 0 && set.ConvertsByRow()),
      ofSet_(set.Conversion(n)),
      converts_(byRow_ ? IsConversionOf(ofSet_.code, ofSet_.unit) : ofSet_.IsPossible()),
      masses_(set) {}

bool SystemColumn::Converts(const clsData& row) const {
    if (!row.inOriginalUnits) return true;
    return converts_ && (!byRow_ || masses_.Of(row) > 0);
}

std::optional<double> SystemColumn::Of(const clsData& row) const {
    const std::string_view typed = TextOf(row);
    if (!IsNumeric(typed)) return std::nullopt;
    if (!row.inOriginalUnits) return Val(typed);
    if (!byRow_) return ofSet_.Absolute(Val(typed));
    return ToSystem(ofSet_.code, Val(typed), ofSet_.factor, masses_.Of(row));
}

void CheckValue(const clsZ& value, Findings& findings) {
    Remarks remarks(findings, value);
    if (!PropertyValid(value.PRPCODE)) return remarks.Error("Unknown property " + value.PRPCODE);
    const std::string name = PropertyName(value.PRPCODE, value.DataContext());
    CheckPhases({value.PHASE1, value.PHASE2, value.PHASE3}, remarks);
    if (value.nVar == 1) CheckVariable(value, remarks, name);
    CheckFigures(value, name, remarks);
    CheckStatements(value, true, name, remarks);
}

void CheckSet(const clsTwo& set, Findings& findings) {
    Remarks remarks(findings, set);
    if (!PropertyValid(set.PRPCODE)) return remarks.Error("Unknown property " + set.PRPCODE);
    const std::string name = PropertyName(set.PRPCODE, set.DataContext());
    CheckPhases({set.PHASE1, set.PHASE2}, remarks);
    if (IndexOfCode(ConstraintKinds, set.CONSTRAINT) < 0)
        remarks.Error(name + ": unknown constraint " + set.CONSTRAINT);
    CheckStatements(set, !set.recData.IsEmpty(), name, remarks);
    CheckRows(set, name, remarks);
}

} // namespace vexora
