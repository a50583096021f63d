#pragma once

#include <QPointF>
#include <QString>
#include <QWidget>

#include "qt/Keys.h"

namespace vexora::qt {

// Events as mouse and keyboard would send them. A widget may go while it handles one; the later
// events of the same call are left out then.

void MousePress(QWidget* target, QPointF at);
void MouseRelease(QWidget* target, QPointF at);
void MouseMove(QWidget* target, QPointF at, bool pressed);
void MouseClick(QWidget* target, QPointF at);
/// A click and the second press that makes it double.
void MouseDoubleClick(QWidget* target, QPointF at);
/// Only the second press of a double click.
void MouseSecondPress(QWidget* target, QPointF at);
void PressAndRelease(QWidget* target, const KeyStroke& stroke);
void DropFile(QWidget* target, const QString& path);

} // namespace vexora::qt
