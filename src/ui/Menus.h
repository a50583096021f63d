#pragma once

#include <vector>

#include "ui/Buttons.h"

namespace vexora::ui {

/// One entry of a form's menu bar, a submenu when others name it as their parent. Captions carry
/// "&" for the mnemonic; a shortcut is written as scripts write keys ("Ctrl+S").
class MenuItem : public Captioned {
public:
    MenuItem(Form& form, std::string name, std::string caption, MenuItem* parent = nullptr,
             std::string shortcut = {});
    const std::string& Shortcut() const { return shortcut_; }
    MenuItem* Parent() const { return parent_; }
    const std::vector<MenuItem*>& Children() const { return children_; }
    bool Checked() const { return checked_; }
    void Checked(bool value) { Alter(checked_, value); }
    /// A line is drawn above it.
    bool BeginsGroup = false;

    /// Can be reached through the menus above it and is enabled.
    bool IsReachable() const;
    std::string Display() const override { return WithoutMnemonic(Caption()); }
    void UserClick() override;

private:
    std::string shortcut_;
    MenuItem* parent_;
    std::vector<MenuItem*> children_;
    bool checked_ = false;
};

/// One button of a tool bar; its name is the key of the button.
class ToolButton : public Captioned {
public:
    ToolButton(Form& form, std::string key, std::string caption, std::string toolTip);
};

/// The bar of tool buttons, in their order.
class Toolbar : public Control {
public:
    Toolbar(Form& form, std::string name) : Control(form, ControlKind::Toolbar, std::move(name)) {}
    void Add(ToolButton& button) { buttons_.push_back(&button); }
    const std::vector<ToolButton*>& Buttons() const { return buttons_; }
    bool TakesFocus() const override { return false; }
    std::string Display() const override { return {}; }

private:
    std::vector<ToolButton*> buttons_;
};

} // namespace vexora::ui
