#include "cli/Play.h"

#include "host/Actor.h"
#include "host/PlayMain.h"
#include "host/WorkbenchProgram.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace vexora {

namespace {

constexpr const char* PlayHelp =
    "Play session scripts: [--home DIR] [--date YYYY-MM-DD] [--var NAME=TEXT]... "
    "[--allow-files DIR]... [--keep-going] [--recovery] FILE...; a script changes files only in "
    "the home, in its own folder, in folders that a variable names, beside the documents that it "
    "opens, and in those that --allow-files names";

} // namespace

void AddPlayCommand(CLI::App& app, int& exitCode) {
    CLI::App* play = app.add_subcommand("play", PlayHelp);
    play->prefix_command();
    play->callback([play, &app, &exitCode] {
        host::Actor actor;
        exitCode = host::PlayMain(play->remaining(),
                                  {actor, std::cout, std::cerr, app.get_name(), host::WorkbenchIn});
    });
}

} // namespace vexora
