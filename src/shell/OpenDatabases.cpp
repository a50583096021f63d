#include "shell/OpenDatabases.h"

#include "globals/KVOGlobal.h"
#include "shell/Paths.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

std::string OpenDatabasesAt(const std::string& localPath, const std::string& compoundPath) {
    for (const std::string& path : {localPath, compoundPath}) {
        if (!FileOrFolderExists(path)) return path + " does not exist";
    }
    return Globals().Databases.OpenBoth(localPath, compoundPath).value_or(std::string());
}

bool OpenDatabases() {
    KVOGlobal& globals = Globals();
    if (OpenDatabasesAt(globals.LocalDbPath, globals.CompoundDbPath).empty()) return true;
    const bool correct = ui::AskYesNo("Specified databases not found or invalid\n"
                                      "Would you like to correct configuration?",
                                      "VXR");
    if (correct)
        ui::Forms::Current().Get("frmConfigure").ShowModal();
    else
        globals.ProgramEnds = true;
    return false;
}

} // namespace vexora
