#include "ui/Menus.h"

#include "ui/Buttons.h"

namespace vexora::ui {

MenuItem::MenuItem(Form& form, std::string name, std::string caption, MenuItem* parent,
                   std::string shortcut)
    : Control(form, ControlKind::MenuItem, std::move(name)), caption_(std::move(caption)),
      shortcut_(std::move(shortcut)), parent_(parent) {
    if (parent_) parent_->children_.push_back(this);
}

void MenuItem::Caption(std::string text) {
    if (caption_ == text) return;
    caption_ = std::move(text);
    Changed();
}

void MenuItem::Checked(bool value) {
    if (checked_ == value) return;
    checked_ = value;
    Changed();
}

bool MenuItem::IsReachable() const {
    return IsUsable() && (parent_ == nullptr || parent_->IsReachable());
}

std::string MenuItem::Display() const {
    return WithoutMnemonic(caption_);
}

void MenuItem::UserClick() {
    if (IsReachable()) Fire(OnClick);
}

ToolButton::ToolButton(Form& form, std::string key, std::string caption, std::string toolTip)
    : Control(form, ControlKind::ToolButton, std::move(key)), caption_(std::move(caption)) {
    ToolTip(std::move(toolTip));
}

void ToolButton::Caption(std::string text) {
    if (caption_ == text) return;
    caption_ = std::move(text);
    Changed();
}

Toolbar::Toolbar(Form& form, std::string name)
    : Control(form, ControlKind::Toolbar, std::move(name)) {}

ToolButton* Toolbar::Button(int index) const {
    const bool inside = index >= 1 && index <= static_cast<int>(buttons_.size());
    return inside ? buttons_[static_cast<std::size_t>(index - 1)] : nullptr;
}

} // namespace vexora::ui
