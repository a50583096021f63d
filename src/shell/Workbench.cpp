#include "shell/Workbench.h"

#include "globals/KVOGlobal.h"
#include "shell/Paths.h"
#include "shell/RegisterForms.h"
#include "shell/StartUp.h"
#include "shell/frmMain.h"

namespace vexora {

class WorkbenchState {
public:
    explicit WorkbenchState(Places found) : places(std::move(found)) {}

    KVOGlobal globals;
    Places places;
};

Workbench::Workbench(ui::Desktop& desktop, Places places)
    : forms_(std::make_unique<ui::Forms>(desktop)),
      state_(std::make_unique<WorkbenchState>(std::move(places))) {
    RegisterForms(*forms_);
}

Workbench::~Workbench() {
    forms_->CloseAll();
    state_->globals.tvwTree = nullptr;
}

bool Workbench::Start(const std::string& commandLine) {
    InitGlobals(state_->places);
    if (!RunStartUp()) {
        forms_->TheDesktop().EndProgram();
        return false;
    }
    auto& shell = forms_->Get<frmMain>("frmMain");
    shell.Show();
    shell.OpenFromCommandLine(DocumentOfCommandLine(commandLine));
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
