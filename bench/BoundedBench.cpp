// Documents that nobody writes and a file may hold all the same: the time has to grow with their
// size and no faster. Each is measured at two sizes, and BigO tells what fits.
#include <benchmark/benchmark.h>

#include <functional>
#include <string>

#include "BenchDesktop.h"
#include "chem/clsAtom.h"
#include "globals/KVOGlobal.h"
#include "records/DocumentCheck.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "shell/DocumentText.h"
#include "ui/Forms.h"

namespace vexora {
namespace {

const std::string Source = "\n^R 2002 wag pru 1\n"
                           "^J#J#O#J. Phys. Chem. Ref. Data, 2002, 31, 387-535#T##A##S#0####\n";
const std::string Water = "^L 7732185 DNNNN S\n^S 1 cm;;99.9m%,gc\n";
const std::string Header = "^A & O & & & & & &\n";

/// Reads, checks and prints the document.
void WholeWork(benchmark::State& state, const std::string& text) {
    BenchDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
    const std::string share = VEXORA_SHARE_DIR;
    globals.Databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb");
    for (auto _ : state) {
        if (!ReadDocument(text, ReadPurpose::Look).whole) state.SkipWithError("not read");
        benchmark::DoNotOptimize(CheckDocument({}).size());
        if (DocumentAsRecords().size() < text.size() / 2) state.SkipWithError("lines are missing");
        globals.ForgetCurrent();
        globals.recR.Clear();
    }
    state.SetComplexityN(state.range(0));
}

std::string Times(std::int64_t count, const std::function<std::string(const std::string&)>& one) {
    std::string text;
    for (std::int64_t i = 1; i <= count; ++i)
        text += one(std::to_string(i));
    return text;
}

void Bounded_AuthorsOfOneNumber(benchmark::State& state) {
    WholeWork(state, Source +
                         Times(state.range(0),
                               [](const std::string& n) {
                                   return "^I#1#name" + n + "#n  #Name" + n + ",N.\n";
                               }) +
                         Water + Header + "^z 1 TC S 1 L G & 647.1 & 0.1 3\n");
}

void Bounded_SetsWithoutRows(benchmark::State& state) {
    WholeWork(state, Source + Water + Times(state.range(0), [](const std::string& n) {
                         return Header + "^2 1 VDN S DIR " + n + "\tY L & DP T S P S & & &\n";
                     }));
}

void Bounded_Samples(benchmark::State& state) {
    WholeWork(state,
              Source + "^L 7732185 DNNNN S\n" + Times(state.range(0), [](const std::string& n) {
                  return "^S " + n + " cm;;99.9m%,gc\n" + Header + "^z " + n +
                         " TC S 1 L G & 647." + n + " & 0.1 3\n";
              }));
}

void Bounded_CompoundsOfTenSamples(benchmark::State& state) {
    const auto sample = [](const std::string& number) {
        return "^S " + number + " cm;;99.9m%,gc\n" + Times(10, [&](const std::string& n) {
                   return Header + "^z " + number + " TC S " + n + " L G & 647." + n + " & 0.1 3\n";
               });
    };
    WholeWork(state, Source + Times(state.range(0), [&](const std::string& n) {
                         const std::string digits = std::to_string(1000000 + std::stoi(n));
                         const std::string rn = digits + *CheckDigit(digits);
                         return "^L " + rn + " DNNNN S\n^N " + rn + " C2H6O compound " + n + "\n" +
                                Times(10, sample);
                     }));
}

/// Each group of a formula is another one.
void Bounded_Groups(benchmark::State& state) {
    const std::string formula =
        Times(state.range(0), [](const std::string& n) { return "{R" + n + "}"; });
    for (auto _ : state)
        benchmark::DoNotOptimize(CanonicalFormula(formula).size());
    state.SetComplexityN(state.range(0));
}

/// Lines of one carriage return each: no search for the other line end may run on to the end.
void Bounded_CarriageReturns(benchmark::State& state) {
    std::string text = Source + Water + Header + "^2 1 VDN S DIR 1\tY L & DP T S P S & & &\n" +
                       Times(state.range(0), [](const std::string& n) {
                           return "^d " + n + ".25 0.101325 997.0479 0.001\n";
                       });
    for (char& c : text)
        if (c == '\n') c = '\r';
    WholeWork(state, text);
}

BENCHMARK(Bounded_AuthorsOfOneNumber)
    ->Arg(2000)
    ->Arg(20000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Bounded_SetsWithoutRows)
    ->Arg(30000)
    ->Arg(300000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Bounded_Samples)->Arg(2000)->Arg(20000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(Bounded_CompoundsOfTenSamples)
    ->Arg(200)
    ->Arg(2000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Bounded_Groups)->Arg(8000)->Arg(80000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(Bounded_CarriageReturns)
    ->Arg(10000)
    ->Arg(100000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora
