#include "cli/Compare.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "cli/ExitCodes.h"
#include "cli/OpenedDocument.h"
#include "records/Differences.h"
#include "records/Outline.h"
#include "records/clsR.h"

namespace vexora {

namespace {

struct Arguments {
    std::optional<std::string> home;
    std::string before, after;
};

/// Only one document can be open at a time; nothing, with its exit code, for one that cannot be
/// read.
std::optional<Outline> Read(const std::string& path, const Arguments& arguments,
                            const std::string& argv0, int& exitCode) {
    OpenedDocument document(false);
    exitCode = document.Open(path, arguments.home, argv0);
    if (exitCode != kExitClean) return std::nullopt;
    return OutlineOfDocument();
}

int Compare(const Arguments& arguments, const std::string& argv0) {
    int exitCode = kExitClean;
    const auto before = Read(arguments.before, arguments, argv0, exitCode);
    if (!before) return exitCode;
    const auto after = Read(arguments.after, arguments, argv0, exitCode);
    if (!after) return exitCode;
    const std::vector<Difference> differences = DifferencesOf(*before, *after);
    for (const Difference& difference : differences)
        std::cout << DifferenceText(difference) << '\n';
    return differences.empty() ? kExitClean : kExitFindings;
}

} // namespace

void AddCompareCommand(CLI::App& app, const std::string& argv0, int& exitCode) {
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command =
        app.add_subcommand("diff", "Tell what a document says differently from an earlier one; "
                                   "ends with 0 for nothing and with 1 for differences");
    command->add_option("--home", arguments->home, "Application folder with the databases");
    command->add_option("BEFORE", arguments->before, "The earlier record file")->required();
    command->add_option("AFTER", arguments->after, "The later record file")->required();
    command->callback([arguments, argv0, &exitCode] { exitCode = Compare(*arguments, argv0); });
}

} // namespace vexora
