#include "records/DocumentCheck.h"

#include "chem/PropertyLimits.h"
#include "records/Presentation.h"
#include "records/SampleDescription.h"
#include "records/Walk.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <unordered_map>

namespace vexora {

namespace {

// Collects what is said about one record.
class Remarks {
public:
    Remarks(std::vector<DocumentFinding>& findings, const Record& record)
        : findings_(findings), line_(record.Line) {}
    void Error(const std::string& text) { findings_.push_back({line_, true, text}); }
    void Warn(const std::string& text) { findings_.push_back({line_, false, text}); }

private:
    std::vector<DocumentFinding>& findings_;
    int line_;
};

/// By what a compound can be met again: its name, and name and formula together, of one that the
/// reference database knows all of its names there.
std::vector<std::string> Identities(const clsL& compound) {
    std::vector<std::string> identities;
    const auto add = [&identities](const std::string& name, const std::string& formula) {
        identities.push_back(LowerAscii(name) + "\n" + formula);
    };
    if (!compound.Name.empty()) {
        identities.push_back(LowerAscii(compound.Name));
        add(compound.Name, compound.Formula);
    }
    if (compound.isNew) return identities;
    for (const CompoundRow& row : CompoundsOf(ToInteger(Val(compound.RN))))
        add(row.NAME, row.FORMULA);
    return identities;
}

/// Data of one substance under two numbers are never seen together again.
void CheckTwins(const clsR& source, std::vector<DocumentFinding>& findings) {
    std::unordered_map<std::string, const clsL*> known;
    for (const auto& compound : source.recL) {
        const clsL* twin = nullptr;
        for (const std::string& identity : Identities(*compound)) {
            const clsL* other = known.try_emplace(identity, compound.get()).first->second;
            if (other == compound.get() || twin) continue;
            // Isomers that the database knows may share a trivial name there.
            const bool isName = identity.find('\n') == identity.npos;
            if (isName || compound->isNew || other->isNew) twin = other;
        }
        if (!twin) continue;
        Remarks(findings, *compound)
            .Warn("Compound " + compound->Name + " stands twice: " + twin->RN + " and " +
                  compound->RN);
    }
}

void CheckSource(const clsR& source, std::vector<DocumentFinding>& findings) {
    CheckTwins(source, findings);
    Remarks remarks(findings, source);
    // Of a known source the database has title and authors, and the file need not.
    if (source.isNew && source.TTITLE.empty()) remarks.Warn("The source has no title");
    if (source.isNew && source.recAuthor.IsEmpty()) remarks.Warn("The source has no authors");
    if (source.recL.IsEmpty()) remarks.Warn("The source has no compounds");
}

void CheckCompound(const clsL& compound, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, compound);
    const std::string name = "Compound " + compound.ShowKey();
    // Only a number stands in the file of a compound that is not new: all else is looked up.
    if (compound.Name.empty()) remarks.Warn(name + " is not in the reference database");
    if (compound.Formula.empty()) remarks.Warn(name + " has no formula");
    if (compound.recS.IsEmpty()) remarks.Warn(name + " has no sample");
}

void CheckSample(const clsS& sample, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, sample);
    if (!ParseDescription(sample.SMPDESC)) {
        remarks.Error("Sample description cannot be interpreted: " + sample.SMPDESC);
    }
    if (sample.recZ.IsEmpty() && sample.recTwo.IsEmpty())
        remarks.Warn(sample.Key() + " has no data");
}

void CheckPhases(std::initializer_list<std::string> phases, Remarks& remarks) {
    for (const std::string& phase : phases) {
        if (!IsBlankField(phase) && !PhaseValid(phase)) remarks.Error("Unknown phase " + phase);
    }
    // The first is the phase that was measured; others need not be there.
    if (IsBlankField(*phases.begin())) remarks.Error("No phase is given");
}

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

void CheckValue(const clsZ& value, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, value);
    if (!PropertyValid(value.PRPCODE)) {
        remarks.Error("Unknown property " + value.PRPCODE);
        return;
    }
    const std::string name = PropertyName(value.PRPCODE, value.DataContext());
    CheckPhases({value.PHASE1, value.PHASE2, value.PHASE3}, remarks);
    if (value.nVar == 1) CheckVariable(value, remarks, name);
    for (int n = 0; n <= value.nVar; ++n)
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

