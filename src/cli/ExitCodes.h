// Exit codes of the command line tool.
#pragma once

namespace vexora {

enum ExitCode : int {
    kExitClean = 0,
    kExitFindings = 1,
    kExitUsage = 2,
    kExitUnreadable = 3,
    kExitCannotWrite = 4
};

} // namespace vexora
