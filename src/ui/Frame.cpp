#include "ui/Frame.h"

namespace vexora::ui {

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, ControlKind::Frame, std::move(name)), caption_(std::move(caption)) {}

void Frame::Caption(std::string text) {
    if (caption_ == text) return;
    caption_ = std::move(text);
    Changed();
}

} // namespace vexora::ui
