// The checks of single classes of records, which the check of the document calls (DocumentCheck.h),
// and what they share.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "records/DataSet.h"
#include "records/DocumentCheck.h"
#include "records/RowMasses.h"
#include "records/SingleValue.h"

namespace vexora {

class SubstanceSample;
class clsBP;
class clsBR;
class clsC;
class clsComplex;
class clsComplexSample;
class clsCrS;
class clsE;
class clsL;
class clsM;
class clsMV;
class clsMZ;
class clsQ;
class clsR;
class clsS;
class clsTwo;
class clsZ;

using Findings = std::vector<DocumentFinding>;

/// Collects what is said about one record.
class Remarks {
public:
    Remarks(Findings& findings, const Record& record) : findings_(findings), record_(record) {}
    void Error(std::string text) { Add(Severity::Error, std::move(text)); }
    void Warn(std::string text) { Add(Severity::Warning, std::move(text)); }
    void Hint(std::string text) { Add(Severity::Hint, std::move(text)); }

private:
    void Add(Severity severity, std::string text) {
        findings_.push_back({record_.Line, severity, std::move(text), &record_});
    }

    Findings& findings_;
    const Record& record_;
};

/// Rows of a set about which the same is to be said.
/// A wrong unit shows in every row: told once, it does not bury what else there is to tell.
class RowTally {
public:
    /// The rows count from 1.
    void Add(std::size_t row, const std::string& text) {
        if (count_++ == 0) first_ = "row " + std::to_string(row) + ": " + text;
    }
    bool IsEmpty() const { return count_ == 0; }
    std::string Text() const {
        if (count_ <= 1) return first_;
        return first_ + " (and " + std::to_string(count_ - 1) + " more)";
    }

private:
    std::size_t count_ = 0;
    std::string first_;
};

/// Quantity n of a set, 0 the property, brought to its system unit row by row.
class SystemColumn {
public:
    SystemColumn(const DataSet& set, int n);
    std::string_view TextOf(const clsData& row) const { return row.Values[n_]; }
    /// False for a row in a unit that nothing converts.
    bool Converts(const clsData& row) const;
    /// Nothing for a text that is no number.
    std::optional<double> Of(const clsData& row) const;

private:
    std::size_t n_;
    bool byRow_;
    UnitConversion ofSet_;
    bool converts_;            // asked once, for it looks into the tables
    mutable RowMasses masses_; // made ready once for all rows
};

void CheckSource(const clsR& source, Findings& findings);
void CheckCompound(const clsL& compound, Findings& findings);
void CheckSample(const clsS& sample, Findings& findings);
void CheckValue(const clsZ& value, Findings& findings);
void CheckSet(const clsTwo& set, Findings& findings);
void CheckMixture(const clsM& mixture, Findings& findings);
void CheckMixtureValue(const clsMZ& value, Findings& findings);
void CheckMixtureSet(const clsMV& set, Findings& findings);
void CheckReaction(const clsQ& reaction, Findings& findings);
void CheckPropertyChange(const clsC& value, Findings& findings);
void CheckEquilibrium(const clsE& set, Findings& findings);
void CheckBioReaction(const clsBR& set, Findings& findings);
void CheckBioProperty(const clsBP& set, Findings& findings);
void CheckComplex(const clsComplex& complex, Findings& findings);
void CheckComplexSample(const clsComplexSample& sample, Findings& findings);
void CheckStructure(const clsCrS& structure, Findings& findings);
/// A sample has no component beside those of its complex; it need not have all.
bool FitsSystem(const clsComplexSample& sample);

// What all kinds of values and sets are checked for.

/// Phases that no table knows, and none in the first place, which is the one that was measured.
void CheckPhases(const std::vector<std::string>& phases, Remarks& remarks);
/// Value, unit and marks of statements.
void CheckFigures(const SingleValue& value, const std::string& name, Remarks& remarks);
/// Definition of results, statements, units and rows, once the line of the set has been checked.
void CheckRows(const DataSet& set, const std::string& name, Remarks& remarks);

/// A number as a key: what differs only by the rounding of a conversion is equal.
std::string KeyOfNumber(double value);
/// Names the sets right below the owner that repeat points of a set before them: the same property
/// of the same phases, at the same state with the same value, in whatever units.
void CheckEqualPoints(const Record& owner, Findings& findings);
/// The same of the single values of a sample.
void CheckEqualValues(const SubstanceSample& sample, Findings& findings);

} // namespace vexora
