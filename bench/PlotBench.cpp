// A plot of the largest table: grouped into curves, drawn, turned to its other variable, and
// searched for the point under the mouse.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "BenchDesktop.h"
#include "globals/KVOGlobal.h"
#include "plot/frmGraph.h"
#include "ui/Forms.h"

namespace vexora {
namespace {

struct FullPlot {
    FullPlot() {
        forms.Register<frmGraph>("frmGraph");
        auto table = std::make_shared<PlotTable>();
        table->YName = "Density (kg/m3)";
        table->VarNames = {"Temperature (K)", "Pressure (kPa)"};
        table->nVar = 2;
        for (std::size_t i = 0; i < PlotTable::MostPoints; ++i) {
            const auto at = static_cast<double>((i * 7919) % PlotTable::MostPoints);
            table->Add({1000 - at / 50, 300 + at / 100, std::floor(at / 20)}, 0.1,
                       static_cast<int>(i));
        }
        globals.Plot = table;
    }
    frmGraph& Open() {
        auto& graph = forms.Get<frmGraph>("frmGraph");
        graph.Show();
        return graph;
    }
    ~FullPlot() { forms.CloseAll(); }

    BenchDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
};

void OpenPlot(benchmark::State& state) {
    FullPlot plot;
    for (auto _ : state) {
        frmGraph& graph = plot.Open();
        state.PauseTiming();
        if (graph.picPIC.Strokes().size() < PlotTable::MostPoints)
            state.SkipWithError("points are missing");
        graph.Close();
        plot.forms.DropClosed();
        state.ResumeTiming();
    }
}

void TurnPlot(benchmark::State& state) {
    FullPlot plot;
    frmGraph& graph = plot.Open();
    for (auto _ : state)
        graph.cmdVar.UserClick();
}

/// The mouse over the plot, now here, now there.
void FindPoint(benchmark::State& state) {
    FullPlot plot;
    frmGraph& graph = plot.Open();
    int moved = 0;
    for (auto _ : state)
        graph.picPIC.UserHover(400 + ++moved % 2 * 100, 300);
}

BENCHMARK(OpenPlot)->Unit(benchmark::kMillisecond);
BENCHMARK(TurnPlot)->Unit(benchmark::kMillisecond);
BENCHMARK(FindPoint)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora
