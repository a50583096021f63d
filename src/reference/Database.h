// The table store: SQLite files behind a small face. Values are always bound, never pasted into a
// statement. Text columns compare without regard to case; whoever needs exact case says so in the
// statement. Every statement that wants table order says "order by rowid". A statement is prepared
// once and kept for its next use. The two databases of a run belong to ReferenceDatabases.
#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace vexora {

/// What went wrong with a database file or a statement, in words for the user.
class DatabaseError : public std::runtime_error {
public:
    enum class Kind { Other, CannotWrite, Locked };
    explicit DatabaseError(const std::string& text, Kind kind = Kind::Other)
        : std::runtime_error(text), kind_(kind) {}
    /// True when the file can be read but not written (read-only, disk full).
    /// Nothing is wrong with the data then.
    bool CannotWrite() const { return kind_ == Kind::CannotWrite; }
    /// True when another program keeps the file to itself for now.
    bool IsLocked() const { return kind_ == Kind::Locked; }

private:
    Kind kind_;
};

/// One value of a statement or a row.
/// Made from what the caller has in hand, so that a list of values reads like the statement.
class SqlValue {
public:
    SqlValue(std::string_view text) : value_(std::string(text)) {}
    SqlValue(const std::string& text) : value_(text) {}
    SqlValue(const char* text) : value_(std::string(text)) {}
    SqlValue(std::int64_t number) : value_(number) {}
    SqlValue(int number) : value_(std::int64_t{number}) {}
    SqlValue(double number) : value_(number) {}
    SqlValue(bool flag) : value_(std::int64_t{flag ? 1 : 0}) {}
    const std::variant<std::int64_t, double, std::string>& Get() const { return value_; }

private:
    std::variant<std::int64_t, double, std::string> value_;
};
using SqlValues = std::vector<SqlValue>;
using SqlAssignments = std::vector<std::pair<std::string, SqlValue>>;

class PreparedStatements;

/// The rows of one query, stepped from the first to the last. Must not outlive its Database.
/// Columns are found without regard to case; an absent column or a null reads as "" or 0.
class Recordset {
public:
    /// True behind the last row (at once when there is none).
    bool IsEnd() const { return !statement_; }
    void MoveNext();
    std::string Text(std::string_view field) const;
    double Number(std::string_view field) const;
    std::int64_t Integer(std::string_view field) const;
    bool Flag(std::string_view field) const { return Integer(field) != 0; }
    /// True for a null and for an absent column.
    /// Text and Number do not tell a null from "" and 0; a look-up by key has to.
    bool IsNull(std::string_view field) const;

private:
    friend class Database;
    friend class BulkInsert;
    /// Hands a statement back to where it is kept, if that is still there.
    struct Release {
        std::weak_ptr<PreparedStatements> kept;
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Release>;
    explicit Recordset(Statement statement);
    int Column(std::string_view field) const;

    Statement statement_;
};

/// One open database file. Every operation throws DatabaseError on failure, also on a closed one.
/// It cannot be copied; to move it leaves the source closed.
class Database {
public:
    /// Opens an existing file; never creates one. A file that is no database is refused here.
    /// Waits up to 3 s for a lock. On failure the object stays as it was.
    void Open(const std::string& path, bool readOnly);
    /// Makes an empty database file in place of whatever stands there.
    void Create(const std::string& path);
    void Close();
    bool IsOpen() const { return handle_ != nullptr; }
    const std::string& Path() const { return path_; }
    /// A number that no other opened file has, and another one after each change made through this
    /// object: who keeps what was read here compares it.
    std::uint64_t Edition() const { return edition_; }

    /// Runs one statement that returns no rows.
    /// For several statements that belong together see Transaction.
    void Execute(std::string_view sql, const SqlValues& values = {});
    /// Runs a query; "?" in the text take the values in order. `a like b` there is the match of
    /// Text.h, and like_case(pattern, text) the case-sensitive one.
    Recordset Query(std::string_view sql, const SqlValues& values = {}) const;
    /// Adds a row; returns its rowid.
    /// Names of tables and columns are quoted, so that GROUP and the like may be used.
    std::int64_t Insert(std::string_view table, const SqlAssignments& fields);
    /// Changes the row with this rowid.
    void Update(std::string_view table, std::int64_t rowid, const SqlAssignments& fields);
    /// True when the table exists and its rows can be read. Of a locked file that cannot be said,
    /// which is a DatabaseError.
    bool HasTable(std::string_view table) const;

private:
    friend class BulkInsert;
    struct Closer {
        void operator()(sqlite3* handle) const;
    };
    using Handle = std::unique_ptr<sqlite3, Closer>;
    static Handle OpenHandle(const std::string& path, int flags);
    Recordset::Statement Prepare(std::string_view sql, const SqlValues& values) const;

    void SetHandle(Handle handle, const std::string& path);
    void BeginEdition();

    Handle handle_;
    std::shared_ptr<PreparedStatements> kept_; // of the handle, between their uses
    std::string path_;
    std::uint64_t edition_ = 0;
};

/// All or nothing: rolls back at the end of the scope unless committed.
/// The database must outlive it; one inside another is refused by SQLite.
class Transaction {
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit();

private:
    Database* database_;
};

/// One insert statement run many times, for loads of whole tables.
/// The statement is prepared once: a load of a million rows would else spend most of its time on
/// that. Run it inside a Transaction, or every row is flushed by itself.
class BulkInsert {
public:
    BulkInsert(Database& database, std::string_view table, const std::vector<std::string>& columns);
    void Add(const SqlValues& values);

private:
    Database& database_;
    Recordset::Statement statement_;
};

} // namespace vexora
