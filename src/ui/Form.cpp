#include "ui/Form.h"

#include <algorithm>

#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora::ui {

namespace {

void Gather(const Layout& layout, std::vector<Control*>& controls) {
    for (Control* control : {layout.label, layout.control})
        if (control && std::ranges::find(controls, control) == controls.end())
            controls.push_back(control);
    for (const Layout& part : layout.parts)
        Gather(part, controls);
}

/// Takes keys that do nothing.
bool IsLocked(const Control& control) {
    return control.Kind() == ControlKind::TextBox && static_cast<const TextBox&>(control).Locked();
}

/// A box that holds something already, so that whoever comes goes on to the next: a choice that is
/// made, an option, a text that another form fills.
bool IsPassedBy(const Control& control) {
    if (control.Kind() == ControlKind::CheckBox || control.Kind() == ControlKind::OptionButton)
        return true;
    if (control.Kind() != ControlKind::ComboBox) return IsLocked(control);
    const auto& list = static_cast<const ComboBox&>(control);
    return !list.Text().empty() && list.Text() != list.Hint() &&
           !(list.FirstIsPrompt && list.Index() == 0);
}

/// A box of one line that waits for its text, or a list for its choice.
bool IsToBeFilled(const Control& control) {
    if (control.Kind() == ControlKind::ComboBox) return !IsPassedBy(control);
    if (control.Kind() != ControlKind::TextBox) return false;
    const auto& box = static_cast<const TextBox&>(control);
    return !box.IsMultiLine() && (box.IsEmpty() || box.Text() == box.Hint());
}

/// Where a person begins: behind the boxes at the head that are settled already, if one to be
/// filled stands there; else at the first that takes keys.
Control* FirstToFill(const Form& form) {
    Control* first = nullptr;
    for (Control* control : form.Controls()) {
        const bool reachable = control->TakesFocus() && control->IsUsable() &&
                               IsOnTurnedPage(form.Arrangement, *control);
        if (!reachable) continue;
        if (IsToBeFilled(*control)) return control;
        if (first == nullptr && !IsLocked(*control)) first = control;
        if (!IsPassedBy(*control)) break;
    }
    return first != nullptr ? first : form.NextInTabOrder(false);
}

} // namespace

Form::Form(std::string name, std::string caption)
    : name_(std::move(name)), caption_(std::move(caption)) {}

void Form::Caption(std::string text) {
    if (caption_ == text) return;
    caption_ = std::move(text);
    CaptionChanged.Emit();
}

void Form::Adopt(Control& control) {
    controls_.push_back(&control);
    byName_.emplace(control.Name(), &control);
}

void Form::Disown(Control& control) {
    std::erase(controls_, &control);
    byName_.erase(control.Name());
    if (active_ == &control) active_ = nullptr;
}

Control* Form::Find(std::string_view name) const {
    const auto found = byName_.find(std::string(name));
    return found == byName_.end() ? nullptr : found->second;
}

bool Form::IsReachable() const {
    const Form* top = Forms::Current().TopModal();
    return IsVisible() && (top == nullptr || top == this);
}

void Form::Open(bool modal) {
    Forms& forms = Forms::Current();
    modal_ = modal;
    shown_ = true;
    if (open_) {
        forms.Raise(*this);
    } else {
        open_ = true;
        try {
            Load();
        } catch (...) { // half filled it is of no use; the next one starts afresh
            open_ = shown_ = false;
            forms.NoteClosed(*this);
            throw;
        }
        if (!open_) return;
        forms.NoteOpened(*this);
        if (active_ == nullptr) FocusTo(FirstToFill(*this));
    }
    ShownChanged.Emit();
    forms.Shown.Emit(*this);
    Activate();
}

void Form::Show() {
    Open(false);
}

void Form::ShowModal() {
    Open(true);
    if (IsVisible()) Forms::Current().TheDesktop().RunModal(*this);
}

void Form::Hide() {
    if (!shown_) return;
    shown_ = false;
    std::erase(Forms::Current().modal_, this);
    ShownChanged.Emit();
    Forms::Current().Hidden.Emit(*this);
}

bool Form::Close() {
    if (!open_ || closing_) return true;
    closing_ = true;
    const bool mayClose = QueryUnload();
    if (mayClose) {
        open_ = false;
        shown_ = false;
        std::erase(Forms::Current().modal_, this);
        ShownChanged.Emit();
        Forms::Current().NoteClosed(*this);
        Unload();
    }
    closing_ = false;
    return mayClose;
}

void Form::UserClose() {
    if (IsReachable()) Close();
}

void Form::FocusTo(Control* control) {
    if (control == active_) return;
    if (control && (!control->TakesFocus() || !control->IsUsable())) return;
    if (control) TurnPageTo(Arrangement, *control);
    Control* before = active_;
    active_ = control;
    if (before) before->FocusLost();
    if (active_ != control) return; // the handler moved the focus elsewhere
    FocusChanged.Emit();
    if (control) Control::Fire(control->OnGotFocus);
}

Control* Form::NextInTabOrder(bool backwards) const {
    const auto count = static_cast<int>(controls_.size());
    const auto place = std::find(controls_.begin(), controls_.end(), active_);
    int at = place == controls_.end() ? (backwards ? count : -1)
                                      : static_cast<int>(place - controls_.begin());
    for (int step = 0; step < count; ++step) {
        at = (at + (backwards ? count - 1 : 1)) % count;
        Control* candidate = controls_[static_cast<std::size_t>(at)];
        if (candidate->TakesFocus() && candidate->IsUsable() &&
            IsOnTurnedPage(Arrangement, *candidate))
            return candidate;
    }
    return nullptr;
}

void Form::UseButtons(CommandButton& accept, CommandButton& cancel,
                      std::function<void()> onAccept) {
    DefaultButton = &accept;
    accept.OnClick = std::move(onAccept);
    CancelButton = &cancel;
    cancel.OnClick = [this] { Close(); };
}

void Form::TabAlongArrangement() {
    std::vector<Control*> ordered;
    Gather(Arrangement, ordered);
    for (Control* control : controls_)
        if (std::ranges::find(ordered, control) == ordered.end()) ordered.push_back(control);
    controls_ = std::move(ordered);
}

bool Form::Refuse(Control& control, const std::string& text, const std::string& title) {
    TurnPageTo(Arrangement, control); // what is meant is seen behind the words
    Say(text, title);
    control.SetFocus();
    return false;
}

bool Form::Confirm(Control& control, const std::string& question, const std::string& title) {
    TurnPageTo(Arrangement, control);
    if (AskYesNo(question, title)) return true;
    control.SetFocus();
    return false;
}

bool Form::UseShortcut(const Key& key) {
    const std::string name = key.FullName();
    for (Control* control : controls_) {
        if (control->Kind() != ControlKind::MenuItem) continue;
        auto& item = static_cast<MenuItem&>(*control);
        if (item.Shortcut() != name || !item.IsReachable()) continue;
        item.UserClick();
        return true;
    }
    return false;
}

void Form::UserKey(Key key) {
    if (!IsReachable()) return;
    if (active_ && active_->UserKey(key)) return;
    if (UseShortcut(key)) return;
    if (key.name == "Enter" && DefaultButton)
        DefaultButton->UserClick();
    else if (key.name == "Escape" && CancelButton)
        CancelButton->UserClick();
    else if (key.name == "Tab")
        FocusTo(NextInTabOrder(key.shift));
    else if (key.name == "F1" && HelpContext != 0)
        TheDesktop().ShowHelp(HelpContext);
}

} // namespace vexora::ui
