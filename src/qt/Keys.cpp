#include "qt/Keys.h"

#include <array>

#include "qt/Text.h"
#include "ui/Utf8.h"

namespace vexora::qt {

namespace {

struct Named {
    int key;
    const char* name;
};

constexpr std::array<Named, 17> Names{{{Qt::Key_Return, "Enter"},
                                       {Qt::Key_Enter, "Enter"},
                                       {Qt::Key_Escape, "Escape"},
                                       {Qt::Key_Tab, "Tab"},
                                       {Qt::Key_Backtab, "Tab"},
                                       {Qt::Key_Delete, "Delete"},
                                       {Qt::Key_Insert, "Insert"},
                                       {Qt::Key_Backspace, "Backspace"},
                                       {Qt::Key_Left, "Left"},
                                       {Qt::Key_Right, "Right"},
                                       {Qt::Key_Up, "Up"},
                                       {Qt::Key_Down, "Down"},
                                       {Qt::Key_Home, "Home"},
                                       {Qt::Key_End, "End"},
                                       {Qt::Key_PageUp, "PageUp"},
                                       {Qt::Key_PageDown, "PageDown"},
                                       {Qt::Key_Menu, "Menu"}}};

std::string SpecialName(int key) {
    for (const Named& entry : Names) {
        if (entry.key == key) return entry.name;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return "F" + std::to_string(key - Qt::Key_F1 + 1);
    return {};
}

// With Ctrl or Alt the text of an event is a control character or nothing: the key code names it.
void NameByCode(ui::Key& key, int code) {
    if (code == Qt::Key_Space) key.name = "Space";
    if (code > Qt::Key_Space && code <= Qt::Key_ydiaeresis) {
        key.name = ui::FromPoints(std::u32string(1, static_cast<char32_t>(code)));
    }
}

void NameByText(ui::Key& key, const QString& text, bool keypad) {
    const std::u32string points = ui::ToPoints(FromQt(text));
    if (points.size() != 1 || points[0] < U' ' || points[0] == 0x7F) return;
    key = ui::CharacterKey(points[0]);
    if (keypad) key.name = "Num" + key.name;
}

} // namespace

ui::Key KeyOf(const QKeyEvent& event) {
    ui::Key key;
    const Qt::KeyboardModifiers held = event.modifiers();
    bool control = held.testFlag(Qt::ControlModifier);
    bool alt = held.testFlag(Qt::AltModifier);
    // AltGr comes as both on some platforms and writes a character then.
    if (control && alt && !event.text().isEmpty() && event.text()[0].isPrint()) {
        control = alt = false;
    }
    key.name = SpecialName(event.key());
    if (key.name.empty() && (control || alt)) NameByCode(key, event.key());
    if (key.name.empty()) NameByText(key, event.text(), held.testFlag(Qt::KeypadModifier));
    key.control = control;
    key.alt = alt;
    // The shift of a character is in the character.
    key.shift = held.testFlag(Qt::ShiftModifier) && key.character == 0;
    if (event.key() == Qt::Key_Backtab) key.shift = true;
    return key;
}

KeyStroke StrokeOf(const ui::Key& key) {
    KeyStroke stroke;
    if (key.control) stroke.modifiers |= Qt::ControlModifier;
    if (key.shift) stroke.modifiers |= Qt::ShiftModifier;
    if (key.alt) stroke.modifiers |= Qt::AltModifier;
    for (const Named& entry : Names) {
        if (stroke.key == 0 && key.name == entry.name) stroke.key = entry.key;
    }
    if (stroke.key == 0 && key.name.size() > 1 && key.name[0] == 'F' && key.name[1] < 0x7F) {
        const int number = QString::fromStdString(key.name.substr(1)).toInt();
        if (number > 0) stroke.key = Qt::Key_F1 + number - 1;
    }
    if (key.name.size() > 3 && key.name.starts_with("Num")) stroke.modifiers |= Qt::KeypadModifier;
    if (key.character != 0) stroke.text = ToQt(ui::FromPoints(std::u32string(1, key.character)));
    const std::string& shown = key.name == "Space" ? " " : key.name;
    if (stroke.key == 0 && !shown.empty()) {
        const QString upper = (stroke.text.isEmpty() ? ToQt(shown) : stroke.text).toUpper();
        stroke.key = upper[0].unicode();
    }
    return stroke;
}

} // namespace vexora::qt
