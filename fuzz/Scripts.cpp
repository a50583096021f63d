#include <sstream>
#include <string>

#include "Target.h"
#include "host/GoneFileSystem.h"
#include "host/Player.h"
#include "host/PosixFileSystem.h"
#include "support/SmallProgram.h"

namespace vexora::fuzz {

// Played on a small form with a control of each kind; nothing can be changed on the disk.
void Try(std::string_view text) {
    host::PosixFileSystem disk;
    host::GoneFileSystem files(disk);
    try {
        const host::Script script =
            host::ParseScript(text, "/nonexistent/fuzz.vxs", {{"OUT", "/nonexistent"}});
        host::Actor actor;
        std::ostringstream out;
        std::ostringstream err;
        host::PlayOptions options;
        options.today = ui::Date{2026, 1, 15};
        options.keepGoing = true;
        host::Player player(actor, files, test::MakeSmallProgram, options, out, err);
        const bool held = player.Play(script);
        Must(held == err.str().empty(), "a script holds, or it is told what does not");
    } catch (const host::ScriptError& error) {
        Must(std::string_view(error.what()).starts_with("/nonexistent/fuzz.vxs:"),
             "an error of a script says where it stands");
    }
}

} // namespace vexora::fuzz
