#include "cli/Refdb.h"

#include "cli/ExitCodes.h"
#include "reference/Database.h"
#include "reference/RefdbBuild.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>

namespace vexora {

namespace {

int Build(const std::string& data, const std::string& out) {
    if (!std::filesystem::is_directory(data)) {
        std::cerr << data << ": error: no such folder\n";
        return kExitUnreadable;
    }
    try {
        const auto findings = BuildReferenceDatabases(data, out);
        for (const TableFinding& finding : findings)
            std::cerr << finding.Line() << '\n';
        return findings.empty() ? kExitClean : kExitFindings;
    } catch (const DatabaseError& error) {
        std::cerr << "error: " << error.what() << '\n';
        return kExitCannotWrite;
    }
}

int Import(const std::string& file, const std::string& database) {
    try {
        const ImportResult result = ImportCompounds(
            file, database, [](std::size_t lines) { std::cerr << lines << " lines read\n"; });
        if (!result.readable) {
            std::cerr << file << ": error: the file cannot be read\n";
            return kExitUnreadable;
        }
        for (const TableFinding& finding : result.skipped)
            std::cerr << finding.Line() << '\n';
        std::cout << result.added << " added, " << result.present << " already there, "
                  << result.skipped.size() << " skipped\n";
        return result.skipped.empty() ? kExitClean : kExitFindings;
    } catch (const DatabaseError& error) {
        std::cerr << "error: " << error.what() << '\n';
        return error.CannotWrite() ? kExitCannotWrite : kExitUnreadable;
    }
}

} // namespace

void AddRefdbCommands(CLI::App& app, int& exitCode) {
    struct Arguments {
        std::string data = "data";
        std::string out;
        std::string compounds;
        std::string database;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App* refdb = app.add_subcommand("refdb", "Make or extend the reference databases");
    refdb->require_subcommand(1);

    CLI::App* build = refdb->add_subcommand("build", "Make both databases from their text tables");
    build->add_option("--data", arguments->data, "Folder of the .tsv tables")
        ->capture_default_str();
    build->add_option("--out", arguments->out, "Folder the databases go to")->required();
    build->callback([arguments, &exitCode] { exitCode = Build(arguments->data, arguments->out); });

    CLI::App* import = refdb->add_subcommand("import", "Add compounds to a database");
    import->add_option("--compounds", arguments->compounds, "RN, name, formula (.tsv or .csv)")
        ->required();
    import->add_option("DATABASE", arguments->database, "The compound database (VXR.mdb)")
        ->required();
    import->callback(
        [arguments, &exitCode] { exitCode = Import(arguments->compounds, arguments->database);
});
} // namespace vexora

} // namespace vexora
