#include "cli/Documents.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "cli/DocumentList.h"
#include "cli/ExitCodes.h"
#include "cli/Json.h"
#include "cli/OpenedDocument.h"
#include "globals/KVOGlobal.h"
#include "host/TreeText.h"
#include "records/DocumentCheck.h"
#include "records/LineWriter.h"
#include "records/Record.h"
#include "records/clsR.h"
#include "reference/SafeFile.h"
#include "shell/DocumentText.h"

namespace vexora {

namespace {

struct Arguments {
    std::optional<std::string> home;
    std::vector<std::string> documents;
    std::string out;
    std::string format = "text";
    bool isStrict = false;
    std::string argv0;
};

/// What a command made of one document, for standard output or for its place.
struct Product {
    std::string name; // what it is: "tree", "xml"
    std::string text;
    std::string file; // empty for standard output
    Printing print;   // of a text that need not stand in memory; its findings come with it
    bool keepsBackup = false;
    ExportFor readers = ExportFor::House;
};

/// Works on a document that has been read; the answer is an exit code.
using Command = int(OpenedDocument& document, Product& product);

bool IsHint(const Diagnostic& finding) {
    return finding.severity == Severity::Hint;
}

/// Hints are no reason to mend a document.
int ExitCodeOf(const std::vector<Diagnostic>& findings) {
    return std::ranges::all_of(findings, IsHint) ? kExitClean : kExitFindings;
}

int Check(OpenedDocument& document, Product&) {
    for (const DocumentFinding& finding : CheckDocument(document.LinesPassedOver()))
        document.Tell(finding.line, finding.severity, finding.text);
    return ExitCodeOf(document.Findings());
}

int Tree(OpenedDocument& document, Product& product) {
    product.name = "tree";
    product.text = host::TreeText(document.Tree());
    return kExitClean;
}

int Export(OpenedDocument& document, Product& product) {
    product.name = "xml";
    if (document.Files().Resolve(product.file) == document.Files().Resolve(document.Path())) {
        document.Tell(0, Severity::Error,
                      "the export cannot take the place of the record file itself");
        return kExitCannotWrite;
    }
    if (const auto text = NotKeptText(document.LinesPassedOver()); !text.empty())
        document.Tell(0, Severity::Warning, text);
    product.print = [&document, readers = product.readers](const auto& taker) {
        const ui::Date today = ui::TheDesktop().Today();
        for (const ExportFinding& finding : DocumentForExport(today, readers, taker)) {
            const Record* record = finding.record;
            document.Tell(record ? record->Line : 0,
                          finding.isError ? Severity::Error : Severity::Warning,
                          (record ? record->ShowKey() + ": " : "") + finding.text);
        }
    };
    return kExitClean;
}

/// What a document lost by being written anew, somebody would have to mend by hand.
bool TellWhatIsLost(OpenedDocument& document) {
    const PassedOver& passedOver = document.LinesPassedOver();
    if (const std::string text = NotKeptText(passedOver); !text.empty())
        document.Tell(0, Severity::Error, text);
    for (const LineLost& one : passedOver.lost)
        document.Tell(one.line, Severity::Error, one.text);
    return passedOver.linesNotKept > 0 || !passedOver.lost.empty();
}

int Save(OpenedDocument& document, Product& product) {
    product.name = "file";
    if (product.file.empty()) product.file = document.Path();
    if (TellWhatIsLost(document)) {
        document.Tell(0, Severity::Error, "the document is not written, for it would lack this");
        return kExitCannotWrite;
    }
    if (const Record* sample = SampleBesideSystem()) {
        document.Tell(sample->Line, Severity::Error, BesideSystemText);
        return kExitCannotWrite;
    }
    for (const auto& source : Globals().recR)
        for (const std::string& text : LeftOutOfSave(*source))
            document.Tell(0, Severity::Warning, text);
    product.keepsBackup = true;
    product.print = [](const auto& taker) { DocumentAsRecords(taker); };
    return kExitClean;
}

/// An object a document: where it stands, how it went, what there is to say, what came of it.
void PrintJson(const OpenedDocument& document, int exitCode, const Product& product) {
    std::cout << "{\"document\": " << JsonText(document.Path()) << ", \"exit\": " << exitCode
              << ", \"findings\": [";
    const char* before = "";
    for (const Diagnostic& finding : document.Findings()) {
        std::cout << std::exchange(before, ", ") << "{\"line\": " << finding.line
                  << ", \"severity\": \"" << SeverityWord(finding.severity)
                  << "\", \"text\": " << JsonText(finding.text) << '}';
    }
    std::cout << ']';
    if (!product.name.empty())
        std::cout << ", " << JsonText(product.name) << ": "
                  << JsonText(product.file.empty() ? product.text : product.file);
    std::cout << '}';
}

class Run {
public:
    Run(const Arguments& arguments, Command* command)
        : arguments_(arguments), command_(command),
          document_(command == Tree, arguments.format != "text") {}

