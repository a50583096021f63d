#include "qt/RunInteractive.h"

#include <QMessageBox>
#include <QSettings>
#include <QThread>
#include <QTimer>

#include "host/PosixFileSystem.h"
#include "host/PosixRecoveryFolder.h"
#include "qt/Look.h"
#include "qt/QtDesktop.h"
#include "qt/RecentFiles.h"
#include "qt/Text.h"
#include "qt/Windows.h"
#include "shell/LookChoice.h"
#include "shell/Places.h"

namespace vexora::qt {

namespace {

void Tell(const std::exception_ptr& fault) {
    QMessageBox::critical(QApplication::activeWindow(), QStringLiteral("Vexora"),
                          QStringLiteral("The program has made a mistake: ") + FaultText(fault) +
                              QStringLiteral("\nThe document is still open and can be saved."));
}

constexpr const char* LookSetting = "look";

std::string NameOf(Look look) {
    return look == Look::Dark ? "dark" : look == Look::Light ? "light" : "";
}

/// Takes the look of the last time, and keeps what is chosen from now on.
void FollowLook(QSettings& settings, const std::string& asked) {
    const std::string kept = FromQt(settings.value(QString::fromLatin1(LookSetting)).toString());
    TheLook().Chosen = kept == "dark"    ? Look::Dark
                       : kept == "light" ? Look::Light
                                         : Look::OfDesktop;
    if (asked.empty()) TakeLook(kept);
    TheLook().OnTaken = [&settings](Look look) {
        settings.setValue(QString::fromLatin1(LookSetting), ToQt(NameOf(look)));
        TakeLook(NameOf(look));
    };
}

/// The workbench with its windows, from the first event to the close of the main window.
class Run {
public:
    Run(Application& application, const Places& places, const std::string& look)
        : settings_(ToQt(places.Home) + QStringLiteral("/windows.ini"), QSettings::IniFormat),
          recent_(settings_), desktop_(windows_, files_, {places.Home, places.Installed}),
          workbench_(desktop_, places), application_(application) {
        FollowLook(settings_, look);
        windows_.Settings = &settings_;
        windows_.Recent = &recent_;
        windows_.OnFault = application.OnFault = Tell;
        windows_.Follow();
        workbench_.Forms().Closed.Connect([this](ui::Form&) { TidyLater(); });
    }

    ~Run() {
        application_.OnFault = nullptr;
        TheLook().OnTaken = nullptr;
    }

    void Start(const std::string& document) {
        if (!workbench_.Start(document)) QCoreApplication::quit();
    }

private:
    void TidyLater() {
        QTimer::singleShot(0, &application_, [this] { Tidy(); });
    }

    // A handler of a closed form may still wait below a nested event loop.
    void Tidy() {
        if (QThread::currentThread()->loopLevel() > 1) {
            QTimer::singleShot(200, &application_, [this] { Tidy(); });
            return;
        }
        workbench_.Forms().DropClosed();
        if (!workbench_.IsRunning()) QCoreApplication::quit();
    }

    host::PosixFileSystem files_;
    QSettings settings_;
    RecentFiles recent_;
    Windows windows_;
    QtDesktop desktop_;
    Workbench workbench_;
    Application& application_;
};

} // namespace

int RunInteractive(Application& application, const Places& places, const std::string& document,
                   const std::string& look) {
    host::PosixFileSystem files;
    if (const std::string error = PrepareHome(places, files); !error.empty()) {
        QMessageBox::critical(nullptr, QStringLiteral("Vexora"), ToQt(error));
        return 1;
    }
    BringIntroduction(places, files);
    QApplication::setQuitOnLastWindowClosed(false);
    Places kept = places;
    kept.Recovery = host::RecoveryBelow(places.Home);
    Run run(application, kept, look);
    QTimer::singleShot(0, &application, [&] { run.Start(document); });
    return QApplication::exec();
}

} // namespace vexora::qt
