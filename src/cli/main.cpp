#include "cli/Compare.h"
#include "cli/Documents.h"
#include "cli/ExitCodes.h"
#include "cli/Play.h"
#include "cli/Refdb.h"
#include "cli/SetTable.h"
#include "reference/Database.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <iostream>
#include <new>
#include <string>

namespace {

/// "vexora-cli refdb build": as far as the command line was understood.
std::string CommandOf(const CLI::App& app) {
    const auto parsed = app.get_subcommands();
    return parsed.empty() ? app.get_name() : app.get_name() + " " + CommandOf(*parsed.front());
}

/// What is wrong in one line. An argument that nobody knows goes before one that is missing.
std::string UsageFault(const CLI::App* app, const CLI::Error& error) {
    const auto unknown = app->remaining(true);
    const std::string fault =
        unknown.empty() ? error.what() : "unexpected argument " + unknown.front();
    return "error: " + fault + "; see " + CommandOf(*app) + " --help\n";
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app("Vexora without a screen: data on standard output, diagnostics on standard error",
                 "vexora-cli");
    app.set_version_flag("--version", "vexora-cli " VEXORA_VERSION);
    app.require_subcommand(1);
    app.failure_message(UsageFault);
    int exitCode = vexora::kExitClean;
    std::signal(SIGPIPE, SIG_IGN); // whoever reads may stop: that is told below
    vexora::AddDocumentCommands(app, argv[0], exitCode);
    vexora::AddCompareCommand(app, argv[0], exitCode);
    vexora::AddTableCommand(app, argv[0], exitCode);
    vexora::AddRefdbCommands(app, argv[0], exitCode);
    vexora::AddPlayCommand(app, exitCode);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        exitCode = app.exit(error) == 0 ? vexora::kExitClean : vexora::kExitUsage;
    } catch (const vexora::DatabaseError& error) {
        std::cerr << "error: " << error.what() << '\n';
        return vexora::kExitUnreadable;
    } catch (const std::bad_alloc&) {
        std::cerr << "error: the memory does not suffice\n";
        return vexora::kExitUnreadable;
    }
    if (std::cout.flush()) return exitCode;
    std::cerr << "error: standard output cannot be written\n";
    return vexora::kExitCannotWrite;
}
