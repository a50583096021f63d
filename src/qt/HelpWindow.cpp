#include "qt/HelpWindow.h"

#include <QAction>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

#include "qt/Text.h"

namespace vexora::qt {

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow(parent, Qt::Window), browser_(new QTextBrowser(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Help"));
    setObjectName(QStringLiteral("HelpWindow"));
    setCentralWidget(browser_);
    auto* bar = addToolBar(tr("Help"));
    bar->setMovable(false);
    auto* back = bar->addAction(tr("Back"), browser_, &QTextBrowser::backward);
    auto* forward = bar->addAction(tr("Forward"), browser_, &QTextBrowser::forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    auto* close = new QAction(this);
    close->setShortcut(Qt::Key_Escape);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().lineSpacing() * 36);
}

void HelpWindow::Show(const std::string& path, QWidget* parent) {
    auto* window = parent ? parent->findChild<HelpWindow*>(QStringLiteral("HelpWindow"),
                                                           Qt::FindDirectChildrenOnly)
                          : nullptr;
    if (!window) window = new HelpWindow(parent);
    window->browser_->setSource(QUrl::fromLocalFile(ToQt(path)));
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace vexora::qt
