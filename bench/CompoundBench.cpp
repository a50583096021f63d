// How long a person waits for names of compounds: 100,000 compounds with two names each. The
// searches that a key press or Find sets off have to stay below what is felt (0.1 s); "Statement"
// is a scan of the table by a statement, for comparison.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>

#include "compounds/SubstanceSearch.h"
#include "reference/CompoundNames.h"
#include "reference/RefdbBuild.h"
#include "reference/ReferenceDatabases.h"

namespace vexora {
namespace {

constexpr int compounds = 100000;

/// The shipped vocabulary, and a table of made-up names that share their beginnings as real ones
/// do.
struct ManyNames {
    ManyNames() {
        const std::string share = VEXORA_SHARE_DIR;
        std::filesystem::copy_file(share + "/VXR.mdb", path,
                                   std::filesystem::copy_options::overwrite_existing);
        databases.OpenBoth(share + "/VXRLocal.mdb", path);
        Transaction transaction(databases.CompoundDb);
        BulkInsert insert(databases.CompoundDb, "ALLNAME", {"RN", "NAME", "FORMULA"});
        for (int i = 0; i < compounds; ++i) {
            const std::string n = std::to_string(i);
            const std::string formula = "C" + std::to_string(i % 90 + 1) + "H" + n + "O";
            insert.Add({100000000 + i, n + "-methyl-" + n + "-propyl-cyclohexanol", formula});
            insert.Add({100000000 + i, "di-n-hexyl " + n + " ether of phenol", formula});
        }
        transaction.Commit();
        UseDatabases(&databases);
    }
    ~ManyNames() {
        UseDatabases(nullptr);
        std::filesystem::remove(path);
    }
    std::string path = (std::filesystem::temp_directory_path() / "vexora-bench-names.mdb").string();
    ReferenceDatabases databases;
};

/// They take long to make, so all cases share them.
ManyNames& Many() {
    static ManyNames many;
    UseDatabases(&many.databases);
    return many;
}

void Names_Search(benchmark::State& state, const std::string& name, const std::string& formula) {
    Many();
    KnownNames();
    for (auto _ : state)
        benchmark::DoNotOptimize(FindCompounds(NamePattern(name), formula));
}

void Names_Prefix(benchmark::State& state, const std::string& typed) {
    Many();
    KnownNames();
    for (auto _ : state)
        benchmark::DoNotOptimize(NamesBeginningWith(typed));
}

void Names_FirstSearch(benchmark::State& state) {
    ManyNames& many = Many();
    for (auto _ : state) {
        many.databases.Names.reset();
        benchmark::DoNotOptimize(FindCompounds("water", ""));
    }
}

void Names_Statement(benchmark::State& state, const std::string& where, const std::string& value) {
    ManyNames& many = Many();
    for (auto _ : state) {
        std::size_t found = 0;
        for (Recordset rows = many.databases.CompoundDb.Query(
                 "select * from ALLNAME where " + where + " order by rowid", {value});
             !rows.IsEnd(); rows.MoveNext())
            ++found;
        benchmark::DoNotOptimize(found);
    }
}

/// The same by the library itself: a statement that is prepared once, with its own "like".
void Names_Bare(benchmark::State& state, const char* where, const char* value) {
    ManyNames& many = Many();
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    const std::string sql = std::string("select RN, NAME, FORMULA from ALLNAME where ") + where;
    if (sqlite3_open(many.path.c_str(), &database) != SQLITE_OK ||
        sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        state.SkipWithError("not prepared");
    std::size_t read = 0;
    for (auto _ : state) {
        sqlite3_bind_text(statement, 1, value, -1, SQLITE_STATIC);
        while (sqlite3_step(statement) == SQLITE_ROW)
            read += static_cast<std::size_t>(sqlite3_column_bytes(statement, 1));
        sqlite3_reset(statement);
    }
    if (read == 0) state.SkipWithError("nothing found");
    sqlite3_finalize(statement);
    sqlite3_close(database);
}

BENCHMARK_CAPTURE(Names_Bare, name, "NAME = ?", "n-hexane")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Bare, fragment, "NAME like ?", "%9999-propyl%")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Search, fragment, "*9999-propyl*", "")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Search, prefix, "99-methyl*", "")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Search, name, "N-hexane", "")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Search, formula, "", "C2H6O")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Prefix, common, "di-n-h")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Prefix, rare, "di-n-hexyl 99999")->Unit(benchmark::kMillisecond);
BENCHMARK(Names_FirstSearch)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Statement, fragment, "NAME like ?", "*9999-propyl*")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Names_Statement, formula, "like_case(?, FORMULA)", "C2H6O")
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora
