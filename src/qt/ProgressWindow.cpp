#include "qt/ProgressWindow.h"

#include <algorithm>
#include <functional>
#include <vector>

#include <QDialog>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "qt/Text.h"

namespace vexora::qt {

namespace {

constexpr int Steps = 1000;
constexpr int Width = 360; // of the bar, in pixels

std::vector<ProgressWindow*>& All() {
    static std::vector<ProgressWindow*> all;
    return all;
}

/// Escape and the frame stop the work where Cancel does, and else do nothing: the window goes with
/// the work.
class WorkDialog : public QDialog {
public:
    using QDialog::QDialog;
    std::function<void()> OnReject;
    void reject() override {
        if (OnReject) OnReject();
    }
};

/// Lets the person see and press what is there. A loop of its own, so that what waits for the end
/// of all handlers goes on waiting.
void LookAtEvents() {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

ProgressWindow::ProgressWindow(const ui::LongWork& work, QWidget* parent) {
    auto window = std::make_unique<WorkDialog>(parent);
    window->setWindowTitle(QStringLiteral("Vexora"));
    window->setWindowModality(Qt::ApplicationModal);
    auto* const column = new QVBoxLayout(window.get());
    auto* const label = new QLabel(ToQt(work.what), window.get());
    label->setTextFormat(Qt::PlainText);
    bar_ = new QProgressBar(window.get());
    bar_->setRange(0, Steps);
    bar_->setMinimumWidth(Width);
    bar_->setAccessibleName(label->text());
    column->addWidget(label);
    column->addWidget(bar_);
    if (work.mayStop) {
        auto* const cancel = new QPushButton(QStringLiteral("Cancel"), window.get());
        column->addWidget(cancel, 0, Qt::AlignRight);
        window->OnReject = [this, cancel] {
            isStopped_ = true;
            cancel->setEnabled(false);
        };
        QObject::connect(cancel, &QPushButton::clicked, window.get(), &QDialog::reject);
    }
    window_ = std::move(window);
    since_.start();
    last_.start();
    All().push_back(this);
}

ProgressWindow::~ProgressWindow() {
    Hide();
    std::erase(All(), this);
}

bool ProgressWindow::Reached(double share) {
    if (last_.elapsed() < Between || since_.elapsed() < BeforeShown) return !isStopped_;
    bar_->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * Steps));
    Show();
    LookAtEvents();
    last_.restart();
    return !isStopped_;
}

void ProgressWindow::HideAll() {
    for (ProgressWindow* one : All())
        one->Hide();
}

// The hourglass is not for a window with a button.
void ProgressWindow::Show() {
    if (window_->isVisible()) return;
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    window_->show();
}

void ProgressWindow::Hide() {
    if (!window_->isVisible()) return;
    window_->hide();
    QGuiApplication::restoreOverrideCursor();
}

} // namespace vexora::qt
