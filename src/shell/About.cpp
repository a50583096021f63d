#include "shell/About.h"

namespace vexora {

std::string AboutText() {
    const std::string version = VEXORA_VERSION;
    return "Vexora\n"
           "Version " +
           version.substr(0, version.rfind('.')) +
           "\n"
           "Workbench for thermophysical and thermochemical data\n"
           "Written by the Vexora developers\n"
           "Help and contact: see the Help menu";
}

// The revision of the sources stands for the build: a date would make two builds of the same
// sources differ.
std::string AboutTextWithLicences() {
    const std::string build = VEXORA_REVISION;
    return AboutText() + "\n\nBuild: " VEXORA_VERSION +
           (build.empty() ? "" : ", revision " + build) +
           "\n\n"
           "Made with these libraries:\n"
           "Qt 6 (the windows): GNU Lesser General Public License, version 3\n"
           "SQLite (the databases): public domain\n"
           "CLI11 (the command line): BSD License, 3 clauses";
}

} // namespace vexora
