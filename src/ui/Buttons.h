#pragma once

#include "ui/Control.h"

namespace vexora::ui {

/// A control that is there to be read: it shows its caption, and the keyboard passes it over.
class Captioned : public Control {
public:
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text) { Alter(caption_, std::move(text)); }
    bool TakesFocus() const override { return false; }
    std::string Display() const override { return caption_; }

protected:
    Captioned(Form& form, ControlKind kind, std::string name, std::string caption)
        : Control(form, kind, std::move(name)), caption_(std::move(caption)) {}

private:
    std::string caption_;
};

/// A line of text beside or between the fields. It answers to clicks when OnClick is set.
class Label : public Captioned {
public:
    Label(Form& form, std::string name, std::string caption = {})
        : Captioned(form, ControlKind::Label, std::move(name), std::move(caption)) {}
};

/// A captioned group of controls; hiding or disabling it hides or disables what stands in it.
class Frame : public Captioned {
public:
    Frame(Form& form, std::string name, std::string caption = {})
        : Captioned(form, ControlKind::Frame, std::move(name), std::move(caption)) {}
};

/// What a person presses by mouse or keyboard. "&" in the caption marks the mnemonic; scripts see
/// the caption without it.
class Button : public Captioned {
public:
    bool TakesFocus() const override { return true; }
    std::string Display() const override;
    bool UserKey(Key& key) override;

protected:
    using Captioned::Captioned;
    /// Whether the key is as good as a click.
    virtual bool IsPressedBy(const Key& key) const { return key.name == "Space"; }
};

/// A push button.
class CommandButton : public Button {
public:
    CommandButton(Form& form, std::string name, std::string caption)
        : Button(form, ControlKind::CommandButton, std::move(name), std::move(caption)) {}

protected:
    bool IsPressedBy(const Key& key) const override;
};

/// On or off. OnClick is fired by every change of the value.
class CheckBox : public Button {
public:
    CheckBox(Form& form, std::string name, std::string caption)
        : Button(form, ControlKind::CheckBox, std::move(name), std::move(caption)) {}
    bool Value() const { return value_; }
    void Value(bool value) { Set(value); }
    void UserClick() override;

protected:
    CheckBox(Form& form, ControlKind kind, std::string name, std::string caption)
        : Button(form, kind, std::move(name), std::move(caption)) {}
    void Set(bool value);

private:
    bool value_ = false;
};

/// One of several: turning it on turns off the others of the same group number on the form.
class OptionButton : public CheckBox {
public:
    OptionButton(Form& form, std::string name, std::string caption, int group = 0)
        : CheckBox(form, ControlKind::OptionButton, std::move(name), std::move(caption)),
          group_(group) {}
    void Value(bool value);
    using CheckBox::Value;
    void UserClick() override;

private:
    int group_;
};

/// The caption without its mnemonic marks ("&Save" is "Save", "&&" is "&").
std::string WithoutMnemonic(std::string_view caption);

} // namespace vexora::ui
