#include <QAbstractButton>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "qt/Dialogs.h"
#include "qt/Events.h"
#include "qt/QtActor.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

void Press(QAbstractButton* button) {
    MouseClick(button, button->rect().center());
}

// The box that stands for the file chooser: what a person does there leaves only a path behind.
std::unique_ptr<QInputDialog> MakeChooser(const ui::FileChoice& choice, QWidget* parent) {
    const std::string prompt = choice.filter.empty() ? "File" : choice.filter;
    return MakeInputBox({prompt, choice.save ? "Save" : "Open", choice.proposed}, parent);
}

void Fill(QInputDialog& box, const std::optional<std::string>& answer) {
    box.open();
    auto* field = box.findChild<QLineEdit*>();
    if (answer && field) {
        field->selectAll();
        field->insert(ToQt(*answer));
    }
    const ui::Key key = ui::ParseKey(answer ? "Enter" : "Escape");
    PressAndRelease(answer && field ? static_cast<QWidget*>(field) : &box, StrokeOf(key));
    if (box.isVisible()) throw host::ActorError("the input box stays open");
    if (answer && FromQt(box.textValue()) != *answer) {
        throw host::ActorError("the input box holds another text");
    }
}

} // namespace

void QtActor::Answer(const ui::Message& message, ui::Answer answer) {
    Settle();
    const auto box = MakeMessageBox(message, windows_.Front());
    box->open();
    QAbstractButton* button = ButtonFor(*box, answer);
    if (!button) throw host::ActorError("the message has no such button");
    Press(button);
    if (box->isVisible() || AnswerOf(*box, message) != answer) {
        throw host::ActorError("the message was not answered");
    }
}

void QtActor::Answer(const ui::Input& input, const std::optional<std::string>& answer) {
    Settle();
    Fill(*MakeInputBox(input, windows_.Front()), answer);
}

void QtActor::Answer(const ui::FileChoice& choice, const std::optional<std::string>& answer) {
    Settle();
    Fill(*MakeChooser(choice, windows_.Front()), answer);
}

} // namespace vexora::qt
