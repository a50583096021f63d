#pragma once

#include <QKeyEvent>
#include <QString>

#include "ui/Key.h"

namespace vexora::qt {

/// The key of a press as the models know it; its name is empty for a modifier alone.
ui::Key KeyOf(const QKeyEvent& event);

/// What has to be sent to a widget so that it sees that key.
struct KeyStroke {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    QString text;
};
KeyStroke StrokeOf(const ui::Key& key);

} // namespace vexora::qt
