#pragma once

#include "ui/Menus.h"

namespace vexora::ui {

class StepButton;

/// A bar of tool buttons that the keyboard reaches: to Tab it is one stop, and the arrows, Home and
/// End go from button to button.
class StepBar : public Toolbar {
public:
    using Toolbar::Toolbar;
    void Add(StepButton& button);
    /// Where Tab stops: the button that the keyboard is on, else the one that comes next, else the
    /// first that can be pressed; null for none.
    StepButton* Stop() const;

private:
    friend class StepButton;
    std::vector<StepButton*> steps_;
    StepButton* reached_ = nullptr;
};

/// A button of such a bar, a step on the way of the work. Enter and Space press it; a press of the
/// mouse leaves the keyboard where it is.
class StepButton : public ToolButton {
public:
    using ToolButton::ToolButton;
    /// It is the step that comes next, and looks like it.
    bool IsNext() const { return next_; }
    void IsNext(bool value) { Alter(next_, value); }
    bool TakesFocus() const override { return bar_ != nullptr && bar_->Stop() == this; }
    void UserClick() override;
    bool UserKey(Key& key) override;

protected:
    void FocusLost() override;

private:
    friend class StepBar;
    bool GoAlong(const std::string& key);

    StepBar* bar_ = nullptr;
    bool next_ = false;
};

} // namespace vexora::ui
