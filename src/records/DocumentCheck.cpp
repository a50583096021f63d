#include "records/DocumentCheck.h"

#include "chem/PropertyLimits.h"
#include "globals/KVOGlobal.h"
#include "records/SampleDescription.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

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

void CheckSource(const clsR& source, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, source);
    if (source.isNew && source.TTITLE.empty()) remarks.Warn("The source has no title");
    if (source.isNew && source.recAuthor.IsEmpty()) remarks.Warn("The source has no authors");
    if (source.recL.IsEmpty()) remarks.Warn("The source has no compounds");
}

void CheckCompound(const clsL& compound, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, compound);
    const std::string name = "Compound " + compound.ShowKey();
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

void CheckPhases(const clsZ& value, Remarks& remarks) {
    for (const std::string& phase : {value.PHASE1, value.PHASE2, value.PHASE3}) {
        if (!IsBlankField(phase) && !PhaseValid(phase)) remarks.Error("Unknown phase " + phase);
    }
    if (IsBlankField(value.PHASE1)) remarks.Error("No phase is given");
}

void CheckLimits(const std::string& code, double system, Remarks& remarks,
                 const std::string& name) {
    const std::string words = name + ": value " + NumberText(system);
    if (!IsValidValue(code, system))
        remarks.Error(words + " is not valid");
    else if (!IsPlausibleValue(code, system))
        remarks.Warn(words + " is suspicious");
}

// "*" says nothing without a factor of its own.
bool IsUsableUnit(const std::string& code) {
    return code != "*" && IsKnownConversion(code);
}

void CheckVariable(const clsZ& value, Remarks& remarks, const std::string& property) {
    const std::string name = property + ": " + VariableName(value.Variable(), "Pure");
    const std::string unit = value.isOriginalUnit ? value.VARIABLE_UNIT : "S";
    if (!IsNumeric(value.INDVARIABLE)) {
        remarks.Error(property + ": the variable is no number: " + value.INDVARIABLE);
    } else if (!IsUsableUnit(unit)) {
        remarks.Error(name + ": unknown unit " + unit);
    } else {
        const double system = ToSystem(unit, Val(value.INDVARIABLE), 0, 0);
        CheckLimits(value.Variable(), system, remarks, name);
    }
}

void CheckValue(const clsZ& value, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, value);
    if (!PropertyValid(value.PRPCODE)) {
        remarks.Error("Unknown property " + value.PRPCODE);
        return;
    }
    const std::string name = PropertyName(value.PRPCODE, "Pure");
    CheckPhases(value, remarks);
    if (value.nVar == 1) CheckVariable(value, remarks, name);
    if (!IsNumeric(value.PRPVALUE)) {
        remarks.Error(name + ": the value is no number: " + value.PRPVALUE);
    } else if (value.isOriginalUnit && value.Factor <= 0 && !IsUsableUnit(value.PROPERTY_UNIT)) {
        remarks.Error(name + ": unknown unit " + value.PROPERTY_UNIT);
    } else if (value.NeedsMolarMass() && value.MolarMass() <= 0) {
        remarks.Error(name + ": the molar mass of the compound is not known");
    } else {
        CheckLimits(value.PRPCODE, value.SystemValue(), remarks, name);
    }
}

} // namespace

std::vector<DocumentFinding> CheckDocument() {
    std::vector<DocumentFinding> findings;
    for (const auto& source : Globals().recR) {
        CheckSource(*source, findings);
        for (const auto& compound : source->recL) {
            CheckCompound(*compound, findings);
            for (const auto& sample : compound->recS) {
                CheckSample(*sample, findings);
                for (const auto& value : sample->recZ)
                    CheckValue(*value, findings);
            }
        }
    }
    return findings;
}

} // namespace vexora
