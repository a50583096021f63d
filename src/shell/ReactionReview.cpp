#include "shell/ReactionReview.h"

#include <utility>

#include "globals/KVOGlobal.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsQ.h"
#include "shell/EditScope.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

/// Shows the reaction in hand to be reviewed; false when that was cancelled.
bool ReviewReaction() {
    KVOGlobal& globals = Globals();
    const EditScope editing(globals.EditReaction);
    globals.DialogAccepted = false;
    ui::Forms::Current().Get("frmReact").ShowModal();
    if (globals.DialogAccepted) globals.CurrentQ->Refresh();
    return std::exchange(globals.DialogAccepted, false);
}

/// The reaction first, with the samples of the set, which takes them back.
template <class Set>
bool ReviewReactionOf(Set& set, int participants) {
    clsQ& reaction = *set.Parent;
    for (int i = 1; i <= participants; ++i)
        reaction.SMPNM(i, set.SMPNM(i));
    if (!ReviewReaction()) return false;
    for (int i = 1; i <= participants; ++i)
        set.SMPNM(i, reaction.SMPNM(i));
    return true;
}

} // namespace

bool ReviewReactionOfChange() {
    return ReviewReactionOf(*Globals().CurrentC, clsQ::MostParticipants);
}

bool ReviewReactionOfEquilibrium() {
    return ReviewReactionOf(*Globals().CurrentE, clsE::Participants);
}

bool ReviewReactionOfFile() {
    const auto& reaction = Globals().CurrentQ;
    return reaction && (reaction->Reaction != "=" || ReviewReaction());
}

} // namespace vexora