    int All(const std::vector<std::pair<ListedDocument, std::string>>& documents) {
        int worst = document_.OpenDatabases(arguments_.home, arguments_.argv0);
        if (worst != kExitClean) return worst;
        const bool asArray = arguments_.format == "json";
        const char* before = asArray ? "[" : "";
        for (const auto& [listed, file] : documents) {
            std::cout << std::exchange(before, asArray ? ",\n" : "");
            worst = std::max(worst, One(listed, file));
            if (!std::cout.flush()) break; // nobody reads on; the program tells it at its end
        }
        if (asArray) std::cout << (documents.empty() ? "[]\n" : "]\n");
        return worst;
    }

private:
    int One(const ListedDocument& listed, const std::string& file) {
        Product product;
        product.file = file;
        if (arguments_.isStrict) product.readers = ExportFor::StrictReaders;
        int exitCode = listed.isEmptyFolder
                           ? document_.Refuse(listed.path, "the folder holds no record file")
                           : document_.Read(listed.path);
        if (exitCode == kExitClean) exitCode = command_(document_, product);
        if (product.print) exitCode = Print(product);
        if (arguments_.format != "text")
            PrintJson(document_, exitCode, product);
        else if (product.file.empty())
            std::cout << product.text;
        if (arguments_.format == "jsonl") std::cout << '\n';
        return exitCode;
    }
    int Print(Product& product) {
        if (!product.file.empty()) return Write(product);
        if (arguments_.format == "text")
            product.print([](std::string_view part) { std::cout << part; });
        else
            product.print([&](std::string_view part) { product.text += part; });
        return ExitCodeOfExport();
    }
    int Write(const Product& product) {
        std::error_code made; // a folder that cannot be made shows when the file is written
        const auto folder = std::filesystem::path(product.file).parent_path();
        if (!arguments_.out.empty()) std::filesystem::create_directories(folder, made);
        SaveOutcome outcome;
        try {
            outcome =
                WriteSafely(document_.Files(), product.file, product.print, product.keepsBackup);
        } catch (const SaveRefused& refused) {
            outcome.fault = refused.what();
        }
        const int exitCode = ExitCodeOfExport();
        if (outcome.fault.empty()) return exitCode;
        document_.Tell(0, outcome.isSaved ? Severity::Warning : Severity::Error,
                       product.file + (outcome.isSaved ? ": saved, but " : ": ") + outcome.fault);
        return outcome.isSaved ? std::max<int>(exitCode, kExitFindings) : kExitCannotWrite;
    }
    int ExitCodeOfExport() { return document_.Findings().empty() ? kExitClean : kExitFindings; }

    const Arguments& arguments_;
    Command* command_;
    OpenedDocument document_;
};

/// The documents, each with the file that is to be written; a fault ends the command.
int RunOnAll(Arguments arguments, Command* command) {
    std::string single;
    if (command == Export && arguments.documents.size() == 2 &&
        arguments.documents[1].ends_with(".xml")) {
        single = arguments.documents[1];
        arguments.documents.pop_back();
    }
    std::vector<std::pair<ListedDocument, std::string>> documents;
    std::set<std::string> files;
    for (const ListedDocument& listed : ListDocuments(arguments.documents)) {
        std::string file = single;
        if (!arguments.out.empty())
            file = arguments.out + "/" + listed.name + (command == Export ? ".xml" : ".txt");
        if (!file.empty() && !files.insert(file).second) {
            std::cerr << "error: two documents would be written to " << file << '\n';
            return kExitUsage;
        }
        documents.emplace_back(listed, file);
    }
    if (command == Export && documents.size() > 1 && arguments.out.empty()) {
        std::cerr << "error: --out DIR says where the exports of several documents go\n";
        return kExitUsage;
    }
    // The program ends with this: taking millions of records apart one by one would only cost time.
    static Run* run = nullptr;
    run = new Run(arguments, command);
    return run->All(documents);
}

} // namespace

void AddDocumentCommands(CLI::App& app, const std::string& argv0, int& exitCode) {
    auto arguments = std::make_shared<Arguments>();
    arguments->argv0 = argv0;
    const auto add = [&](const char* name, const char* what, const char* documents, Command* run) {
        CLI::App* command = app.add_subcommand(name, what);
        command->add_option("--home", arguments->home, "Application folder with the databases");
        command->add_option("DOCUMENT", arguments->documents, documents)->required();
        command
            ->add_option("--format", arguments->format,
                         "text, json (one array), or jsonl (one line a document)")
            ->check(CLI::IsMember({"text", "json", "jsonl"}));
        command->callback([arguments, run, &exitCode] { exitCode = RunOnAll(*arguments, run); });
        return command;
    };
    constexpr const char* Many = "Record files, and folders of them";
    CLI::App* xml = add(
        "export", "Write documents as ThermoML",
        "Record files, and folders of them; a second name that ends in .xml is the file to write",
        Export);
    xml->add_flag("--strict", arguments->isStrict,
                  "For readers that go by the name space and by structures alone");
    xml->add_option("--out", arguments->out,
                    "Folder for the exports; without it one document goes to standard output");
    CLI::App* save = add(
        "save", "Write documents anew as a save in the workbench does; the version before is .bak",
        Many, Save);
    save->add_option("--out", arguments->out, "Folder for what is written, in place of the files");
    add("check",
        "Tell what is wrong, doubtful or missing in documents; ends with 1 for errors and "
        "warnings, and with 0 for hints alone",
        Many, Check);
    add("tree", "Print the trees of documents", Many, Tree);
}

} // namespace vexora
