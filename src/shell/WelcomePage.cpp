#include "shell/WelcomePage.h"

#include <string_view>

#include "globals/KVOGlobal.h"
#include "reference/Text.h"
#include "shell/Paths.h"
#include "ui/Desktop.h"
#include "ui/Html.h"

namespace vexora {

namespace {

std::string Linked(const std::string& link, std::string_view text) {
    return "<a href=\"" + link + "\">" + ui::HtmlOfText(text) + "</a>";
}

std::string Line(const std::string& linked, std::string_view words) {
    return "<p>" + linked + (words.empty() ? "" : "&nbsp; ") + ui::HtmlOfText(words) + "</p>\n";
}

std::string LinesOfRecent(const std::vector<std::string>& recent) {
    std::string html;
    for (std::size_t i = 0; i < recent.size(); ++i) {
        const PathParts parts = SplitPath(recent[i]);
        html += Line(Linked("recent:" + std::to_string(i), parts.Title), "in " + parts.Folder);
    }
    return html;
}

std::string LinesOfExamples(const std::vector<ExampleDocument>& examples) {
    std::string html;
    for (std::size_t i = 0; i < examples.size(); ++i)
        html += Line(Linked("example:" + std::to_string(i), examples[i].title), examples[i].words);
    return html;
}

/// The tour goes along with an installed workbench.
std::string LineOfTour() {
    const std::string page = JoinPath(Globals().InstalledFolder, "help/50.md");
    if (!ui::TheDesktop().Files().Exists(page)) return {};
    return Line(Linked("help:50", "Ten minutes with Vexora"),
                "a tour of the examples, in pictures");
}

} // namespace

std::vector<ExampleDocument> InstalledExamples() {
    const std::string& installed = Globals().InstalledFolder;
    if (installed.empty()) return {};
    ui::FileSystem& files = ui::TheDesktop().Files();
    const std::string folder = JoinPath(installed, "examples");
    std::string error;
    const std::string list = files.Read(JoinPath(folder, "contents.txt"), error).value_or("");
    std::vector<ExampleDocument> examples;
    for (const std::string& line : Split(list, '\n')) {
        const auto parts = Split(line, '|');
        if (parts.size() != 3) continue;
        const std::string path = JoinPath(folder, Trim(parts[0]));
        if (!files.Exists(path)) continue;
        examples.push_back({path, std::string(Trim(parts[1])), std::string(Trim(parts[2]))});
    }
    return examples;
}

std::string WelcomeHtml(const std::vector<std::string>& recent,
                        const std::vector<ExampleDocument>& examples) {
    std::string html =
        "<h2>Vexora</h2>\n<p>From a paper to one structured, tested set of data.</p>\n"
        "<h3>Begin</h3>\n" +
        Line(Linked("start", "Start a document"), "with the source that its data are from") +
        Line(Linked("open", "Open a document"), "Ctrl+O, or drop its file on the tree");
    if (!recent.empty()) html += "<h3>Recent documents</h3>\n" + LinesOfRecent(recent);
    if (!examples.empty())
        html += "<h3>Examples</h3>\n<p>Each opens as a copy.</p>\n" + LinesOfExamples(examples);
    return html + "<h3>Help</h3>\n" + LineOfTour() +
           Line(Linked("help:120", "The way through a document"), "step by step") +
           Line(Linked("help:110", "This window"), "what it shows, and its keys");
}

} // namespace vexora
