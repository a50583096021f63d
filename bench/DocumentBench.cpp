// Reading and writing documents of many records. The time is to grow with their number and no
// faster: each is measured at two sizes, and BigO tells what fits.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "BenchDesktop.h"
#include "globals/KVOGlobal.h"
#include "host/PosixFileSystem.h"
#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/SafeFile.h"
#include "shell/DocumentText.h"
#include "ui/Form.h"
#include "ui/Forms.h"
#include "ui/TreeView.h"

namespace vexora {
namespace {

const std::string sample = "\n^R 2002 wag pru 1\n"
                           "^J#J#O#J. Phys. Chem. Ref. Data, 2002, 31, 387-535#T##A##S#0####\n"
                           "^L 7732185 DNNNN S\n"
                           "^S 1 cm;;99.9m%,gc\n";

/// What the reader needs around it.
struct Room {
    Room() {
        const std::string share = VEXORA_SHARE_DIR;
        globals.Databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb");
    }
    bool Read(const std::string& text) {
        tree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        return ReadDocument(text, ReadPurpose::Look).whole;
    }
    /// From now on documents are read with their tree, as the workbench has them.
    void ShowTree() { globals.tvwTree = &tree; }
    BenchDesktop desktop;
    ui::Forms forms{desktop};
    ui::Form form{"frmMain", ""};
    ui::TreeView tree{form, "tvwTree"};
    KVOGlobal globals;
};

/// As many single values of one sample, with a tenth as many compounds behind them.
std::string ManyValues(int count) {
    std::string text = sample;
    for (int i = 1; i <= count; ++i)
        text += "^A & O & & & & & set\n^z 1 TC S " + std::to_string(i) + " L G & 647.1 & & &\n";
    for (int i = 100; i < 100 + count / 10; ++i) {
        const std::string digits = std::to_string(i);
        text += "^L " + digits + *CheckDigit(digits) + " NNNNN &\n^S 1 ns\n";
    }
    return text;
}

std::string ManyRows(int count) {
    std::string text = sample + "^A & O & & & & & &\n^2 1 VDN S DIR 1\tY L & DP T C P S & & &\n";
    for (int i = 1; i <= count; ++i)
        text += "^d " + std::to_string(i) + ".25 0.101325 997.0479 0.001\n";
    return text + "^M 0\n";
}

/// The same rows, of a mixture.
std::string ManyMixtureRows(int count) {
    std::string text = sample + "^L 64175 NNNNN &\n^S 1 ns\n^B 64175 7732185 &\n"
                                "^A & O & & & & & &\n"
                                "^2 1 1 VDN S DIR 1 Y L P 101.325 T C X1 S & & & & & &\n";
    for (int i = 1; i <= count; ++i)
        text += "^d " + std::to_string(i) + ".25 0.101325 997.0479 0.001\n";
    return text;
}

void ReadAndWrite(benchmark::State& state, const std::string& text) {
    Room room;
    std::size_t written = 0;
    for (auto _ : state) {
        if (!room.Read(text)) state.SkipWithError("not read");
        written = DocumentAsRecords().size();
    }
    if (written < text.size() / 2) state.SkipWithError("lines are missing");
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void ReadAndWriteValues(benchmark::State& state) {
    ReadAndWrite(state, ManyValues(static_cast<int>(state.range(0))));
}

void ReadAndWriteRows(benchmark::State& state) {
    ReadAndWrite(state, ManyRows(static_cast<int>(state.range(0))));
}

void ReadAndWriteMixtureRows(benchmark::State& state) {
    ReadAndWrite(state, ManyMixtureRows(static_cast<int>(state.range(0))));
}

/// A million rows to a file: as a save does, with its flush and .bak, or written and no more.
void SaveRows(benchmark::State& state) {
    Room room;
    if (!room.Read(ManyRows(1000000))) state.SkipWithError("not read");
    const std::string path = (std::filesystem::current_path() / "vexora-bench-rows.txt").string();
    host::PosixFileSystem files;
    const bool isSafe = state.range(0) != 0;
    for (auto _ : state) {
        if (isSafe) {
            const auto print = [](const auto& taker) { DocumentAsRecords(taker); };
            if (!WriteSafely(files, path, print, true).isSaved) state.SkipWithError("not saved");
        } else {
            std::ofstream file(path, std::ios::binary);
            DocumentAsRecords([&file](std::string_view part) { file << part; });
        }
    }
    std::filesystem::remove(path);
    std::filesystem::remove(path + ".bak");
}

/// Single values with as many statements of uncertainty each, up to four: of the author, combined,
/// repeatability, device.
std::string StatedValues(int count, int statements) {
    const auto flag = [statements](int least) { return statements >= least ? " + " : " - "; };
    std::string text = sample;
    for (int i = 1; i <= count; ++i) {
        const std::string figure = "0." + std::to_string(i % 9 + 1) + "5";
        text += "^A & O & & & & & set::Method:VARY:\n^z 1 TC S " + std::to_string(i) +
                " L G & 647.0" + std::to_string(i % 97) + " & 0.12 5\n";
        if (statements == 0) continue;
        text += "^X 0 TC L" + std::string(flag(4)) + "0 95 " + figure + flag(3) + "1 " + figure +
                " 5" + flag(1) + "95 " + figure + flag(2) + "A 95 - & & " + figure + "\n";
    }
    return text;
}

/// What an export is measured by: reading the document, with its tree.
void ReadStatedValues(benchmark::State& state) {
    Room room;
    room.ShowTree();
    const std::string text =
        StatedValues(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state)
        if (!room.Read(text)) state.SkipWithError("not read");
}

/// An export is read again before it is handed out; both belong to its time.
void ExportValues(benchmark::State& state) {
    Room room;
    if (!room.Read(
            StatedValues(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)))))
        state.SkipWithError("not read");
    std::size_t written = 0;
    for (auto _ : state)
        written = DocumentAsXml({2026, 1, 15}).size();
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(written));
}

BENCHMARK(ReadAndWriteValues)->Arg(5000)->Arg(50000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(ReadAndWriteRows)->Arg(10000)->Arg(100000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(ReadAndWriteRows)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadAndWriteMixtureRows)->Arg(1000000)->Unit(benchmark::kMillisecond);

BENCHMARK(SaveRows)->Arg(0)->Arg(1)->ArgName("safe")->Unit(benchmark::kMillisecond);
BENCHMARK(ReadStatedValues)
    ->ArgsProduct({{18000}, {0, 1, 4}})
    ->ArgNames({"values", "statements"})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ExportValues)
    ->ArgsProduct({{5000, 18000, 50000}, {0, 1, 4}})
    ->ArgNames({"values", "statements"})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora
