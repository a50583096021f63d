// The page that greets who has no document open.
#pragma once

#include <string>
#include <vector>

namespace vexora {

/// A document that shows what the program does; it is opened as a copy.
struct ExampleDocument {
    std::string path; // full
    std::string title;
    std::string words; // what can be seen in it
};

/// The examples beside the installed program, as their list names them (examples/contents.txt: the
/// file, a title and some words, with "|" between them); those that are not there are left out.
std::vector<ExampleDocument> InstalledExamples();

/// The page as HTML. Its links: "start", "open", "recent:0", "example:0", "help:110".
/// recent: the full paths of the documents opened or saved last.
std::string WelcomeHtml(const std::vector<std::string>& recent,
                        const std::vector<ExampleDocument>& examples);

} // namespace vexora
