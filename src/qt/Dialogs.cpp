#include "qt/Dialogs.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QAbstractButton>
#include <QInputDialog>
#include <QMessageBox>

#include "qt/FormWindow.h"
#include "qt/Prompts.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

using Box = QMessageBox;

// In the order of ui::Answer and of ui::MessageButtons.
constexpr Box::StandardButton ButtonOf[] = {Box::Ok, Box::Yes, Box::No, Box::Cancel, Box::YesToAll};
constexpr Box::StandardButtons ButtonsOf[] = {Box::Ok, Box::Yes | Box::No,
                                              Box::Yes | Box::No | Box::Cancel,
                                              Box::Yes | Box::No | Box::YesToAll};

Box::StandardButton StandardOf(ui::Answer answer) {
    return ButtonOf[static_cast<std::size_t>(answer)];
}

} // namespace

std::unique_ptr<QMessageBox> MakeMessageBox(const ui::Message& message, QWidget* parent) {
    const bool question = message.buttons != ui::MessageButtons::Ok;
    const auto* window = dynamic_cast<const FormWindow*>(parent);
    const QString text = window && !window->IsDetached()
                             ? WithCaptions(ToQt(message.text), window->Model())
                             : ToQt(message.text);
    const QString title = message.title.empty() ? QStringLiteral("Vexora") : ToQt(message.title);
    auto box = std::make_unique<QMessageBox>(
        question ? QMessageBox::Question : QMessageBox::Information, title, text,
        ButtonsOf[static_cast<std::size_t>(message.buttons)], parent);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (const auto& [button, words] :
         {std::pair{Box::Yes, &message.yes}, {Box::No, &message.no}}) {
        if (!words->empty()) box->button(button)->setText(ToQt(*words));
    }
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
    const auto* pressed = std::find(std::begin(ButtonOf), std::end(ButtonOf), box.result());
    if (pressed == std::end(ButtonOf)) return message.safe;
    return static_cast<ui::Answer>(pressed - std::begin(ButtonOf));
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
