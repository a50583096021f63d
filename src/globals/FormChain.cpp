#include "globals/FormChain.h"

#include <string>

#include "globals/KVOGlobal.h"
#include "ui/Forms.h"

namespace vexora {

void OpenInChain(std::string_view opener, std::string_view dialog) {
    Globals().OpenForms.emplace_back(opener);
    Globals().DialogAccepted = false;
    ui::Forms::Current().Get(dialog).Show();
}

void LeadOn(std::string_view opener, std::string_view next) {
    OpenInChain(opener, next);
    ui::Form* form = ui::Forms::Current().Find(opener);
    if (form == nullptr) return;
    if (Globals().AdvancedMode)
        form->Hide();
    else
        form->Close();
}

void LeadOnAndWait(std::string_view opener, std::string_view next) {
    OpenInChain(opener, next);
    if (ui::Form* form = ui::Forms::Current().Find(opener)) form->Hide();
}

void GoOn(ui::Form& dialog, ui::TreeNode& node, std::string_view button) {
    if (!dialog.Close()) return;
    ui::Form* const shell = ui::Forms::Current().Find("frmMain");
    if (!shell || !Globals().tvwTree) return;
    Globals().tvwTree->UserNodeClick(node);
    if (ui::Control* const next = shell->Find(button)) next->UserClick();
}

void CloseForm() {
    KVOGlobal& globals = Globals();
    if (globals.OpenForms.empty() || globals.IsEditingInPlace()) return;
    const std::string opener = globals.OpenForms.back();
    globals.OpenForms.pop_back();
    NoteAccepted(); // or it is not, then nothing is done
    if (opener != "frmMain") {
        ui::Form* form = ui::Forms::Current().Find(opener);
        if (form && (globals.AdvancedMode || !form->IsVisible())) form->Show();
    }
    if (!globals.OpenForms.empty()) return;
    if (ui::Form* shell = ui::Forms::Current().Find("frmMain")) shell->Activate();
}

void NoteAccepted() {
    const KVOGlobal& globals = Globals();
    if (globals.OpenForms.empty() || globals.IsEditingInPlace()) return;
    if (ui::Form* const shell = ui::Forms::Current().Find("frmMain")) shell->Activate();
}

bool ChainForm::IsGuided() const {
    const auto& openers = Globals().OpenForms;
    return IsModal() || (!openers.empty() && openers.back() != "frmMain");
}

} // namespace vexora
