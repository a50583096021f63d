#pragma once

#include <string>

#include <QMainWindow>

class QTextBrowser;

namespace vexora::qt {

/// The viewer of help pages: one window for all topics, made on first use and kept by Qt.
class HelpWindow : public QMainWindow {
public:
    /// Shows the page of that file. A parent that blocks others by being modal owns its own viewer,
    /// so that it can be read beside it.
    static void Show(const std::string& path, QWidget* parent);

private:
    explicit HelpWindow(QWidget* parent);
    QTextBrowser* browser_;
};

} // namespace vexora::qt
