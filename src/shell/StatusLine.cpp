#include "shell/StatusLine.h"

#include "globals/KVOGlobal.h"

namespace vexora {

std::string StatusText(const std::string& fileTitle, const std::string& nextSteps) {
    const KVOGlobal& globals = Globals();
    std::string text;
    if (globals.recR.IsEmpty()) {
        text = "No document";
    } else {
        text = fileTitle.empty() ? "New document" : fileTitle;
        text += globals.ReadOnly ? " - read only" : globals.Saved ? " - saved" : " - not saved";
    }
    if (globals.ShellLocked) return text + " - a dialog is open";
    return nextSteps.empty() ? text : text + " - next: " + nextSteps;
}

} // namespace vexora
