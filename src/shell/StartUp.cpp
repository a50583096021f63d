#include "shell/StartUp.h"

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "globals/KVOGlobal.h"
#include "plot/frmBox.h"
#include "reference/Text.h"
#include "reference/Transliteration.h"
#include "shell/About.h"
#include "shell/Configuration.h"
#include "shell/Paths.h"
#include "shell/frmConfigure.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

void ShowIfPresent(const std::string& name) {
    const std::string path = JoinPath(Globals().HomeFolder, name);
    if (!FileOrFolderExists(path)) return;
    auto& box = ui::Forms::Current().Get<frmBox>("frmBox");
    const std::string error = box.LoadFile(path);
    if (error.empty())
        box.ShowModal();
    else
        ui::Say(error);
}

void RunFirstSteps() {
    KVOGlobal& globals = Globals();
    globals.FirstRun = globals.CompilerCode.empty();
    if (!globals.FirstRun) return;
    ui::Say(AboutText());
    ShowIfPresent("intro.rtf");
    ShowIfPresent("scope.rtf");
    globals.CompilerCode = globals.ContributorCode;
    WriteConfiguration();
}

/// The box comes up at every start; a name that is already known is not changed by the answer.
bool AskUserName() {
    KVOGlobal& globals = Globals();
    do {
        const auto typed = ui::TheDesktop().Ask({"Enter your name:", "Vexora", globals.UserName});
        const std::string answer(TrimBlanks(Transliterate(typed.value_or(""))));
        if (!globals.UserName.empty()) return true;
        if (!answer.empty()) {
            globals.UserName = answer;
            WriteConfiguration();
            return true;
        }
    } while (!AskExitWithoutUser());
    return false;
}

bool KnowUser() {
    if (!Globals().Organization.empty()) return AskUserName();
    ui::Forms::Current().Get("frmConfigure").ShowModal();
    return !Globals().ProgramEnds;
}

/// Opens the databases of the configuration; true when both are open. When that fails the user is
/// asked whether to correct the configuration: Yes shows frmConfigure, No sets the program to end.
bool OpenDatabases() {
    KVOGlobal& globals = Globals();
    const std::string fault = OpenDatabasesAt(globals.LocalDbPath, globals.CompoundDbPath);
    if (fault.empty()) return true;
    const bool correct = ui::AskYesNo(
        fault.substr(0, fault.find('\n')) + "\nWould you like to correct configuration?", "VXR");
    if (correct)
        ui::Forms::Current().Get("frmConfigure").ShowModal();
    else
        globals.ProgramEnds = true;
    return false;
}

} // namespace

void InitGlobals(const Places& places) {
    KVOGlobal& globals = Globals();
    globals.HomeFolder = places.Home;
    globals.InstalledFolder = places.Installed;
    globals.CurrentMethod = std::make_shared<clsMethod>();
    globals.CurrentProperty = std::make_shared<clsProperty>();
    SetConfigurationDefaults();
    ReadConfiguration();
    if (globals.ContributorCode.empty()) globals.ContributorCode = "XXX";
}

bool RunStartUp() {
    RunFirstSteps();
    if (!KnowUser()) return false;
    while (!OpenDatabases()) {
        if (Globals().ProgramEnds) return false;
    }
    return true;
}

} // namespace vexora
