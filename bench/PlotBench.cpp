// A plot of the largest table: grouped into curves, drawn, turned to its other variable, and
// searched for the point under the mouse.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include "FullPlot.h"

namespace vexora {
namespace {

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

/// What the arranging is held against.
void SortDoubles(benchmark::State& state) {
    std::vector<double> values;
    for (std::size_t i = 0; i < PlotTable::MostPoints; ++i)
        values.push_back(static_cast<double>((i * 7919) % PlotTable::MostPoints));
    for (auto _ : state) {
        std::vector<double> sorted = values;
        std::sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted.data());
    }
}

BENCHMARK(SortDoubles)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenPlot)->Unit(benchmark::kMillisecond);
BENCHMARK(TurnPlot)->Unit(benchmark::kMillisecond);
BENCHMARK(FindPoint)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora
