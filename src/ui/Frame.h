#pragma once

#include "ui/Control.h"

namespace vexora::ui {

/// A captioned group of controls; hiding or disabling it hides or disables what stands in it.
class Frame : public Control {
public:
    Frame(Form& form, std::string name, std::string caption = {});
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text);
    bool TakesFocus() const override { return false; }
    std::string Display() const override { return caption_; }

private:
    std::string caption_;
};

} // namespace vexora::ui
