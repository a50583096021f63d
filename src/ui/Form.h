#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ui/Buttons.h"
#include "ui/Control.h"
#include "ui/ControlArray.h"
#include "ui/Grid.h"
#include "ui/Layout.h"
#include "ui/Lists.h"
#include "ui/Menus.h"
#include "ui/Picture.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"

namespace vexora::ui {

/// A window of the workbench. A form owns its controls as public members under their given names;
/// the order of declaration is the tab order. It is made afresh by the registry (Forms) each time
/// it is opened and destroyed after it has closed, so that it always starts empty.
class Form {
public:
    Form(std::string name, std::string caption);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void Caption(std::string text);

    /// How it is laid out; empty lets the renderer stack the controls.
    ui::Layout Arrangement;
    CommandButton* DefaultButton = nullptr;
    CommandButton* CancelButton = nullptr;
    int HelpContext = 0;
    /// Set while the form fills itself (FillingScope), for handlers that then do nothing.
    bool Filling = false;
    /// First size in characters of text, 0 for what the content asks.
    int PreferredColumns = 0;
    int PreferredRows = 0;

    bool IsOpen() const { return open_; }
    bool IsModal() const { return modal_; }
    bool IsVisible() const { return open_ && shown_; }
    /// Open, seen, and no modal form stands above it.
    bool IsReachable() const;

    /// Opens the form (Load, then Activate), or brings it back when it was hidden.
    void Show();
    /// Opens it above all others and comes back when it has closed or hidden itself.
    void ShowModal();
    void Hide();
    /// Asks QueryUnload, then closes; false when it stays open.
    bool Close();
    /// A person closes the window by its frame.
    void UserClose();

    /// All controls in the order of declaration, or of the layout (TabAlongArrangement); the
    /// destructor of a member takes it off.
    const std::vector<Control*>& Controls() const { return controls_; }
    /// The control with this name ("txtName", "txtCoeff(1)"), or null.
    Control* Find(std::string_view name) const;

    Control* ActiveControl() const { return active_; }
    /// Moves the focus, telling the one left and the one entered; null leaves all. A control that
    /// is not usable or takes no focus is passed over; the page of one on another page is turned
    /// up.
    void FocusTo(Control* control);
    /// A key on the control that has the focus: the control first, then Enter for the default
    /// button, Escape for the cancel button, Tab to the next field, F1 for the help of the form.
    void UserKey(Key key);
    /// The usable control behind (or before) the active one in tab order, or null.
    Control* NextInTabOrder(bool backwards) const;

    /// Enter presses the first button, Escape the second, which closes the form.
    void UseButtons(CommandButton& accept, CommandButton& cancel, std::function<void()> onAccept);
    /// Brings the controls into the order of the layout, where arrays of them stand in blocks;
    /// those outside of it follow as they were declared. For the constructor, behind Arrangement.
    void TabAlongArrangement();

    /// Says what is wrong and leads to the control that mends it; answers false, as a check does.
    bool Refuse(Control& control, const std::string& text, const std::string& title = {});
    /// Asks whether something unlikely is meant; the answer No leads to the control and is false.
    bool Confirm(Control& control, const std::string& question, const std::string& title = {});

    Signal<> CaptionChanged;
    Signal<> FocusChanged;
    Signal<> ShownChanged;

    virtual void Load() {}
    virtual void Activate() {}
    /// False keeps the form open.
    virtual bool QueryUnload() { return true; }
    virtual void Unload() {}

private:
    friend class Control;
    friend class Forms;
    void Adopt(Control& control);
    void Disown(Control& control);
    void Open(bool modal);
    bool UseShortcut(const Key& key);

    std::string name_;
    std::string caption_;
    std::vector<Control*> controls_;
    std::unordered_map<std::string, Control*> byName_;
    Control* active_ = nullptr;
    bool open_ = false;
    bool shown_ = false;
    bool modal_ = false;
    bool closing_ = false;
};

/// Marks a form as filling itself until the scope ends.
class FillingScope {
public:
    explicit FillingScope(Form& form) : form_(form), before_(form.Filling) { form.Filling = true; }
    ~FillingScope() { form_.Filling = before_; }
    FillingScope(const FillingScope&) = delete;
    FillingScope& operator=(const FillingScope&) = delete;

private:
    Form& form_;
    bool before_;
};

} // namespace vexora::ui
