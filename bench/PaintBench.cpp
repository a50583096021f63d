// What a person sees: the largest table as a picture and in its grid, and a document in its window.
#include <benchmark/benchmark.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>

#include "FullPlot.h"
#include "host/PosixFileSystem.h"
#include "qt/PicturePainter.h"
#include "qt/QtDesktop.h"
#include "qt/Windows.h"
#include "shell/Places.h"
#include "shell/Workbench.h"
#include "shell/frmMain.h"
#include "ui/Form.h"
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

/// The whole plot of a full table drawn anew, with its curves and bars.
void RedrawPlot(benchmark::State& state) {
    FullPlot plot;
    const ui::Picture& picture = plot.Open().picPIC;
    QPixmap ground(1000, 700);
    for (auto _ : state) {
        ground.fill(Qt::white);
        QPainter painter(&ground);
        PaintStrokes(painter, picture, picture.Strokes(), ground.size(), QPalette());
    }
}

/// What the redraw is held against.
void BarePoints(benchmark::State& state) {
    QPolygonF points;
    for (std::size_t i = 0; i < PlotTable::MostPoints; ++i)
        points << QPointF(static_cast<double>(i % 997), static_cast<double>(i % 691));
    QPixmap ground(1000, 700);
    for (auto _ : state) {
        ground.fill(Qt::white);
        QPainter painter(&ground);
        painter.drawPoints(points);
    }
}

/// Knows the person's name.
struct KnownDesktop : QtDesktop {
    using QtDesktop::QtDesktop;
    std::optional<std::string> Ask(const ui::Input& input) override { return input.text; }
};

/// The workbench with its windows, started.
struct Desk {
    Desk() {
        places.Installed = VEXORA_SHARE_DIR;
        places.Home = home.path().toStdString();
        std::ofstream(places.Home + "/VXR.ini")
            << "COMPILER m\nCONTRIBUTOR m\nXMLCOMPILER mue\nORGANIZATION Nowhere\n";
        PrepareHome(places, files);
        workbench = std::make_unique<Workbench>(desktop, places);
        windows.Follow();
        isStarted = workbench->Start({});
        Settle();
    }
    void Settle() {
        windows.Flush();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    host::PosixFileSystem files;
    Windows windows;
    KnownDesktop desktop{windows, files, {}};
    QTemporaryDir home;
    Places places;
    std::unique_ptr<Workbench> workbench;
    bool isStarted = false;
};

/// A document of a thousand rows, from the drop of its file to the painted tree.
void OpenDocument(benchmark::State& state) {
    Desk desk;
    const std::string path = desk.places.Home + "/rows.txt";
    std::ofstream file(path);
    file
        << "\n^R 2002 wag pru 1\n^J#J#O#J. Phys. Chem. Ref. Data, 2002, 31, 387-535#T##A##S#0####\n"
           "^L 7732185 DNNNN S\n^S 1 cm;;99.9m%,gc\n^A & O & & & & & &\n"
           "^2 1 VDN S DIR 1\tY L & DP T C P S & & &\n";
    for (int i = 1; i <= 1000; ++i)
        file << "^d " << i % 300 << ".25 0.101325 997.0479 0.001\n";
    file << "^M 0\n";
    file.close();
    auto& main = desk.workbench->Forms().Get<frmMain>("frmMain");
    for (auto _ : state) {
        main.tvwTree.UserDrop(path);
        desk.Settle();
    }
    if (!desk.isStarted || main.FileName != path) state.SkipWithError("not opened");
}

BENCHMARK(PaintMarkers)->Unit(benchmark::kMillisecond);
BENCHMARK(RedrawPlot)->Unit(benchmark::kMillisecond);
BENCHMARK(BarePoints)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenDocument)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora::qt

int main(int count, char** arguments) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&count, arguments);
    QApplication application(count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
