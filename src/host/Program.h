#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora::host {

/// The program that a script plays on, as far as the player knows it: the workbench, or a small
/// form in a test. It shows nothing before Start; destroying it ends the program at once, nothing
/// saved and nothing asked.
class Program {
public:
    virtual ~Program() = default;

    /// Runs start-up with the document of the command line; false when it ended on the way.
    virtual bool Start(const std::string& commandLine) = 0;
    /// The main form while it is open, or null.
    virtual ui::Form* MainForm() = 0;
    virtual ui::Forms& Forms() = 0;
};

using MakeProgram = std::function<std::unique_ptr<Program>(ui::Desktop&)>;

} // namespace vexora::host
