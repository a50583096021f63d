// How long the largest tables to be processed take, from their texts to their sets: what follows
// each key (the analysis) and what follows the button (all of it). Values counts those of the sets.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "BenchDesktop.h"
#include "globals/KVOGlobal.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "tables/PhaseEquilibria.h"
#include "ui/Forms.h"

namespace vexora {
namespace {

/// A table of boiling points, or of the layers of a ternary, with the system that it is about.
struct Equilibria {
    explicit Equilibria(int mixType) {
        const std::string share = VEXORA_SHARE_DIR;
        globals.Databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb");
        system.mixture->Load(mixType == 2 ? "^B 64175 7732185 P" : "^T 64197 67663 7732185 S");
        system.mixture->MixType = table.MixType = mixType;
        system.samples = {"1", "1", "1"};
        Add("T", "C", "");
        Add("P", "S", "");
        const std::string first = mixType == 2 ? "L" : "L1", second = mixType == 2 ? "G" : "L2";
        for (const std::string& phase : {first, second})
            for (int n = 1; n <= (mixType == 2 ? 1 : 3); ++n)
                Add("X" + std::to_string(n), "D", phase);
        const int rows = mixType == 2 ? 16384 : 4096;
        for (int row = 0; row < rows; ++row)
            AddRow(row);
    }
    void Add(const std::string& quantity, const std::string& unit, const std::string& phase) {
        table.columns.push_back({quantity, unit, "", phase, ProcessColumn::Role::Free});
    }
    void AddRow(int row) {
        const std::string digits = std::to_string(1000 + row % 3000);
        std::vector<std::string> cells = {std::to_string(20 + row % 60) + "." + digits,
                                          std::to_string(90 + row % 20)};
        for (std::size_t column = 2; column < table.columns.size(); ++column)
            cells.push_back(column % 3 == 1 ? "0.2" : "0.4");
        cells[2] = "0.4001";
        table.rows.push_back({cells, -1, ""});
    }

    BenchDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
    ProcessTable table;
    ProcessSystem system{std::make_shared<clsM>(), {}, nullptr, ""};
};

void Analyse(benchmark::State& state) {
    const Equilibria equilibria(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(AnalyseVLE(equilibria.table));
}

void Process(benchmark::State& state) {
    const Equilibria equilibria(static_cast<int>(state.range(0)));
    std::size_t values = 0, findings = 0;
    for (auto _ : state) {
        const PhaseAnalysis analysis = AnalyseVLE(equilibria.table);
        findings = CheckPhaseTable(equilibria.table, analysis, equilibria.system).size();
        values = 0;
        for (const auto& set : MakeSets(equilibria.table, analysis, equilibria.system))
            values += set->recData.Count() * static_cast<std::size_t>(set->nVar + 1);
    }
    state.counters["values"] = static_cast<double>(values);
    state.counters["findings"] = static_cast<double>(findings);
}

BENCHMARK(Analyse)->Arg(2)->Arg(3)->Unit(benchmark::kMillisecond);
BENCHMARK(Process)->Arg(2)->Arg(3)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora
