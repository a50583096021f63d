#include "cli/Documents.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <optional>

#include "cli/ExitCodes.h"
#include "cli/OpenedDocument.h"
#include "host/TreeText.h"
#include "records/DocumentCheck.h"
#include "reference/SafeFile.h"
#include "shell/DocumentText.h"

namespace vexora {

namespace {

struct Arguments {
    std::optional<std::string> home;
    std::string document;
    std::string xml;
    std::string argv0;
};

/// Works on a document that has been read; the answer is an exit code.
using Command = int(OpenedDocument& document, const Arguments& arguments);

void TellLinesNotKept(OpenedDocument& document) {
    const int count = document.LinesNotKept();
    if (count == 0) return;
    document.Tell(0, false,
                  std::to_string(count) + (count == 1 ? " line holds" : " lines hold") +
                      " data of kinds that this edition does not keep");
}

int Check(OpenedDocument& document, const Arguments&) {
    TellLinesNotKept(document);
    for (const LineLost& lost : document.LinesLost())
        document.Tell(lost.line, false, lost.text);
    for (const DocumentFinding& finding : CheckDocument()) {
        document.Tell(finding.line, finding.isError, finding.text);
    }
    return document.Findings() == 0 ? kExitClean : kExitFindings;
}

int Tree(OpenedDocument& document, const Arguments&) {
    std::cout << host::TreeText(document.Tree());
    return kExitClean;
}

int Export(OpenedDocument& document, const Arguments& arguments) {
    if (document.Files().Resolve(arguments.xml) == document.Files().Resolve(arguments.document)) {
        std::cerr << arguments.xml << ": error: this is the record file itself\n";
        return kExitCannotWrite;
    }
    TellLinesNotKept(document);
    const std::string xml = DocumentAsXml(ui::TheDesktop().Today());
    if (arguments.xml.empty()) {
        std::cout << xml;
    } else if (const SaveOutcome outcome = WriteSafely(document.Files(), arguments.xml, xml, false);
               !outcome.fault.empty()) {
        std::cerr << arguments.xml << (outcome.isSaved ? ": warning: saved, but " : ": error: ")
                  << outcome.fault << '\n';
        if (!outcome.isSaved) return kExitCannotWrite;
    }
    return document.Findings() == 0 ? kExitClean : kExitFindings;
}

} // namespace

void AddDocumentCommands(CLI::App& app, const std::string& argv0, int& exitCode) {
    auto arguments = std::make_shared<Arguments>();
    arguments->argv0 = argv0;
    const auto add = [&](const char* name, const char* what, Command* run) {
        CLI::App* command = app.add_subcommand(name, what);
        command->add_option("--home", arguments->home, "Application folder with the databases");
        command->add_option("DOCUMENT", arguments->document, "A record file")->required();
        command->callback([arguments, run, &exitCode] {
            OpenedDocument document(arguments->document, run == Tree);
            exitCode = document.Open(arguments->home, arguments->argv0);
            if (exitCode == kExitClean) exitCode = run(document, *arguments);
        });
        return command;
    };
    add("export", "Write a document as ThermoML", Export)
        ->add_option("XML", arguments->xml, "The file to write; standard output when left out");
    add("check", "Tell what is wrong or doubtful in a document", Check);
    add("tree", "Print the tree of a document", Tree);
}

} // namespace vexora
