#pragma once

#include <vector>

#include "ui/Control.h"

namespace vexora::ui {

/// One entry of a form's menu bar, a submenu when others name it as their parent. Captions carry
/// "&" for the mnemonic; a shortcut is written as scripts write keys ("Ctrl+S").
class MenuItem : public Control {
public:
    MenuItem(Form& form, std::string name, std::string caption, MenuItem* parent = nullptr,
             std::string shortcut = {});
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text);
    const std::string& Shortcut() const { return shortcut_; }
    MenuItem* Parent() const { return parent_; }
    const std::vector<MenuItem*>& Children() const { return children_; }
    bool Checked() const { return checked_; }
    void Checked(bool value);
    /// A line is drawn above it.
    bool BeginsGroup = false;

    /// Can be reached through the menus above it and is enabled.
    bool IsReachable() const;
    bool TakesFocus() const override { return false; }
    std::string Display() const override;
    void UserClick() override;

private:
    std::string caption_;
    std::string shortcut_;
    MenuItem* parent_;
    std::vector<MenuItem*> children_;
    bool checked_ = false;
};

/// One button of a tool bar; its name is the key of the button.
class ToolButton : public Control {
public:
    ToolButton(Form& form, std::string key, std::string caption, std::string toolTip);
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text);
    bool TakesFocus() const override { return false; }
    std::string Display() const override { return caption_; }

private:
    std::string caption_;
};

/// The bar of tool buttons, in their order.
class Toolbar : public Control {
public:
    Toolbar(Form& form, std::string name);
    void Add(ToolButton& button) { buttons_.push_back(&button); }
    const std::vector<ToolButton*>& Buttons() const { return buttons_; }
    /// The button with an index counted from 1, or null.
    ToolButton* Button(int index) const;
    bool TakesFocus() const override { return false; }
    std::string Display() const override { return {}; }

private:
    std::vector<ToolButton*> buttons_;
};

} // namespace vexora::ui
