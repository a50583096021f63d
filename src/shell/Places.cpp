#include "shell/Places.h"

namespace vexora {

std::string PrepareHome(const Places& places, ui::FileSystem& files) {
    if (std::string error = files.MakeFolder(places.Home); !error.empty()) {
        return places.Home + ": " + error;
    }
    if (places.Installed.empty() || files.Resolve(places.Installed) == files.Resolve(places.Home))
        return {};
    for (const char* name : {"VXRLocal.mdb", "VXR.mdb", "intro.rtf", "scope.rtf"}) {
        const std::string source = places.Installed + "/" + name;
        const std::string target = places.Home + "/" + name;
        if (files.Exists(target) || !files.Exists(source)) continue;
        if (const std::string error = files.Copy(source, target); !error.empty()) {
            return target + ": " + error;
        }
    }
    return {};
}

void BringIntroduction(const Places& places, ui::FileSystem& files) {
    if (places.Installed.empty() || files.Exists(places.Home + "/VXR.ini")) return;
    for (const char* name : {"/intro.rtf", "/scope.rtf"}) {
        const std::string source = places.Installed + "/help" + name;
        const std::string target = places.Home + name;
        if (!files.Exists(target) && files.Exists(source)) files.Copy(source, target);
    }
}

} // namespace vexora
