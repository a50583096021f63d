#pragma once

#include <memory>
#include <string>

#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

class RecoveryFolder;
struct KVOGlobal;

/// Where the workbench finds its things.
struct Places {
    std::string Home;      // application folder: VXR.ini, the two databases, intro.rtf, scope.rtf
    std::string Installed; // what was installed: databases to copy from, help pages; may be empty
    std::shared_ptr<RecoveryFolder> Recovery = {}; // copies of what is not saved; null keeps none
};

/// The whole program without its front: the registry of forms, the globals, the main form. One at a
/// time; making it does nothing visible, Start runs the start-up steps, and destroying it ends the
/// program as if it had been killed: nothing is saved, nothing is asked.
class Workbench {
public:
    Workbench(ui::Desktop& desktop, Places places);
    ~Workbench();
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;

    /// Runs start-up and opens the document of the command line, if there is one. False when the
    /// user chose to end the program on the way.
    bool Start(const std::string& commandLine);
    /// The main form is open.
    bool IsRunning() const;
    /// Closes the main form as its close button would; false when it stays open.
    bool Quit();

    ui::Forms& Forms() { return *forms_; }

private:
    Places places_;
    std::unique_ptr<ui::Forms> forms_;
    std::unique_ptr<KVOGlobal> globals_;
};

} // namespace vexora
