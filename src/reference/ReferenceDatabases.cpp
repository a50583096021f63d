#include "reference/ReferenceDatabases.h"

#include <algorithm>
#include <span>
#include <utility>

#include "reference/Schema.h"

namespace vexora {

namespace {

ReferenceDatabases* installed = nullptr;

/// A file that opens may still be foreign; a table that must be there tells, with its columns.
void OpenTested(Database& database, const std::string& path, bool readOnly,
                const TableSchema& table) {
    database.Open(path, readOnly);
    const std::string name(table.name);
    if (!database.HasTable(name))
        throw DatabaseError(path + ": the table " + name + " is missing or damaged");
    const char* find = "select 1 from pragma_table_info(?) where name = ? collate nocase";
    for (const ColumnSchema& column : table.columns) {
        if (database.Query(find, {name, column.name}).IsEnd())
            throw DatabaseError(path + ": the table " + name + " has no column " +
                                std::string(column.name));
    }
}

const TableSchema& TableOf(std::span<const TableSchema> tables, std::string_view name) {
    return *std::ranges::find(tables, name, &TableSchema::name);
}

} // namespace

std::optional<std::string> ReferenceDatabases::OpenBoth(const std::string& localPath,
                                                        const std::string& compoundPath) {
    try {
        Open(localPath, compoundPath);
        return std::nullopt;
    } catch (const DatabaseError& error) {
        return error.what();
    }
}

void ReferenceDatabases::Open(const std::string& localPath, const std::string& compoundPath) {
    // Opened apart and then put in place, so that a failure leaves the workbench with what it had.
    ReferenceDatabases opened;
    OpenTested(opened.LocalDb, localPath, true, TableOf(LocalTables, "Conversions"));
    OpenTested(opened.CompoundDb, compoundPath, false, TableOf(CompoundTables, "ALLNAME"));
    *this = std::move(opened);
}

ReferenceDatabases* CurrentDatabases() {
    return installed;
}
void UseDatabases(ReferenceDatabases* databases) {
    installed = databases;
}

} // namespace vexora
