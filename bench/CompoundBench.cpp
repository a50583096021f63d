// How long a person waits for names of compounds: 100,000 compounds with two names each. The
// searches that a key press or Find sets off have to stay below what is felt (0.1 s); "Statement"
// is a scan of the table by a statement, for comparison.
#include <benchmark/benchmark.h>

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

void Names_Search(benchmark::State& state, const std::string& name, const std::string& formula) {
    ManyNames many;
    KnownNames();
    for (auto _ : state)
        benchmark::DoNotOptimize(FindCompounds(NamePattern(name), formula));
}

void Names_Prefix(benchmark::State& state, const std::string& typed) {
    ManyNames many;
    KnownNames();
    for (auto _ : state)
        benchmark::DoNotOptimize(NamesBeginningWith(typed));
}

void Names_FirstSearch(benchmark::State& state) {
    ManyNames many;
    for (auto _ : state) {
        many.databases.Names.reset();
        benchmark::DoNotOptimize(FindCompounds("water", ""));
    }
}

void Names_Statement(benchmark::State& state, const std::string& where, const std::string& value) {
    ManyNames many;
    for (auto _ : state) {
        std::size_t found = 0;
        for (Recordset rows = many.databases.CompoundDb.Query(
                 "select * from ALLNAME where " + where + " order by rowid", {value});
             !rows.IsEnd(); rows.MoveNext())
            ++found;
        benchmark::DoNotOptimize(found);
    }
}

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
