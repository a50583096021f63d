// Which dialog edits the record of the selected node.

#include <algorithm>
#include <iterator>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/BioSet.h"
#include "records/RecordReader.h"
#include "records/TiedSets.h"
#include "records/clsBP.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "shell/EditScope.h"
#include "shell/EditedRecord.h"
#include "shell/ReactionReview.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

struct EditRule {
    std::string_view nodeKey;
    std::string_view dialog;
    bool KVOGlobal::*flag;
    bool (*prepare)() = nullptr; // done first, under the flag; false when it ends there
};

/// The dialogs of mixtures look up what they offer by the property in hand.
bool TakePropertyOfMixtureValue() {
    Globals().PropertyCode = Globals().CurrentMZ->PRPCODE;
    return true;
}

/// Tied sets may be brought before the user side by side.
bool TakePropertyOfMixtureSet() {
    KVOGlobal& globals = Globals();
    clsMV& set = *globals.CurrentMV;
    globals.PropertyCode = set.PRPCODE;
    globals.SetsToShow.clear();
    if (set.IsTied() && ui::Forms::Current().Knows("frmProcess") &&
        ui::AskYesNo("This data set is tied with another\n"
                     "Would you like to access all tied sets?"))
        globals.SetsToShow = TiedSets(set);
    return true;
}

/// One dialog serves several kinds of bio properties.
bool TakeTypeOfBioSet() {
    Globals().BioType = Globals().CurrentBP->PrpType;
    return true;
}

constexpr EditRule EditRules[] = {
    {"R", "frmDocument", &KVOGlobal::EditSource},
    {"RL", "frmSubst", &KVOGlobal::EditCompound},
    {"RLS", "frmSample", &KVOGlobal::EditSample},
    {"RLSZ", "frmSingle", &KVOGlobal::EditSingle},
    {"RLS1", "frmTwo", &KVOGlobal::EditTwo},
    {"RLS2", "frmTwo", &KVOGlobal::EditTwo},
    {"RXS1", "frmTwo", &KVOGlobal::EditTwo},
    {"RXS2", "frmTwo", &KVOGlobal::EditTwo},
    {"RMZ", "frmMixtSingle", &KVOGlobal::EditMixtSingle, TakePropertyOfMixtureValue},
    {"RM1", "frmMixtVar", &KVOGlobal::EditMixtVar, TakePropertyOfMixtureSet},
    {"RM2", "frmMixtVar", &KVOGlobal::EditMixtVar, TakePropertyOfMixtureSet},
    {"RM3", "frmMixtVar", &KVOGlobal::EditMixtVar, TakePropertyOfMixtureSet},
    {"RQ", "frmReact", &KVOGlobal::EditReaction},
    {"RQC", "frmChanged", &KVOGlobal::EditChanged, ReviewReactionOfChange},
    {"RQE", "frmEquil", &KVOGlobal::EditEquilibrium, ReviewReactionOfEquilibrium},
    {"RX", "frmComplex", &KVOGlobal::EditComplex},
    {"RXS", "frmComplexSample", &KVOGlobal::EditComplexSample},
    {"RXSX", "frmCrStruct", &KVOGlobal::EditCrystal},
    {"RBR", "frmBioReact", &KVOGlobal::EditBioReact},
    {"RBP", "frmBioProp", &KVOGlobal::EditBioProp, TakeTypeOfBioSet},
    {"RXSP", "frmGH", &KVOGlobal::EditBioProp, TakeTypeOfBioSet},
};

const EditRule* RuleOf(std::string_view nodeKey) {
    const auto* rule = std::find_if(std::begin(EditRules), std::end(EditRules),
                                    [nodeKey](const auto& r) { return r.nodeKey == nodeKey; });
    return rule == std::end(EditRules) ? nullptr : rule;
}

/// A source that stands in the reference database is not edited here.
bool MayBeEdited(const EditRule& rule) {
    const KVOGlobal& globals = Globals();
    if (!ui::Forms::Current().Knows(rule.dialog)) return false;
    return rule.nodeKey != "R" || (globals.CurrentR && globals.CurrentR->isNew);
}

/// The dialog that begins a set like the one of a node; empty for a node without rows.
std::string_view RepeatingDialog(std::string_view nodeKey) {
    constexpr std::pair<std::string_view, std::string_view> dialogs[] = {
        {"RM1", "frmMixtVar"},  {"RQE", "frmEquil"},   {"RLS1", "frmTwo"}, {"RXS1", "frmTwo"},
        {"RBR", "frmBioReact"}, {"RBP", "frmBioProp"}, {"RXSP", "frmGH"}};
    for (const auto& [key, dialog] : dialogs)
        if (key == nodeKey) return dialog;
    return {};
}

} // namespace

bool frmMain::HasMouseSelection() {
    tvwTree.SetFocus();
    if (!Globals().CurrentKey.empty() && tvwTree.SelectedNode() != nullptr) return true;
    ui::Say("Please select the node with a mouse before editing");
    return false;
}

void frmMain::mnuEditNode_Click() {
    if (HasMouseSelection()) EditNode();
}

void frmMain::EditNode() {
    KVOGlobal& globals = Globals();
    if (globals.ShellLocked) return;
    const EditRule* rule = RuleOf(globals.CurrentKey);
    if (rule == nullptr || !MayBeEdited(*rule) || RefuseReadOnly()) return;
    lastDone_.clear();
    RenewCurrentMethod();
    globals.DialogAccepted = false;
    const bool wasSaved = globals.Saved;
    const ui::TreeNode* const node = tvwTree.SelectedNode();
    const EditedRecord before(node ? std::dynamic_pointer_cast<Record>(node->Tag.lock()) : nullptr);
    bool isOne = true; // record that the dialog works on
    {
        const EditScope editing(globals.*rule->flag);
        const bool isReady = rule->prepare == nullptr || rule->prepare();
        isOne = globals.SetsToShow.empty();
        if (isReady) ui::Forms::Current().Get(rule->dialog).ShowModal();
    }
    if (globals.DialogAccepted) RefreshEdited(rule->nodeKey);
    // What was only looked at needs no saving.
    if (wasSaved && isOne && before.IsUnchanged()) {
        globals.DialogAccepted = false;
        globals.Saved = true;
    }
    Activate();
}

/// Mixtures, reactions and complexes bear the names of what they consist of.
void frmMain::RefreshEdited(std::string_view nodeKey) {
    if (nodeKey == "RL" || nodeKey == "RX") return RefreshLabels();
    ui::TreeNode* node = tvwTree.SelectedNode();
    if (node == nullptr) return;
    if (auto record = std::dynamic_pointer_cast<Record>(node->Tag.lock())) record->Refresh();
}

/// Only sets have rows to begin anew.
bool frmMain::MayRepeat() const {
    const std::string_view dialog = RepeatingDialog(Globals().CurrentKey);
    return !dialog.empty() && (CurrentBioSet() || CurrentSet()) && !Globals().ReadOnly &&
           ui::Forms::Current().Knows(dialog);
}

/// A set with the definition of the selected one, on the way of a new one.
void frmMain::mnuNewLike_Click() {
    KVOGlobal& globals = Globals();
    if (!HasMouseSelection() || !MayRepeat()) return;
    RenewCurrentMethod();
    globals.BioSetToRepeat = CurrentBioSet();
    if (!globals.BioSetToRepeat)
        globals.SetToRepeat = CurrentSet();
    else if (globals.CurrentKey != "RBR")
        TakeTypeOfBioSet();
    if (!OpenDialog(RepeatingDialog(globals.CurrentKey))) Activate();
}

} // namespace vexora
