// The tables of the two databases: one place for names, column types and indexes, used by the
// build of the databases, by tests that need small ones, and by the checks.
#pragma once

#include "reference/Database.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace vexora {

enum class ColumnType {
    Text,      // TEXT, compared without regard to case
    ExactText, // TEXT, compared with its case
    Integer,   // INTEGER
    Flag,      // INTEGER, 0 when not stated
    Real       // REAL
};

struct ColumnSchema {
    std::string_view name;
    ColumnType type;
};

/// Rows keep the order of their file (rowid), which is the order of lists.
struct TableSchema {
    std::string_view name;
    std::span<const ColumnSchema> columns;
    std::string_view indexes; // statements, ";" between
};

/// Tables of the vocabulary.
extern const std::array<TableSchema, 13> LocalTables;
/// Tables of compounds, sources and authors.
extern const std::array<TableSchema, 4> CompoundTables;
/// The column of that name, case apart.
std::optional<ColumnSchema> FindColumn(const TableSchema& table, std::string_view name);
/// Makes the tables, empty; indexes are made by CreateIndexes once the rows are in.
void CreateTables(Database& database, std::span<const TableSchema> tables);
void CreateIndexes(Database& database, std::span<const TableSchema> tables);

} // namespace vexora
