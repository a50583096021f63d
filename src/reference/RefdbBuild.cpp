#include "reference/RefdbBuild.h"

#include "reference/Numbers.h"
#include "reference/Schema.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace vexora {

namespace {

namespace fs = std::filesystem;

/// The value of a cell, or nothing when it does not fit its column.
/// Numbers are checked here because SQLite stores any text in a column of numbers.
std::optional<SqlValue> CellValue(const std::string& cell, ColumnType type) {
    if (type == ColumnType::Text || type == ColumnType::ExactText) return SqlValue(cell);
    if (type == ColumnType::Real) {
        if (!IsNumeric(cell)) return std::nullopt;
        return SqlValue(Val(cell));
    }
    const auto number = cell.empty() ? 0 : ParseInteger(cell);
    if (!number || (type == ColumnType::Flag && *number != 0 && *number != 1)) return std::nullopt;
    return SqlValue(*number);
}

/// Loads one text into its table and collects what is wrong with it.
class TableLoader {
public:
    TableLoader(const TableSchema& schema, const std::string& path,
                std::vector<LineRemark>& findings)
        : schema_(schema), path_(path), findings_(findings) {}

    void Load(Database& database) {
        TableReader reader(path_);
        if (!reader.IsOpen()) return Tell(1, "the file cannot be read");
        const auto heading = reader.NextRow();
        if (!heading) return Tell(1, "the line of column names is missing");
        if (!ReadHeading(*heading, reader.Line())) return;
        BulkInsert insert(database, schema_.name, names_);
        while (const auto cells = reader.NextRow())
            AddRow(insert, *cells, reader.Line());
    }

private:
    void Tell(int line, const std::string& text) { findings_.push_back({path_, line, text}); }

    bool ReadHeading(std::vector<std::string> heading, int line) {
        width_ = heading.size();
        // Each figure is to say where it is from; the column stays with the text.
        if (heading.back() == "SOURCE_OF_ROW")
            heading.pop_back();
        else
            Tell(line, "the last column must be SOURCE_OF_ROW");
        for (const std::string& name : heading) {
            const auto column = FindColumn(schema_, name);
            if (!column) {
                Tell(line, "unknown column " + name);
                return false;
            }
            columns_.push_back(*column);
            names_.push_back(name);
        }
        return !columns_.empty();
    }

    void AddRow(BulkInsert& insert, const std::vector<std::string>& cells, int line) {
        if (cells.size() != width_)
            return Tell(line, std::to_string(cells.size()) + " cells where the heading has " +
                                  std::to_string(width_));
        SqlValues values;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const auto value = CellValue(cells[i], columns_[i].type);
            if (!value) return Tell(line, names_[i] + " cannot be \"" + cells[i] + "\"");
            values.push_back(*value);
        }
        insert.Add(values);
    }

    const TableSchema& schema_;
    const std::string& path_;
    std::vector<LineRemark>& findings_;
    std::vector<ColumnSchema> columns_;
    std::vector<std::string> names_;
    std::size_t width_ = 0;
};

void FillDatabase(const std::string& path, std::span<const TableSchema> tables,
                  const std::string& dataFolder, std::vector<LineRemark>& findings) {
    Database database;
    database.Create(path);
    Transaction transaction(database);
    CreateTables(database, tables);
    for (const TableSchema& table : tables) {
        const std::string file =
            (fs::path(dataFolder) / (std::string(table.name) + ".tsv")).string();
        if (fs::exists(file))
            TableLoader(table, file, findings).Load(database);
        else
            findings.push_back({file, 1, "the table is missing"});
    }
    // Behind the rows: an index made at once is smaller and is done sooner than one that grows.
    CreateIndexes(database, tables);
    transaction.Commit();
}

/// A file being made beside its target: put in place by Keep, else removed.
class PendingFile {
public:
    explicit PendingFile(const fs::path& target)
        : target_(target), path_(target.string() + ".tmp") {}
    ~PendingFile() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;
    const std::string& Path() const { return path_; }
    void Keep() const {
        std::error_code error;
        fs::rename(path_, target_, error);
        if (error)
            throw DatabaseError(target_.string() + ": " + error.message(),
                                DatabaseError::Kind::CannotWrite);
    }

private:
    fs::path target_;
    std::string path_;
};

} // namespace

std::vector<LineRemark> BuildReferenceDatabases(const std::string& dataFolder,
                                                const std::string& outFolder) {
    std::error_code error;
    fs::create_directories(outFolder, error);
    if (error)
        throw DatabaseError(outFolder + ": " + error.message(), DatabaseError::Kind::CannotWrite);
    const PendingFile local(fs::path(outFolder) / "VXRLocal.mdb");
    const PendingFile compounds(fs::path(outFolder) / "VXR.mdb");
    std::vector<LineRemark> findings;
    FillDatabase(local.Path(), LocalTables, dataFolder, findings);
    FillDatabase(compounds.Path(), CompoundTables, dataFolder, findings);
    // With a fault in one table neither file is replaced: both are of one edition.
    if (!findings.empty()) return findings;
    local.Keep();
    compounds.Keep();
    return findings;
}

} // namespace vexora
