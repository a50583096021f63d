#include "qt/Events.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QUrl>

namespace vexora::qt {

namespace {

void Send(QWidget* target, QEvent::Type type, QPointF at, Qt::MouseButton button,
          Qt::MouseButtons held) {
    QMouseEvent event(type, at, target->mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

} // namespace

void MousePress(QWidget* target, QPointF at) {
    Send(target, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
}

void MouseRelease(QWidget* target, QPointF at) {
    Send(target, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

void MouseMove(QWidget* target, QPointF at, bool pressed) {
    Send(target, QEvent::MouseMove, at, Qt::NoButton, pressed ? Qt::LeftButton : Qt::NoButton);
}

void MouseClick(QWidget* target, QPointF at) {
    QPointer<QWidget> alive(target);
    MousePress(target, at);
    if (alive) MouseRelease(target, at);
}

void MouseDoubleClick(QWidget* target, QPointF at) {
    QPointer<QWidget> alive(target);
    MouseClick(target, at);
    if (alive) MouseSecondPress(target, at);
}

void MouseSecondPress(QWidget* target, QPointF at) {
    QPointer<QWidget> alive(target);
    Send(target, QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
    if (alive) MouseRelease(target, at);
}

void PressAndRelease(QWidget* target, const KeyStroke& stroke) {
    QPointer<QWidget> alive(target);
    QKeyEvent press(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
    QCoreApplication::sendEvent(target, &press);
    if (!alive) return;
    QKeyEvent release(QEvent::KeyRelease, stroke.key, stroke.modifiers, stroke.text);
    QCoreApplication::sendEvent(target, &release);
}

void DropFile(QWidget* target, const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPoint at = target->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
}

} // namespace vexora::qt
