#pragma once

#include <string>
#include <utility>
#include <vector>

namespace vexora {

class Record;

/// What a document says, node by node and field by field, in texts that outlive its records: two
/// documents can be held against each other although only one is open at a time.
struct Outline {
    /// What tells the node from its siblings in another version of the document.
    std::string identity;
    std::string label; // of the node in the tree
    /// The fields of its lines by name, in the order of the file; a name occurs once.
    std::vector<std::pair<std::string, std::string>> fields;
    /// Of a set: what stands in a row, from left to right, and each row with its parts by tabs.
    std::vector<std::string> columns;
    std::vector<std::string> rows;
    std::size_t variables = 0; // the columns that tell a row from others
    std::vector<Outline> children;
};

/// The outline of the open document, which must not be empty: that of its source. The further
/// sources that a file may hold stand below the first one, behind its compounds and mixtures.
Outline OutlineOfDocument();

/// The record of the open document whose outline, and those above it from below the first source
/// down, have these identities; that source for none of them, null when there is no such one.
Record* RecordAt(const std::vector<std::string>& identities);

} // namespace vexora
