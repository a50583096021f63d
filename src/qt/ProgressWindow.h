#pragma once

#include <memory>

#include <QElapsedTimer>

#include "ui/Desktop.h"

class QDialog;
class QProgressBar;
class QWidget;

namespace vexora::qt {

/// How far a long work is, in a small window that shows up once the work takes long enough to be
/// noticed. Meanwhile nothing else can be clicked, and forms that have closed stay in memory.
class ProgressWindow : public ui::Progress {
public:
    static constexpr int BeforeShown = 500; // [ms] from the begin of the work
    static constexpr int Between = 100;     // [ms] from one look at the screen to the next

    ProgressWindow(const ui::LongWork& work, QWidget* parent);
    ~ProgressWindow() override;
    ProgressWindow(const ProgressWindow&) = delete;
    ProgressWindow& operator=(const ProgressWindow&) = delete;

    bool Reached(double share) override;
    /// Nothing stands over a question; the window comes back with the next word.
    static void HideAll();

private:
    void Show();
    void Hide();

    std::unique_ptr<QDialog> window_;
    QProgressBar* bar_ = nullptr;
    QElapsedTimer since_, last_;
    bool isStopped_ = false;
};

} // namespace vexora::qt
