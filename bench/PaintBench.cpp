// The largest table as a picture on the screen: one marker a row.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include <QApplication>

#include "host/PosixFileSystem.h"
#include "qt/QtDesktop.h"
#include "qt/Windows.h"
#include "ui/Form.h"
#include "ui/Forms.h"
#include "ui/Picture.h"

namespace vexora::qt {
namespace {

void PaintMarkers(benchmark::State& state) {
    host::PosixFileSystem files;
    Windows windows;
    QtDesktop desktop(windows, files, {});
    ui::Forms forms(desktop);
    ui::Form form("frmAny", "Any");
    ui::Picture picture(form, "picAny", 1000, 700);
    std::vector<ui::Picture::Stroke> strokes;
    for (int i = 0; i < 16384; ++i) {
        strokes.push_back(
            {ui::Picture::Shape::Marker, i % 997 * 1.0, i % 691 * 1.0, 0, 0, 1 + i % 7, {}});
        strokes.back().marker = i % ui::Picture::MarkerCount;
    }
    picture.Strokes(strokes);
    for (auto _ : state)
        if (!desktop.PngOf(picture)) state.SkipWithError("not painted");
}

BENCHMARK(PaintMarkers)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora::qt

int main(int count, char** arguments) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&count, arguments);
    QApplication application(count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
