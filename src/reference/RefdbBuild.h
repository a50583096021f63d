// Turns the tables kept as text (one .tsv a table, UTF-8, first line the column names, a last
// column SOURCE_OF_ROW that says where a figure comes from and is not stored) into the two
// databases. Also the import of compounds into an existing one.
#pragma once

#include "reference/TableText.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class Database;

/// Writes VXRLocal.mdb and VXR.mdb into `outFolder` (made if need be) from `dataFolder`, which
/// must hold every table. With findings nothing is written. Throws DatabaseError when a file
/// cannot be written; the files that stand there are replaced only by whole ones.
std::vector<LineRemark> BuildReferenceDatabases(const std::string& dataFolder,
                                                const std::string& outFolder);

/// A row that stands in the table already is told apart from a bad one: to import twice is no
/// fault.
struct ImportResult {
    bool readable = true;    // the text could be read
    std::string fault;       // why not, where more is known
    std::size_t added = 0;   // rows that are new
    std::size_t present = 0; // rows that stood there already, kept as they are
    std::vector<LineRemark> skipped{};
};

/// What this room cannot know by itself: formulas are read on a higher floor.
struct ImportOptions {
    /// The canonical text of a typed formula, "" for none; left out, formulas are taken as typed.
    std::function<std::string(std::string_view)> canonicalFormula;
    /// Hears the count of lines now and then.
    std::function<void(std::size_t)> progress;
    /// The sum that a formula with a point may have been meant for, "" where nothing is in doubt.
    std::function<std::string(std::string_view)> hydrateReading = {};
};

/// Adds rows of registry number ("7732185" or "7732-18-5"), name and formula to `ALLNAME`, in one
/// transaction. A heading line that begins with "RN" is passed over; rows that would be an error of
/// the table are told and skipped, and so is a file without rows. Throws DatabaseError on a bad
/// database.
ImportResult ImportCompounds(const std::string& path, Database& database,
                             const ImportOptions& options = {});
/// The same, with a database that is opened for it.
ImportResult ImportCompounds(const std::string& path, const std::string& databasePath,
                             const ImportOptions& options = {});

/// True for a registry number of two to seven, two and one digits whose last digit is the check
/// digit: the sum of the others, each times its place from the right, modulo ten.
/// The rule of the Chemical Abstracts Service; it finds a wrong digit and most swapped ones.
bool IsRegistryNumber(std::int64_t rn);

} // namespace vexora
