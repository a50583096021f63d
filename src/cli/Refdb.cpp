#include "cli/Refdb.h"

#include "chem/TableChecks.h"
#include "chem/clsAtom.h"
#include "cli/ExitCodes.h"
#include "host/FindPlaces.h"
#include "reference/CompoundTable.h"
#include "reference/RefdbBuild.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>

namespace vexora {

namespace {

namespace fs = std::filesystem;

constexpr const char* VocabularyName = "VXRLocal.mdb";
constexpr const char* CompoundsName = "VXR.mdb";

struct Arguments {
    std::string argv0;
    std::string data = "data";
    std::string out;
    std::string compounds;
    std::string database;
    std::string folder;
    bool summary = false;
    std::string rn;
    std::string formula;
    std::vector<std::string> names;
};

int TellUnreadable(const std::string& text) {
    std::cerr << "error: " << text << '\n';
    return kExitUnreadable;
}

int Build(const Arguments& arguments) {
    if (!fs::is_directory(arguments.data))
        return TellUnreadable(arguments.data + ": no such folder");
    try {
        const auto findings = BuildReferenceDatabases(arguments.data, arguments.out);
        for (const LineRemark& finding : findings)
            std::cerr << finding.Line() << '\n';
        return findings.empty() ? kExitClean : kExitFindings;
    } catch (const DatabaseError& error) {
        std::cerr << "error: " << error.what() << '\n';
        return kExitCannotWrite;
    }
}

std::string InstalledFolder(const std::string& argv0) {
    return host::FindPlaces(std::nullopt, argv0).Installed;
}

/// The vocabulary beside a compound database, else the installed one: formulas are read with it.
std::string VocabularyFor(const Arguments& arguments) {
    const fs::path beside = fs::path(arguments.database).parent_path() / VocabularyName;
    const fs::path installed = fs::path(InstalledFolder(arguments.argv0)) / VocabularyName;
    std::error_code error;
    for (const fs::path& path : {beside, installed})
        if (fs::exists(path, error)) return path.string();
    throw DatabaseError("no " + std::string(VocabularyName) +
                        " to read formulas with, neither beside the database nor installed");
}

int TellImported(const ImportResult& result) {
    for (const LineRemark& finding : result.skipped)
        std::cerr << finding.Line() << '\n';
    std::cout << result.added << " added, " << result.present << " already there, "
              << result.skipped.size() << " skipped\n";
    return result.skipped.empty() ? kExitClean : kExitFindings;
}

int Import(const Arguments& arguments) {
    ReferenceDatabases databases;
    databases.LocalDb.Open(VocabularyFor(arguments), true);
    UseDatabases(&databases);
    const ImportResult result = ImportCompounds(
        arguments.compounds, arguments.database,
        {CanonicalFormula, [](std::size_t lines) { std::cerr << lines << " lines read\n"; },
         HydrateReading});
    if (!result.readable)
        return TellUnreadable(arguments.compounds + ": " +
                              (result.fault.empty() ? "the file cannot be read" : result.fault));
    return TellImported(result);
}

int TellRefused(const std::string& text) {
    std::cerr << "error: " << text << '\n';
    return kExitFindings;
}

/// One compound, or those of a file.
int Add(const Arguments& arguments) {
    if (!arguments.compounds.empty()) return Import(arguments);
    if (arguments.rn.empty()) {
        std::cerr << "error: --rn or --list is required; see vexora-cli refdb add --help\n";
        return kExitUsage;
    }
    ReferenceDatabases databases;
    databases.LocalDb.Open(VocabularyFor(arguments), true);
    UseDatabases(&databases);
    const auto rn = ReadRegistryNumber(arguments.rn);
    if (!rn) return TellRefused("\"" + arguments.rn + "\" is no valid registry number");
    if (const std::string meant = HydrateReading(arguments.formula); !meant.empty())
        return TellRefused("\"" + arguments.formula + "\" may be a hydrate, " + meant +
                           "; write its dot as *");
    const std::string formula = CanonicalFormula(arguments.formula);
    if (formula.empty()) return TellRefused("\"" + arguments.formula + "\" is no formula");
    databases.CompoundDb.Open(arguments.database, false);
    const CompoundAdded result = AddCompound(databases.CompoundDb, *rn, formula, arguments.names);
    if (!result.fault.empty()) return TellRefused(result.fault);
    std::cout << result.added << " added, " << result.present << " already there\n";
    return kExitClean;
}

int PrintAdded(const Arguments& arguments) {
    Database database;
    database.Open(arguments.database, true);
    std::cout << AddedCompoundsText(database);
    return kExitClean;
}

int Check(const Arguments& arguments) {
    const fs::path folder =
        arguments.folder.empty() ? InstalledFolder(arguments.argv0) : arguments.folder;
    ReferenceDatabases databases;
    if (const auto error = databases.OpenBoth((folder / VocabularyName).string(),
                                              (folder / CompoundsName).string()))
        return TellUnreadable(*error);
    UseDatabases(&databases);
    const RowRemarks findings = CheckTables(databases);
    for (const RowRemark& finding : findings)
        std::cerr << finding.Line() << '\n';
    if (arguments.summary)
        for (const auto& [what, count] : CountTables(databases))
            std::cout << what << ' ' << count << '\n';
    return findings.empty() ? kExitClean : kExitFindings;
}

} // namespace

void AddRefdbCommands(CLI::App& app, const std::string& argv0, int& exitCode) {
    auto arguments = std::make_shared<Arguments>();
    arguments->argv0 = argv0;
    CLI::App* refdb = app.add_subcommand("refdb", "Make, extend or check the reference databases");
    refdb->require_subcommand(1);
    const auto add = [&](const char* name, const char* what, int (*run)(const Arguments&)) {
        CLI::App* command = refdb->add_subcommand(name, what);
        command->callback([arguments, run, &exitCode] {
            try {
                exitCode = run(*arguments);
            } catch (const DatabaseError& error) {
                std::cerr << "error: " << error.what() << '\n';
                exitCode = error.CannotWrite() ? kExitCannotWrite : kExitUnreadable;
            }
            UseDatabases(nullptr);
        });
        return command;
    };
    CLI::App* build = add("build", "Make both databases from their text tables", Build);
    build->add_option("--data", arguments->data, "Folder of the .tsv tables")
        ->capture_default_str();
    build->add_option("--out", arguments->out, "Folder the databases go to")->required();

    CLI::App* import = add("import", "Add compounds to a database", Import);
    import->add_option("--compounds", arguments->compounds, "RN, name, formula (.tsv or .csv)")
        ->required();
    import->add_option("DATABASE", arguments->database, "The compound database (VXR.mdb)")
        ->required();

    CLI::App* one = add("add", "Add one compound, or those of a file, to a database", Add);
    one->add_option("--rn", arguments->rn, "Registry number, 7732-18-5");
    one->add_option("--formula", arguments->formula, "Empirical formula");
    one->add_option("--name", arguments->names, "A name; may be given several times")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    one->add_option("--list", arguments->compounds, "RN, name, formula (.tsv or .csv)")
        ->excludes("--rn", "--formula", "--name");
    one->add_option("DATABASE", arguments->database, "The compound database (VXR.mdb)")->required();

    CLI::App* added =
        add("added", "Print what was added to a database, as a list for import", PrintAdded);
    added->add_option("DATABASE", arguments->database, "The compound database (VXR.mdb)")
        ->required();

    CLI::App* check = add("check", "Tell what is wrong in the tables of both databases", Check);
    check->add_flag("--summary", arguments->summary, "Print how much the tables hold");
    check->add_option("DIR", arguments->folder,
                      "Folder of the databases; the installed ones when left out");
}

} // namespace vexora