// Rows of a set about which the same is to be said.
// A wrong unit shows in every row: told once, it does not bury what else there is to tell.
class RowTally {
public:
    void Add(std::size_t row, const std::string& text) {
        if (count_++ == 0) first_ = "row " + std::to_string(row) + ": " + text;
    }
    bool IsEmpty() const { return count_ == 0; }
    std::string Text() const {
        if (count_ == 1) return first_;
        return first_ + " (and " + std::to_string(count_ - 1) + " more)";
    }

private:
    std::size_t count_ = 0;
    std::string first_;
};

struct RowFindings {
    RowTally noNumber, invalid, suspicious;
};

void CheckNumber(std::size_t place, std::string_view typed, const std::string& code,
                 const UnitConversion& unit, RowFindings& found) {
    if (!IsNumeric(typed))
        return found.noNumber.Add(place, "this is no number: " + std::string(typed));
    const double system = unit.Absolute(Val(typed));
    const std::string value = "value " + NumberText(system);
    if (!IsValidValue(code, system))
        found.invalid.Add(place, value + " is not valid");
    else if (!IsPlausibleValue(code, system))
        found.suspicious.Add(place, value + " is suspicious");
}

// Quantity n of all rows. Differences and ratios have no limits.
void CheckColumn(const DataSet& set, int n, const std::string& name, Remarks& remarks) {
    const bool hasLimits = n > 0 || set.Relation() == "A";
    const std::string code = !hasLimits ? "" : n == 0 ? set.PRPCODE : set.VARIABLE(n);
    const bool byRow = n == 0 && set.MolarMassFollowsRows() && set.NeedsMolarMass();
    const UnitConversion ofSet = set.Conversion(n);
    RowFindings found;
    std::size_t place = 0;
    for (const clsData& row : set.recData) {
        const UnitConversion entered = byRow ? set.PropertyConversion(row) : ofSet;
        CheckNumber(++place, row.Values[static_cast<std::size_t>(n)], code,
                    row.inOriginalUnits ? entered : UnitConversion(), found);
    }
    if (!found.noNumber.IsEmpty()) remarks.Error(name + ": " + found.noNumber.Text());
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

/// What all kinds of sets are checked for, once their own line has been.
void CheckRows(const DataSet& set, const std::string& name, Remarks& remarks) {
    if (!set.Definition().IsKnown())
        remarks.Error(name + ": unknown definition of results " + set.PROPERTY_FUNCT);
    if (set.recData.IsEmpty() && Presentation::Of(set.DATATYPE).HasNumbers())
        remarks.Warn(name + ": the data set has no rows");
    for (const clsX& stated : set.UX)
        CheckMarks(stated, name, remarks);
    CheckUnit(set, 0, name, remarks);
    for (int n = 1; n <= set.nVar; ++n) {
        if (VariableValid(set.VARIABLE(n)))
            CheckUnit(set, n, name + ", " + LowerAscii(VariableName(set.VARIABLE(n))), remarks);
        else
            remarks.Error(name + ": unknown variable " + set.VARIABLE(n));
    }
}

void CheckSet(const clsTwo& set, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, set);
    if (!PropertyValid(set.PRPCODE)) return remarks.Error("Unknown property " + set.PRPCODE);
    const std::string name = PropertyName(set.PRPCODE, set.DataContext());
    CheckPhases({set.PHASE1, set.PHASE2}, remarks);
    if (IndexOfCode(ConstraintKinds, set.CONSTRAINT) < 0)
        remarks.Error(name + ": unknown constraint " + set.CONSTRAINT);
    if (set.LacksPressure()) remarks.Warn(name + ": no pressure is stated");
    CheckRows(set, name, remarks);
}

using Findings = std::vector<DocumentFinding>;

const ByClass<void, Findings&>& Checks() {
    static const auto checks = ByClass<void, Findings&>()
                                   .On<clsR>(CheckSource)
                                   .On<clsL>(CheckCompound)
                                   .On<clsS>(CheckSample)
                                   .On<clsZ>(CheckValue)
                                   .On<clsTwo>(CheckSet);
    return checks;
}

} // namespace

std::vector<DocumentFinding> CheckDocument() {
    std::vector<DocumentFinding> findings;
    WalkDocument([&findings](const Record& record) { Checks()(record, findings); });
    return findings;
}

} // namespace vexora
