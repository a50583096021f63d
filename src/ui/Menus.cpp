#include "ui/Menus.h"

namespace vexora::ui {

MenuItem::MenuItem(Form& form, std::string name, std::string caption, MenuItem* parent,
                   std::string shortcut)
    : Captioned(form, ControlKind::MenuItem, std::move(name), std::move(caption)),
      shortcut_(std::move(shortcut)), parent_(parent) {
    if (parent_) parent_->children_.push_back(this);
}

bool MenuItem::IsReachable() const {
    return IsUsable() && (parent_ == nullptr || parent_->IsReachable());
}

void MenuItem::UserClick() {
    if (IsReachable()) Fire(OnClick);
}

ToolButton::ToolButton(Form& form, std::string key, std::string caption, std::string toolTip)
    : Captioned(form, ControlKind::ToolButton, std::move(key), std::move(caption)) {
    ToolTip(std::move(toolTip));
}

} // namespace vexora::ui
