#include "reference/Database.h"

#include "reference/Text.h"

#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace vexora {

namespace {

/// A null becomes the empty text.
std::string_view Argument(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)))
                : std::string_view();
}

/// like(pattern, text) behind the operator LIKE; the user data says whether case counts.
void LikeFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
    const bool caseSensitive = sqlite3_user_data(context) != nullptr;
    sqlite3_result_int(context,
                       Like(Argument(arguments[0]), Argument(arguments[1]), caseSensitive));
}

void Configure(sqlite3* handle) {
    // Another copy of the workbench may be adding a compound at this moment.
    constexpr int busyMilliseconds = 3000;
    sqlite3_busy_timeout(handle, busyMilliseconds);
    // A text that equals no column name must stay an error, not turn into a text constant.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    // A file from elsewhere must neither run functions of ours nor be spoilt by its own schema.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    static int caseCounts = 1;
    // In place of the operator's own function, whose wildcards are others.
    sqlite3_create_function(handle, "like", 2, flags, nullptr, LikeFunction, nullptr, nullptr);
    sqlite3_create_function(handle, "like_case", 2, flags, &caseCounts, LikeFunction, nullptr,
                            nullptr);
}

/// Those that cannot write are failures of the medium, not of the statement.
DatabaseError::Kind KindOf(int code) {
    using enum DatabaseError::Kind;
    if (code == SQLITE_BUSY) return Locked;
    return code == SQLITE_READONLY || code == SQLITE_FULL || code == SQLITE_IOERR ? CannotWrite
                                                                                  : Other;
}

[[noreturn]] void Fail(sqlite3* handle, const std::string& where) {
    if (!handle) throw DatabaseError(where + ": out of memory");
    const DatabaseError::Kind kind = KindOf(sqlite3_errcode(handle));
    throw DatabaseError(where + (kind == DatabaseError::Kind::Locked
                                     ? std::string(" is locked by another program")
                                     : std::string(": ") + sqlite3_errmsg(handle)),
                        kind);
}

/// TRANSIENT has SQLite copy the text: it may be gone before the statement is stepped.
void Bind(sqlite3_stmt* statement, int index, const SqlValue& value) {
    int code = SQLITE_OK;
    if (const auto* integer = std::get_if<std::int64_t>(&value.Get()))
        code = sqlite3_bind_int64(statement, index, *integer);
    else if (const auto* number = std::get_if<double>(&value.Get()))
        code = sqlite3_bind_double(statement, index, *number);
    else if (const auto* text = std::get_if<std::string>(&value.Get()))
        code = sqlite3_bind_text64(statement, index, text->data(), text->size(), SQLITE_TRANSIENT,
                                   SQLITE_UTF8);
    if (code != SQLITE_OK) Fail(sqlite3_db_handle(statement), "Wrong statement");
}

/// A name of a table or column; GROUP is a word of the language as well.
std::string Quoted(std::string_view name) {
    return '"' + Replace(name, "\"", "\"\"") + '"';
}

} // namespace

/// The statements of one database that are prepared and not in use. One that is in use is not here,
/// so that the same text asked for meanwhile gets a statement of its own.
class PreparedStatements {
public:
    PreparedStatements() = default;
    ~PreparedStatements() {
        for (sqlite3_stmt* statement : statements_)
            sqlite3_finalize(statement);
    }
    PreparedStatements(const PreparedStatements&) = delete;
    PreparedStatements& operator=(const PreparedStatements&) = delete;

    /// The statement with this text, which the caller then has to itself, or null.
    sqlite3_stmt* Take(std::string_view sql) {
        // By its whole text: a handful of them is searched faster than hashed.
        const auto found = std::ranges::find(statements_, sql, sqlite3_sql);
        if (found == statements_.end()) return nullptr;
        sqlite3_stmt* statement = *found;
        statements_.erase(found);
        return statement;
    }

    /// Takes a statement back; the one unused for longest goes when there are too many.
    void Give(sqlite3_stmt* statement) {
        // Without the reset its read lock would last. What it says was told when it was stepped.
        sqlite3_reset(statement);
        sqlite3_clear_bindings(statement);
        statements_.push_back(statement);
        if (statements_.size() <= MostKept) return;
        sqlite3_finalize(statements_.front());
        statements_.erase(statements_.begin());
    }

private:
    static constexpr std::size_t MostKept = 24; // reading and filling in ask some ten texts

    std::vector<sqlite3_stmt*> statements_; // in the order in which they came back
};

void Recordset::Release::operator()(sqlite3_stmt* statement) const {
    if (const auto home = kept.lock())
        home->Give(statement);
    else
        sqlite3_finalize(statement);
}

Recordset::Recordset(Statement statement) : statement_(std::move(statement)) {
    MoveNext();
}

void Recordset::MoveNext() {
    if (!statement_) return;
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) return;
    if (code != SQLITE_DONE) {
        sqlite3* handle = sqlite3_db_handle(statement_.get());
        const char* file = sqlite3_db_filename(handle, "main");
        Fail(handle, file ? file : "");
    }
    statement_.reset();
}

// Few columns and short names: no map is kept for a row set that lives for one look-up.
int Recordset::Column(std::string_view field) const {
    if (!statement_) return -1;
    const int count = sqlite3_column_count(statement_.get());
    for (int i = 0; i < count; ++i)
        if (EqualNoCase(sqlite3_column_name(statement_.get(), i), field)) return i;
    return -1;
}

