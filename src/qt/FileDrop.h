#pragma once

#include <functional>

#include <QDropEvent>
#include <QObject>
#include <QWidget>

namespace vexora::qt {

/// The path of the first local file that is dragged along, "" for none.
QString DroppedFile(const QDropEvent& event);

/// Takes files dropped anywhere on a window, also on its fields, which keep all other drops. It
/// belongs to the window; widgets added later are not watched.
class FileDrop : public QObject {
public:
    FileDrop(QWidget& window, std::function<void(const QString& path)> onFile);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(const QString& path)> onFile_;
};

} // namespace vexora::qt
