#include "ui/Buttons.h"

#include "ui/Form.h"

namespace vexora::ui {

namespace {

bool Presses(const Key& key) {
    return !key.control && !key.alt && (key.name == "Space" || key.name == "Enter");
}

} // namespace

std::string WithoutMnemonic(std::string_view caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        text += caption[i];
    }
    return text;
}

Label::Label(Form& form, std::string name, std::string caption)
    : Control(form, ControlKind::Label, std::move(name)), caption_(std::move(caption)) {}

void Label::Caption(std::string text) {
    if (caption_ == text) return;
    caption_ = std::move(text);
    Changed();
}

CommandButton::CommandButton(Form& form, std::string name, std::string caption)
    : Control(form, ControlKind::CommandButton, std::move(name)), caption_(std::move(caption)) {}

void CommandButton::Caption(std::string text) {
    if (caption_ == text) return;
    caption_ = std::move(text);
    Changed();
}

std::string CommandButton::Display() const {
    return WithoutMnemonic(caption_);
}

bool CommandButton::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    if (!IsUsable() || !Presses(key)) return false;
    UserClick();
    return true;
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption)
    : CheckBox(form, ControlKind::CheckBox, std::move(name), std::move(caption)) {}

CheckBox::CheckBox(Form& form, ControlKind kind, std::string name, std::string caption)
    : Control(form, kind, std::move(name)), caption_(std::move(caption)) {}

void CheckBox::Caption(std::string text) {
    if (caption_ == text) return;
    caption_ = std::move(text);
    Changed();
}

void CheckBox::Set(bool value) {
    if (value_ == value) return;
    value_ = value;
    Changed();
    Fire(OnClick);
}

void CheckBox::Value(bool value) {
    Set(value);
}

std::string CheckBox::Display() const {
    return WithoutMnemonic(caption_);
}

void CheckBox::UserClick() {
    if (!IsUsable()) return;
    SetFocus();
    Set(!value_);
}

bool CheckBox::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    if (!IsUsable() || key.name != "Space") return false;
    UserClick();
    return true;
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, int group)
    : CheckBox(form, ControlKind::OptionButton, std::move(name), std::move(caption)),
      group_(group) {}

void OptionButton::Value(bool value) {
    if (value) {
        for (Control* control : Owner().Controls()) {
            if (control == this || control->Kind() != ControlKind::OptionButton) continue;
            auto& other = static_cast<OptionButton&>(*control);
            if (other.group_ == group_) other.Set(false);
        }
    }
    Set(value);
}

void OptionButton::UserClick() {
    if (!IsUsable()) return;
    SetFocus();
    Value(true);
}

} // namespace vexora::ui
