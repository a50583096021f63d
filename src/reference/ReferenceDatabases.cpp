#include "reference/ReferenceDatabases.h"

#include <utility>

namespace vexora {

namespace {

ReferenceDatabases* installed = nullptr;

/// A file that opens may still be foreign; a table that must be there tells.
void OpenTested(Database& database, const std::string& path, bool readOnly, const char* table) {
    database.Open(path, readOnly);
    if (!database.HasTable(table))
        throw DatabaseError(path + ": the table " + table + " is missing or damaged");
}

} // namespace

std::optional<std::string> ReferenceDatabases::OpenBoth(const std::string& localPath,
                                                        const std::string& compoundPath) {
    try {
        // Opened apart and then put in place, so that a failure leaves the workbench with what it
        // had.
        ReferenceDatabases opened;
        OpenTested(opened.LocalDb, localPath, true, "Conversions");
        OpenTested(opened.CompoundDb, compoundPath, false, "ALLNAME");
        *this = std::move(opened);
        return std::nullopt;
    } catch (const DatabaseError& error) {
        return error.what();
    }
}

ReferenceDatabases* CurrentDatabases() {
    return installed;
}
void UseDatabases(ReferenceDatabases* databases) {
    installed = databases;
}

} // namespace vexora
