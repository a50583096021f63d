#include "ui/Control.h"

#include "ui/Form.h"

namespace vexora::ui {

Control::Control(Form& form, ControlKind kind, std::string name)
    : form_(form), kind_(kind), name_(std::move(name)) {
    form_.Adopt(*this);
}

Control::~Control() {
    form_.Disown(*this);
}

bool Control::IsShown() const {
    return visible_ && (container_ == nullptr || container_->IsShown());
}

bool Control::IsUsable() const {
    return visible_ && enabled_ && (container_ == nullptr || container_->IsUsable());
}

void Control::SetFocus() {
    form_.FocusTo(this);
}

bool Control::HasFocus() const {
    return form_.ActiveControl() == this;
}

void Control::UserClick() {
    if (!IsUsable()) return;
    if (TakesFocus()) SetFocus();
    Fire(OnClick);
}

void Control::UserDoubleClick() {
    if (IsUsable()) Fire(OnDoubleClick);
}

bool Control::UserKey(Key& key) {
    if (!IsUsable()) return false;
    if (OnKey) OnKey(key);
    return key.swallowed;
}

} // namespace vexora::ui
