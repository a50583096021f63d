#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "records/CarriedData.h"
#include "records/RecordChecks.h"

namespace vexora {

class clsTwo;

/// Rows of a mixture set in which one component is alone, as data of that compound. A pressure of
/// coexistence with the gas becomes a vapor pressure, a temperature a boiling one, a melting end a
/// melting temperature; what has no meaning for a compound, as a composition, makes no record.
class PureOfMixture {
public:
    /// The set has to stay while this is used.
    PureOfMixture(const clsMV& set, int component);
    /// Adds what the row tells to the records of the sample, unless it is there already; true when
    /// it did. A row that cannot be right, or has no place there, leaves words to the user.
    bool Take(const clsData& row, std::string& fault);

private:
    enum class Form { Nothing, Single, Fixed, Set };

    bool FindExpected();
    void Prepare();
    bool TakePhases();
    bool TakeCurves();
    bool TakeCode();
    bool TakeEquilibrium(const std::string& code);
    bool TakeStates();
    void TakeConstants();
    void OrderPhases(bool condensedFirst);
    void ChooseForm();
    bool HasGas() const;
    bool HasSolid() const;
    const HeldConstant* ConstantOf(std::string_view code) const;
    Form FormOf(const clsData& row) const;
    const HeldConstant* Consumed(Form form) const;

    std::string Constraint() const;
    clsA HeaderOf(Form form, const clsData& row) const;
    std::string StateTag(Form form) const;
    clsX StatementOf(int item) const;
    bool TakeSet(const clsData& row);
    std::shared_ptr<clsTwo> NewSet(const clsData& row) const;
    clsData RowOf(const clsData& row) const;
    RowTarget<clsTwo>& TargetFor(const clsData& row);
    bool TakeValue(Form form, const clsData& row);
    std::shared_ptr<clsZ> NewValue(Form form, const clsData& row) const;

    const clsMV& set_;
    int component_;
    std::shared_ptr<clsS> sample_;
    SystemColumn property_;
    std::optional<double> expected_; // of a property that says nothing of a pure compound
    bool isSilent_ = false;          // such a property
    std::string fault_;              // why no row fits

    std::string setCode_, valueCode_; // of a set and of a single value
    std::vector<std::string> phases_;
    bool hasAir_ = false, isCritical_ = false;
    std::vector<int> states_;             // the state variables of the set, by number
    std::vector<HeldConstant> constants_; // in system units
    Form form_ = Form::Nothing;
    bool mayBeSet_ = false; // a single value may also stand as a set of one row

    std::array<std::optional<RowTarget<clsTwo>>, 2> targets_; // by unit of the rows
    std::optional<std::unordered_set<std::string>> values_;   // that the sample has
};

} // namespace vexora
