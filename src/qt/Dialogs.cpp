#include "qt/Dialogs.h"

#include <QInputDialog>
#include <QMessageBox>

#include "qt/Text.h"

namespace vexora::qt {

namespace {

QMessageBox::StandardButton StandardOf(ui::Answer answer) {
    switch (answer) {
    case ui::Answer::Yes:
        return QMessageBox::Yes;
    case ui::Answer::No:
        return QMessageBox::No;
    case ui::Answer::Cancel:
        return QMessageBox::Cancel;
    case ui::Answer::YesToAll:
        return QMessageBox::YesToAll;
    case ui::Answer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButtons ButtonsOf(ui::MessageButtons buttons) {
    switch (buttons) {
    case ui::MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case ui::MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case ui::MessageButtons::YesNoAll:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::YesToAll;
    case ui::MessageButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

} // namespace

std::unique_ptr<QMessageBox> MakeMessageBox(const ui::Message& message, QWidget* parent) {
    const bool question = message.buttons != ui::MessageButtons::Ok;
    const QString title = message.title.empty() ? QStringLiteral("Vexora") : ToQt(message.title);
    auto box = std::make_unique<QMessageBox>(
        question ? QMessageBox::Question : QMessageBox::Information, title, ToQt(message.text),
        ButtonsOf(message.buttons), parent);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    box->setDefaultButton(StandardOf(message.safe));
    if (message.buttons == ui::MessageButtons::YesNo ||
        message.buttons == ui::MessageButtons::YesNoAll) {
        box->setEscapeButton(QMessageBox::No);
    }
    return box;
}

QAbstractButton* ButtonFor(const QMessageBox& box, ui::Answer answer) {
    return box.button(StandardOf(answer));
}

ui::Answer AnswerOf(const QMessageBox& box, const ui::Message& message) {
    for (const ui::Answer answer : {ui::Answer::Yes, ui::Answer::No, ui::Answer::Cancel,
                                    ui::Answer::YesToAll, ui::Answer::Ok}) {
        if (box.result() == StandardOf(answer)) return answer;
    }
    return message.safe;
}

std::unique_ptr<QInputDialog> MakeInputBox(const ui::Input& input, QWidget* parent) {
    auto box = std::make_unique<QInputDialog>(parent);
    box->setInputMode(QInputDialog::TextInput);
    box->setWindowTitle(input.title.empty() ? QStringLiteral("Vexora") : ToQt(input.title));
    box->setLabelText(Literal(input.prompt));
    box->setTextValue(ToQt(input.text));
    return box;
}

} // namespace vexora::qt
