#pragma once

#include <string>
#include <vector>

namespace vexora {

/// A document that a command was given.
struct ListedDocument {
    std::string path;
    std::string name; // without its ending; below the folder it was found in, with its folders
    bool isEmptyFolder = false;
};

/// The documents that paths name, in their order. A folder stands for the record files in it and in
/// its folders, by name: those whose first line that is not blank begins with "^R".
std::vector<ListedDocument> ListDocuments(const std::vector<std::string>& paths);

} // namespace vexora
