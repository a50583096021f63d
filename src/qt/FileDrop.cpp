#include "qt/FileDrop.h"

#include <utility>

#include <QMimeData>
#include <QUrl>

namespace vexora::qt {

QString DroppedFile(const QDropEvent& event) {
    for (const QUrl& url : event.mimeData()->urls()) {
        if (url.isLocalFile()) return url.toLocalFile();
    }
    return {};
}

FileDrop::FileDrop(QWidget& window, std::function<void(const QString& path)> onFile)
    : QObject(&window), onFile_(std::move(onFile)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->acceptDrops()) widget->installEventFilter(this);
    }
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString path = DroppedFile(drop);
    if (path.isEmpty()) return false;
    drop.acceptProposedAction();
    if (type == QEvent::Drop) onFile_(path);
    return true;
}

} // namespace vexora::qt
