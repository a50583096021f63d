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

int main(int argc, char** argv) {
    CLI::App app("Vexora without a screen: data on standard output, diagnostics on standard error",
                 "vexora-cli");
    app.set_version_flag("--version", "vexora-cli " VEXORA_VERSION);
    app.require_subcommand(1);
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
        return app.exit(error) == 0 ? vexora::kExitClean : vexora::kExitUsage;
    } catch (const vexora::DatabaseError& error) {
        std::cerr << "error: " << error.what() << '\n';
        return vexora::kExitUnreadable;
    }
    if (std::cout.flush()) return exitCode;
    std::cerr << "error: standard output cannot be written\n";
    return vexora::kExitCannotWrite;
}
