#include "entry/AverageForm.h"

#include "records/clsX.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* FormName = "frmAverage";
constexpr int OfTheMean = 0; // clsX::RType

void State(clsX& statement, const std::string& uncertainty, const std::string& count) {
    const bool isStated = !uncertainty.empty();
    statement.iRep = isStated;
    statement.RType = isStated ? OfTheMean : -1;
    statement.RValue = uncertainty;
    statement.Repetitions = count;
}

} // namespace

bool CanAverage() {
    return ui::Forms::Current().Knows(FormName);
}

bool AverageEntry::Ask(clsX& statement, const std::string& remark) {
    auto& average = ui::Forms::Current().Get<AverageForm>(FormName);
    average.Remark = remark;
    average.ShowModal();
    const int count = average.nData;
    if (count > 0) value_.Text(average.sAverage);
    if (count > 1) {
        givenUncertainty_ = average.sUncertainty;
        givenCount_ = std::to_string(count);
        State(statement, givenUncertainty_, givenCount_);
    }
    // A single value has no scatter; that of an earlier average is not its own.
    if (count == 1) TakeOut(statement);
    average.Close();
    value_.SetFocus();
    return count > 0;
}

void AverageEntry::TakeOut(clsX& statement) const {
    if (!givenCount_.empty() && statement.RValue == givenUncertainty_ &&
        statement.Repetitions == givenCount_)
        State(statement, {}, {});
}

} // namespace vexora
