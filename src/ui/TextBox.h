#pragma once

#include <cstddef>

#include "ui/Control.h"

namespace vexora::ui {

/// A field for typed text, of one or many lines. OnChange follows every change of the text, by a
/// person or by the code. Caret and selection count code points from 0.
class TextBox : public Control {
public:
    enum class Lines { One, Many };

    TextBox(Form& form, std::string name, Lines lines = Lines::One)
        : Control(form, ControlKind::TextBox, std::move(name)), lines_(lines) {}

    const std::string& Text() const { return text_; }
    /// Puts the caret behind the text.
    void Text(std::string text);
    /// Changes text and caret together, as a handler does that corrects what is being typed.
    void TextAndCaret(std::string text, std::size_t caret);
    bool IsEmpty() const { return text_.empty(); }

    bool Locked() const { return locked_; }
    void Locked(bool value) { Alter(locked_, value); }
    bool IsMultiLine() const { return lines_ == Lines::Many; }

    std::size_t Caret() const { return start_ + length_; }
    std::size_t SelectionStart() const { return start_; }
    std::size_t SelectionLength() const { return length_; }
    void Select(std::size_t start, std::size_t length);
    void SelectAll();

    std::string Display() const override { return text_; }

    std::function<void()> OnChange;

    /// A person replaces the whole content at once, as a paste over everything does.
    void UserReplaceAll(const std::string& text);
    /// A person's widget has changed the text; the model follows it and may answer with a
    /// correction.
    void UserEdited(std::string text, std::size_t caret);
    /// A text from the clipboard goes in at the selection.
    void UserPaste(const std::string& text);
    bool UserKey(Key& key) override;

private:
    /// A field of one line takes one line, whoever brings it.
    std::u32string Fitting(std::u32string_view piece) const;
    void ReplaceSelection(std::u32string_view with);
    void Erase(bool backwards);
    bool Move(const Key& key);
    bool UseClipboard(const Key& key);
    bool Edit(const Key& key);

    std::string text_;
    std::size_t start_ = 0;
    std::size_t length_ = 0;
    Lines lines_;
    bool locked_ = false;
};

/// A formatted text that is only read: a page of help, an introduction. The text is a small subset
/// of HTML.
class RichText : public Control {
public:
    RichText(Form& form, std::string name)
        : Control(form, ControlKind::RichText, std::move(name)) {}
    const std::string& Html() const { return html_; }
    void Html(std::string html) { Alter(html_, std::move(html)); }
    /// The text without its marks.
    std::string Display() const override;

private:
    std::string html_;
};

} // namespace vexora::ui
