#pragma once

#include <memory>

#include "ui/Desktop.h"

class QAbstractButton;
class QInputDialog;
class QMessageBox;
class QWidget;

namespace vexora::qt {

/// The box for a message; Enter presses the answer that loses nothing.
std::unique_ptr<QMessageBox> MakeMessageBox(const ui::Message& message, QWidget* parent);
/// The button of the box that gives the answer.
QAbstractButton* ButtonFor(const QMessageBox& box, ui::Answer answer);
/// The answer of a box that has been closed.
ui::Answer AnswerOf(const QMessageBox& box, const ui::Message& message);

std::unique_ptr<QInputDialog> MakeInputBox(const ui::Input& input, QWidget* parent);

} // namespace vexora::qt
