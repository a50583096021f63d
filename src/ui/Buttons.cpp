#include "ui/Buttons.h"

#include "ui/Form.h"

namespace vexora::ui {

std::string WithoutMnemonic(std::string_view caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        text += caption[i];
    }
    return text;
}

std::string Button::Display() const {
    return WithoutMnemonic(Caption());
}

bool Button::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    if (!IsUsable() || !IsPressedBy(key)) return false;
    UserClick();
    return true;
}

bool CommandButton::IsPressedBy(const Key& key) const {
    return !key.control && !key.alt && (key.name == "Space" || key.name == "Enter");
}

void CheckBox::Set(bool value) {
    if (Alter(value_, value)) Fire(OnClick);
}

void CheckBox::UserClick() {
    if (!IsUsable()) return;
    SetFocus();
    Set(!value_);
}

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
