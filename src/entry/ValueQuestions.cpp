#include "entry/ValueQuestions.h"

#include "ui/Desktop.h"

namespace vexora {

bool ConfirmInBox(const ValueDoubt& doubt) {
    if (doubt.isQuestion) return ui::AskYesNo(doubt.text);
    ui::Say(doubt.text);
    return false;
}

bool SuspicionsOfRun::Confirm(const ValueDoubt& doubt) {
    if (!doubt.isQuestion) return ConfirmInBox(doubt);
    // A suspicious temperature would else be asked about in each of its rows.
    if (allOf_.contains(doubt.item) || confirmed_.contains({doubt.item, doubt.value})) return true;
    const ui::Answer answer =
        // Enter pressed too soon is a No.
        ui::TheDesktop().Show({doubt.text, {}, ui::MessageButtons::YesNoAll, ui::Answer::No});
    if (answer == ui::Answer::YesToAll) allOf_.insert(doubt.item);
    if (answer == ui::Answer::Yes) confirmed_.insert({doubt.item, doubt.value});
    return answer == ui::Answer::Yes || answer == ui::Answer::YesToAll;
}

} // namespace vexora
