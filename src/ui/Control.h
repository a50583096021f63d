#pragma once

#include <functional>
#include <string>
#include <utility>

#include "ui/Key.h"
#include "ui/Signal.h"

namespace vexora::ui {

class Form;
class Frame;

enum class ControlKind {
    Label,
    TextBox,
    CommandButton,
    CheckBox,
    OptionButton,
    ComboBox,
    ListBox,
    Frame,
    Grid,
    TreeView,
    Toolbar,
    ToolButton,
    TabStrip,
    MenuItem,
    Picture,
    RichText
};

/// What every control has: a name by which scripts address it, whether it can be seen and used, the
/// focus, and its events. A control belongs to the form that declares it as a member; views listen
/// to Redraw and hold no state of their own. A setter does nothing when nothing changes. Functions
/// that begin with "User" are what a person does; they do nothing on a control that cannot be used.
class Control {
public:
    Control(Form& form, ControlKind kind, std::string name);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind Kind() const { return kind_; }
    Form& Owner() const { return form_; }
    /// The name within the form; the members of an array are "txtCoeff(0)", "txtCoeff(1)", ...
    const std::string& Name() const { return name_; }

    bool Enabled() const { return enabled_; }
    void Enabled(bool value) { Alter(enabled_, value); }
    bool Visible() const { return visible_; }
    void Visible(bool value) { Alter(visible_, value); }
    /// Seen on the screen: visible itself and so are the frames around it.
    bool IsShown() const;
    /// Shown, and neither it nor a frame around it is disabled.
    bool IsUsable() const;

    const std::string& ToolTip() const { return toolTip_; }
    void ToolTip(std::string text) { Alter(toolTip_, std::move(text)); }
    /// Why it cannot be used now, in a person's words: the tip that it shows while it is disabled.
    const std::string& WhyDisabled() const { return whyDisabled_; }
    void WhyDisabled(std::string text) { Alter(whyDisabled_, std::move(text)); }
    /// What a screen reader calls it; empty where its caption or label says enough.
    const std::string& AccessibleName() const { return accessibleName_; }
    void AccessibleName(std::string text) { Alter(accessibleName_, std::move(text)); }
    /// What a person reads in its place while nobody types into it: a citation without its marks.
    /// Empty for the content itself. Scripts and records know the content alone.
    const std::string& Readable() const { return readable_; }
    void Readable(std::string text) { Alter(readable_, std::move(text)); }
    /// Shown grey while the field is empty: what belongs in it.
    const std::string& Hint() const { return hint_; }
    void Hint(std::string text) { Alter(hint_, std::move(text)); }

    /// Moves the focus of the form here; nothing happens when the control cannot take it.
    void SetFocus();
    bool HasFocus() const;
    /// Whether the keyboard reaches this kind of control.
    virtual bool TakesFocus() const { return true; }

    /// The text a person reads on it: content, caption or chosen entry.
    virtual std::string Display() const = 0;

    Frame* Container() const { return container_; }
    void Container(Frame* frame) { container_ = frame; }

    std::function<void()> OnClick;
    std::function<void()> OnDoubleClick;
    std::function<void()> OnGotFocus;
    std::function<void()> OnLostFocus;
    std::function<void(Key&)> OnKey;

    virtual void UserClick();
    virtual void UserDoubleClick();
    /// True when the key did something here, so that the form does nothing further with it.
    virtual bool UserKey(Key& key);

    /// Sent after every change that a view has to follow.
    Signal<> Redraw;

protected:
    void Changed() { Redraw.Emit(); }
    /// Takes a value over and tells the views; false when it is the one that stands there.
    template <class T>
    bool Alter(T& member, T value) {
        if (member == value) return false;
        member = std::move(value);
        Changed();
        return true;
    }
    static void Fire(const std::function<void()>& handler) {
        if (handler) handler();
    }
    /// Told by the form once the focus has gone elsewhere.
    virtual void FocusLost() { Fire(OnLostFocus); }

private:
    friend class Form; // tells it of the focus
    Form& form_;
    ControlKind kind_;
    std::string name_;
    std::string toolTip_;
    std::string whyDisabled_;
    std::string accessibleName_;
    std::string readable_;
    std::string hint_;
    Frame* container_ = nullptr;
    bool enabled_ = true;
    bool visible_ = true;
};

} // namespace vexora::ui
