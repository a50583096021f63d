#include "cli/SetTable.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/ExitCodes.h"
#include "cli/Json.h"
#include "cli/OpenedDocument.h"
#include "entry/TableColumns.h"
#include "host/Reach.h"
#include "host/TreeText.h"
#include "records/DataSet.h"
#include "records/PropertyChain.h"
#include "records/Walk.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

struct Arguments {
    std::optional<std::string> home;
    std::string document, node;
    std::string format = "tsv";
    bool list = false, noHead = false, system = false;
};

/// The cells of a set as its table shows them, with heads that say what a column holds.
struct Cells {
    std::vector<std::string> heads;
    std::vector<std::vector<std::string>> rows;
};

/// "Temperature [K] (Liquid)"; a statement is "Uncert. of Temperature".
std::string HeadOf(const TableColumn& column, const std::vector<Quantity>& quantities) {
    const auto found = std::ranges::find(quantities, column.item, &Quantity::item);
    if (found == quantities.end() || column.kind == TableColumn::Kind::Tie ||
        column.kind == TableColumn::Kind::KVO)
        return column.head;
    if (column.kind != TableColumn::Kind::Value) return column.head + " of " + found->name;
    std::string head = found->name;
    if (!found->unit.empty()) head += " [" + found->unit + "]";
    const std::string phase = PhaseName(found->phase);
    // A name of a mixture says the phase where it matters.
    const bool isSaid = IsBlankField(phase) || found->name.ends_with(", " + phase);
    return isSaid ? head : head + " (" + phase + ")";
}

/// The figures of the evaluation come last, and are left out where there are none.
void DropEmptyEnd(Cells& cells) {
    const auto isEmpty = [](const auto& row) { return row.back().empty(); };
    if (!std::ranges::all_of(cells.rows, isEmpty)) return;
    cells.heads.pop_back();
    for (auto& row : cells.rows)
        row.pop_back();
}

Cells CellsOf(const DataSet& set) {
    const std::vector<Quantity> quantities = NamedQuantities(set);
    const bool withDigits = std::any_of(set.recData.begin(), set.recData.end(),
                                        [](const clsData& row) { return row.isDigit; });
    const TableColumns columns(quantities, withDigits, set.HasTies(), AbsoluteEntries(set.recData));
    Cells cells;
    for (const TableColumn& column : columns.All())
        cells.heads.push_back(HeadOf(column, quantities));
    for (const clsData& row : set.recData) {
        auto& line = cells.rows.emplace_back();
        for (int i = 0; i < columns.Count(); ++i)
            line.push_back(columns.CellOf(row, i));
    }
    DropEmptyEnd(cells);
    return cells;
}

std::string Quoted(const std::string& text) {
    return '"' + Replace(text, "\"", "\"\"") + '"';
}
std::string CsvField(const std::string& text) {
    return text.find_first_of(",\"\n") == std::string::npos ? text : Quoted(text);
}
std::string TsvField(const std::string& text) {
    return Replace(text, "\t", " ");
}
std::string Joined(const std::vector<std::string>& parts, const char* separator,
                   std::string (*written)(const std::string&)) {
    std::string line;
    for (std::size_t i = 0; i < parts.size(); ++i)
        line += (i == 0 ? "" : separator) + written(parts[i]);
    return line;
}

void PrintLines(const Cells& cells, bool withHead, const char* separator,
                std::string (*written)(const std::string&)) {
    if (withHead) std::cout << Joined(cells.heads, separator, written) << '\n';
    for (const auto& row : cells.rows)
        std::cout << Joined(row, separator, written) << '\n';
}

/// Values are texts: a number would lose the digits that the paper gave.
void PrintJson(const Cells& cells, const std::string& set) {
    std::cout << "{\"set\": " << JsonText(set) << ",\n \"columns\": ["
              << Joined(cells.heads, ", ", JsonText) << "],\n \"rows\": [";
    const char* before = "\n  [";
    for (const auto& row : cells.rows)
        std::cout << std::exchange(before, ",\n  [") << Joined(row, ", ", JsonText) << ']';
    std::cout << "]}\n";
}

using Sets = std::vector<std::shared_ptr<DataSet>>;

Sets SetsOfDocument() {
    Sets sets;
    WalkDocument([&sets](Record& record) {
        if (dynamic_cast<DataSet*>(&record) != nullptr) sets.push_back(record.As<DataSet>());
    });
    return sets;
}

std::string PathOf(const DataSet& set) {
    return host::NodePath(*set.tNode);
}

/// The set that was asked for; the only one when none was. Null, and told, otherwise.
std::shared_ptr<DataSet> ChosenSet(OpenedDocument& document, const std::string& node) {
    Sets sets = SetsOfDocument();
    if (!node.empty()) {
        const auto nodes = host::NodesAt(document.Tree(), node);
        std::erase_if(sets, [&nodes](const auto& set) {
            return std::find(nodes.begin(), nodes.end(), set->tNode) == nodes.end();
        });
    }
    if (sets.size() == 1) return sets.front();
    if (sets.empty())
        std::cerr << "error: " << (node.empty() ? "the document holds" : "\"" + node + "\" names")
                  << " no set with rows\n";
    else
        std::cerr << "error: there are " << sets.size() << " such sets; --list names them\n";
    return nullptr;
}

int Print(OpenedDocument& document, const Arguments& arguments) {
    if (arguments.list) {
        for (const auto& set : SetsOfDocument())
            std::cout << PathOf(*set) << '\n';
        return kExitClean;
    }
    const auto set = ChosenSet(document, arguments.node);
    if (!set) return kExitUsage;
    if (arguments.system && !set->AdjustUnits()) {
        std::cerr << "error: a unit of the set cannot be brought to the system unit\n";
        return kExitFindings;
    }
    const Cells cells = CellsOf(*set);
    if (arguments.format == "json")
        PrintJson(cells, PathOf(*set));
    else if (arguments.format == "csv")
        PrintLines(cells, !arguments.noHead, ",", CsvField);
    else
        PrintLines(cells, !arguments.noHead, "\t", TsvField);
    return kExitClean;
}

} // namespace

void AddTableCommand(CLI::App& app, const std::string& argv0, int& exitCode) {
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("table", "Print the rows of a data set");
    command->add_option("--home", arguments->home, "Application folder with the databases");
    command->add_option("DOCUMENT", arguments->document, "A record file")->required();
    command->add_option("NODE", arguments->node,
                        "The labels of its node joined by \" / \", a \"*\" for any ending; may be "
                        "left out for the only set");
    command->add_option("--format", arguments->format, "tsv, csv or json")
        ->check(CLI::IsMember({"tsv", "csv", "json"}));
    command->add_flag("--list", arguments->list, "Name the sets of the document");
    command->add_flag("--no-head", arguments->noHead, "Print the rows alone");
    command->add_flag("--system", arguments->system, "Print system units, not those of the paper");
    command->callback([arguments, argv0, &exitCode] {
        OpenedDocument document(true);
        exitCode = document.Open(arguments->document, arguments->home, argv0);
        if (exitCode == kExitClean) exitCode = Print(document, *arguments);
    });
}

} // namespace vexora
