// The buttons of the toolbar: which are live, and what happens when one is pressed.

#include "chem/clsMethod.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "shell/ToolbarOffers.h"
#include "shell/frmMain.h"
#include "ui/Forms.h"

namespace vexora {

/// Makes the working method anew, with the year of the source; done before each dialog.
void frmMain::RenewCurrentMethod() {
    KVOGlobal& globals = Globals();
    globals.CurrentMethod = std::make_shared<clsMethod>();
    if (!globals.CurrentR) return;
    const auto year = ParseInteger(globals.CurrentR->YEARPUB);
    globals.CurrentMethod->Year = static_cast<std::int32_t>(year.value_or(0));
}

std::vector<ui::StepButton*> frmMain::Steps() {
    return {&AddRef,   &AddComp, &AddComplex, &AddSample, &AddMixt,
            &AddReact, &AddProp, &AddTable,   &AddBio};
}

void frmMain::WireToolbar() {
    for (ui::StepButton* button : Steps()) {
        Toolbar1.Add(*button);
        button->OnClick = [this, button] { ToolbarClick(*button); };
    }
}

void frmMain::SetLocked(bool locked) {
    Globals().ShellLocked = locked;
    if (locked) lastDone_.clear();
    const bool mayChange = !Globals().ReadOnly || Globals().recR.IsEmpty();
    if (!locked) AddRef.Caption(Globals().recR.IsEmpty() ? "Start" : "Reference");
    for (ui::ToolButton* button : Toolbar1.Buttons())
        button->Enabled(!locked && mayChange && IsOffered(button->Name()));
    for (ui::MenuItem* menu : {&mnuFile, &mnuEdit, &mnuTools})
        menu->Enabled(!locked);
    txtFind.Enabled(!locked);
    if (!locked) {
        mnuCompare.Enabled(!Globals().recR.IsEmpty());
        mnuNewLike.Enabled(MayRepeat());
        mnuUndoDelete.Enabled(deleted_ != nullptr);
        mnuUndoProcess.Enabled(Globals().Processed != nullptr);
        mnuCheck.Enabled(!Globals().recR.IsEmpty());
        mnuDetect.Enabled(MayDetect());
        mnuBio.Enabled(MayCompact());
    }
    RefreshTexts();
}

/// Whatever a button ends in, the shell is live again unless a dialog is open.
void frmMain::ToolbarClick(const ui::ToolButton& button) {
    ForgetAdded();
    RenewCurrentMethod();
    DisableShell();
    if (OpenFromToolbar(button.Name())) return;
    Activate();
}

bool frmMain::OpenFromToolbar(std::string_view button) {
    const auto dialog = DialogOf(button);
    return dialog && OpenDialog(*dialog);
}

/// True when the dialog is open afterwards, or has led on to another one.
bool frmMain::OpenDialog(std::string_view dialog) {
    DisableShell();
    try {
        OpenInChain("frmMain", dialog);
    } catch (...) { // a dialog that cannot open must not leave the shell dead and unsaved
        Globals().OpenForms.clear();
        Activate();
        throw;
    }
    return !Globals().OpenForms.empty();
}

} // namespace vexora
