#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host/Actor.h"
#include "host/Program.h"
#include "shell/Workbench.h"

namespace vexora::host {

/// The front that plays: its hands, its streams and the program that it plays on.
struct PlayFront {
    Actor& actor;
    std::ostream& out;
    std::ostream& err;
    std::string argv0;
    std::function<MakeProgram(const Places&)> program; // WorkbenchIn, unless a test brings another
};

/// Plays scripts as the command line asks: [--home DIR] [--date YYYY-MM-DD] [--var NAME=TEXT]...
/// [--allow-files DIR]... [--keep-going] [--recovery] [--shots DIR] FILE..., each FILE in a fresh
/// program on the same home. Every script is read before the first is played. A script changes
/// files in its own folder, in the home, in OUT and any other folder that a variable names, beside
/// the documents that it opens, and where --allow-files says so. The answer is the exit status: 0
/// when every line held, 1 when one did not, 2 when a script or the command line is malformed.
int PlayMain(const std::vector<std::string>& arguments, const PlayFront& front);

} // namespace vexora::host
