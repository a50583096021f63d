#include "shell/Workbench.h"

#include "globals/KVOGlobal.h"
#include "shell/Paths.h"
#include "shell/RegisterForms.h"
#include "shell/StartUp.h"
#include "shell/frmMain.h"

namespace vexora {

Workbench::Workbench(ui::Desktop& desktop, Places places)
    : places_(std::move(places)), forms_(std::make_unique<ui::Forms>(desktop)),
      globals_(std::make_unique<KVOGlobal>()) {
    RegisterForms(*forms_);
}

Workbench::~Workbench() {
    forms_->CloseAll();
    globals_->tvwTree = nullptr;
}

bool Workbench::Start(const std::string& commandLine) {
    InitGlobals(places_);
    if (!RunStartUp()) {
        forms_->TheDesktop().EndProgram();
        return false;
    }
    auto& shell = forms_->Get<frmMain>("frmMain");
    shell.Show();
    shell.KeepRecovery(places_.Recovery);
    // What was not saved goes first; the document of the command line is there another time too.
    if (!shell.RestoreDocument()) shell.OpenFromCommandLine(DocumentOfCommandLine(commandLine));
    return shell.IsOpen();
}

bool Workbench::IsRunning() const {
    return forms_->Find("frmMain") != nullptr;
}

bool Workbench::Quit() {
    ui::Form* shell = forms_->Find("frmMain");
    return shell == nullptr || shell->Close();
}

} // namespace vexora