std::string Recordset::Text(std::string_view field) const {
    const int column = Column(field);
    if (column < 0) return {};
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    if (!text) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

double Recordset::Number(std::string_view field) const {
    const int column = Column(field);
    return column < 0 ? 0.0 : sqlite3_column_double(statement_.get(), column);
}

std::int64_t Recordset::Integer(std::string_view field) const {
    const int column = Column(field);
    return column < 0 ? 0 : sqlite3_column_int64(statement_.get(), column);
}

bool Recordset::IsNull(std::string_view field) const {
    const int column = Column(field);
    return column < 0 || sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

void Database::Closer::operator()(sqlite3* handle) const {
    // Closes once the last statement has gone, which a row set may still hold.
    sqlite3_close_v2(handle);
}

Database::Handle Database::OpenHandle(const std::string& path, int flags) {
    // Opening a pipe would wait for its other end for ever.
    std::error_code unknown;
    if (std::filesystem::exists(path, unknown) && !std::filesystem::is_regular_file(path, unknown))
        throw DatabaseError(path + ": this is no file of a database");
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &raw, flags, nullptr);
    Handle handle(raw);
    if (code != SQLITE_OK) Fail(raw, path);
    Configure(raw);
    // SQLite opens any file and looks into it at the first statement only.
    if (sqlite3_exec(raw, "select count(*) from sqlite_master", nullptr, nullptr, nullptr))
        Fail(raw, path);
    return handle;
}

void Database::SetHandle(Handle handle, const std::string& path) {
    kept_ = std::make_shared<PreparedStatements>();
    handle_ = std::move(handle);
    path_ = path;
    BeginEdition();
}

// Counted over all files, so that one opened in the place of another is never taken for it.
void Database::BeginEdition() {
    static std::uint64_t last = 0;
    edition_ = ++last;
}

void Database::Open(const std::string& path, bool readOnly) {
    SetHandle(OpenHandle(path, readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE), path);
}

void Database::Close() {
    kept_.reset();
    handle_.reset();
}

void Database::Create(const std::string& path) {
    Close();
    std::remove(path.c_str());
    SetHandle(OpenHandle(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE), path);
}

Recordset::Statement Database::Prepare(std::string_view sql, const SqlValues& values) const {
    if (!handle_) throw DatabaseError("The database is not open");
    sqlite3_stmt* raw = kept_->Take(sql);
    int code = SQLITE_OK;
    if (!raw)
        code = sqlite3_prepare_v3(handle_.get(), sql.data(), static_cast<int>(sql.size()),
                                  SQLITE_PREPARE_PERSISTENT, &raw, nullptr);
    Recordset::Statement statement(raw, {kept_});
    if (code != SQLITE_OK || !raw) Fail(handle_.get(), path_);
    int index = 0;
    for (const SqlValue& value : values)
        Bind(raw, ++index, value);
    return statement;
}

void Database::Execute(std::string_view sql, const SqlValues& values) {
    BeginEdition();
    Query(sql, values);
}

Recordset Database::Query(std::string_view sql, const SqlValues& values) const {
    return Recordset(Prepare(sql, values));
}

std::int64_t Database::Insert(std::string_view table, const SqlAssignments& fields) {
    std::string columns;
    std::string marks;
    SqlValues values;
    for (const auto& [name, value] : fields) {
        columns += (values.empty() ? "" : ",") + Quoted(name);
        marks += values.empty() ? "?" : ",?";
        values.push_back(value);
    }
    Execute("insert into " + Quoted(table) + " (" + columns + ") values (" + marks + ")", values);
    return sqlite3_last_insert_rowid(handle_.get());
}

void Database::Update(std::string_view table, std::int64_t rowid, const SqlAssignments& fields) {
    std::string columns;
    SqlValues values;
    for (const auto& [name, value] : fields) {
        columns += (values.empty() ? "" : ",") + Quoted(name) + "=?";
        values.push_back(value);
    }
    values.emplace_back(rowid);
    Execute("update " + Quoted(table) + " set " + columns + " where rowid=?", values);
}

bool Database::HasTable(std::string_view table) const {
    try {
        Query("select * from " + Quoted(table) + " limit 1");
        return true;
    } catch (const DatabaseError& error) {
        if (error.IsLocked()) throw;
        return false;
    }
}

Transaction::Transaction(Database& database) : database_(&database) {
    // Takes the write lock now: a lock met half-way could not be waited for.
    database_->Execute("begin immediate");
}

Transaction::~Transaction() {
    if (!database_) return;
    try {
        database_->Execute("rollback");
    } catch (const DatabaseError&) {
        // SQLite may have rolled back by itself (full disk); nothing is left to undo then.
        database_ = nullptr;
    }
}

void Transaction::Commit() {
    if (!database_) return;
    database_->Execute("commit");
    database_ = nullptr;
}

BulkInsert::BulkInsert(Database& database, std::string_view table,
                       const std::vector<std::string>& columns)
    : database_(database) {
    std::string names;
    std::string marks;
    for (const std::string& column : columns) {
        names += (names.empty() ? "" : ",") + Quoted(column);
        marks += marks.empty() ? "?" : ",?";
    }
    statement_ = database.Prepare(
        "insert into " + Quoted(table) + " (" + names + ") values (" + marks + ")", {});
}

// Whoever has kept rows of a table must not go on with them.
void BulkInsert::Add(const SqlValues& values) {
    database_.BeginEdition();
    sqlite3_reset(statement_.get());
    int index = 0;
    for (const SqlValue& value : values)
        Bind(statement_.get(), ++index, value);
    if (sqlite3_step(statement_.get()) != SQLITE_DONE)
        Fail(database_.handle_.get(), database_.Path());
}

} // namespace vexora
