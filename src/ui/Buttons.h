#pragma once

#include "ui/Control.h"

namespace vexora::ui {

/// A line of text beside or between the fields. It answers to clicks when OnClick is set.
class Label : public Control {
public:
    Label(Form& form, std::string name, std::string caption = {});
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text);
    bool TakesFocus() const override { return false; }
    std::string Display() const override { return caption_; }

private:
    std::string caption_;
};

/// A push button. "&" in the caption marks the mnemonic; scripts see the caption without it.
class CommandButton : public Control {
public:
    CommandButton(Form& form, std::string name, std::string caption);
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text);
    std::string Display() const override;
    bool UserKey(Key& key) override;

private:
    std::string caption_;
};

/// On or off. OnClick is fired by every change of the value.
class CheckBox : public Control {
public:
    CheckBox(Form& form, std::string name, std::string caption);
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text);
    bool Value() const { return value_; }
    void Value(bool value);
    std::string Display() const override;
    void UserClick() override;
    bool UserKey(Key& key) override;

protected:
    CheckBox(Form& form, ControlKind kind, std::string name, std::string caption);
    void Set(bool value);

private:
    std::string caption_;
    bool value_ = false;
};

/// One of several: turning it on turns off the others of the same group number on the form.
class OptionButton : public CheckBox {
public:
    OptionButton(Form& form, std::string name, std::string caption, int group = 0);
    int Group() const { return group_; }
    void Value(bool value);
    using CheckBox::Value;
    void UserClick() override;

private:
    int group_;
};

/// The caption without its mnemonic marks ("&Save" is "Save", "&&" is "&").
std::string WithoutMnemonic(std::string_view caption);

} // namespace vexora::ui
