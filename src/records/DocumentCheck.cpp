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

void CheckLimits(const clsZ& value, Remarks& remarks, const std::string& name) {
    const double system = value.SystemValue();
    const std::string words = name + ": value " + NumberText(system);
    if (!IsValidValue(value.PRPCODE, system))
        remarks.Error(words + " is not valid");
    else if (!IsPlausibleValue(value.PRPCODE, system))
        remarks.Warn(words + " is suspicious");
}

void CheckValue(const clsZ& value, std::vector<DocumentFinding>& findings) {
    Remarks remarks(findings, value);
    if (!PropertyValid(value.PRPCODE)) {
        remarks.Error("Unknown property " + value.PRPCODE);
        return;
    }
    const std::string name = PropertyName(value.PRPCODE, "Pure");
    CheckPhases(value, remarks);
    if (value.nVar == 1 && !IsNumeric(value.INDVARIABLE)) {
        remarks.Error(name + ": the variable is no number: " + value.INDVARIABLE);
    }
    if (!IsNumeric(value.PRPVALUE)) {
        remarks.Error(name + ": the value is no number: " + value.PRPVALUE);
    } else if (value.isOriginalUnit && value.Factor <= 0 &&
               !IsKnownConversion(value.PROPERTY_UNIT)) {
        remarks.Error(name + ": unknown unit " + value.PROPERTY_UNIT);
    } else {
        CheckLimits(value, remarks, name);
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
