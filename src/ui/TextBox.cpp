#include "ui/TextBox.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ui/Desktop.h"
#include "ui/Form.h"
#include "ui/Html.h"
#include "ui/OneLine.h"
#include "ui/Utf8.h"

namespace vexora::ui {

void TextBox::Text(std::string text) {
    if (text == text_) return;
    const std::size_t end = ToPoints(text).size();
    TextAndCaret(std::move(text), end);
}

void TextBox::TextAndCaret(std::string text, std::size_t caret) {
    const bool changed = text != text_;
    const std::size_t place = std::min(caret, ToPoints(text).size());
    if (!changed && start_ == place && length_ == 0) return;
    text_ = std::move(text);
    start_ = place;
    length_ = 0;
    Changed();
    if (changed) Fire(OnChange);
}

void TextBox::Select(std::size_t start, std::size_t length) {
    const std::size_t size = ToPoints(text_).size();
    start_ = std::min(start, size);
    length_ = std::min(length, size - start_);
    Changed();
}

void TextBox::SelectAll() {
    Select(0, ToPoints(text_).size());
}

void TextBox::UserReplaceAll(const std::string& text) {
    if (!IsUsable() || locked_) return;
    const std::u32string points = Fitting(ToPoints(text));
    TextAndCaret(FromPoints(points), points.size());
}

void TextBox::UserEdited(std::string text, std::size_t caret) {
    if (!IsUsable() || locked_) return;
    const std::u32string points = ToPoints(text);
    if (Fitting(points) == points) return TextAndCaret(std::move(text), caret);
    // Only what has come in for the selection is made to fit, as if it had been pasted here.
    const std::u32string before = ToPoints(text_);
    const std::u32string_view head = std::u32string_view(before).substr(0, start_);
    const std::u32string_view tail = std::u32string_view(before).substr(Caret());
    const bool isPaste = points.size() >= head.size() + tail.size() && points.starts_with(head) &&
                         points.ends_with(tail);
    if (!isPaste) return UserReplaceAll(text);
    const std::size_t size = points.size() - head.size() - tail.size();
    ReplaceSelection(std::u32string_view(points).substr(start_, size));
}

void TextBox::UserPaste(const std::string& text) {
    if (IsUsable() && !locked_) ReplaceSelection(ToPoints(text));
}

std::u32string TextBox::Fitting(std::u32string_view piece) const {
    if (!IsMultiLine()) return OneLine(piece);
    std::u32string lines(piece); // every system has its own line ends
    for (std::size_t at = 0; (at = lines.find(U'\r', at)) != lines.npos; ++at)
        lines.replace(at, lines.substr(at, 2) == U"\r\n" ? 2 : 1, U"\n");
    return lines;
}

void TextBox::ReplaceSelection(std::u32string_view with) {
    std::u32string points = ToPoints(text_);
    const std::u32string text = Fitting(with);
    points.replace(start_, length_, text);
    TextAndCaret(FromPoints(points), start_ + text.size());
}

void TextBox::Erase(bool backwards) {
    if (length_ == 0) {
        if (backwards && start_ > 0) --start_;
        const std::size_t size = ToPoints(text_).size();
        if (start_ >= size) return;
        length_ = 1;
    }
    ReplaceSelection({});
}

bool TextBox::Move(const Key& key) {
    const std::size_t size = ToPoints(text_).size();
    if (key.name == "Left")
        Select(start_ == 0 || length_ > 0 ? start_ : start_ - 1, 0);
    else if (key.name == "Right")
        Select(length_ > 0 ? Caret() : start_ + 1, 0);
    else if (key.name == "Home")
        Select(0, 0);
    else if (key.name == "End")
        Select(size, 0);
    else if (key.FullName() == "Ctrl+A")
        SelectAll();
    else
        return false;
    return true;
}

bool TextBox::UseClipboard(const Key& key) {
    const std::string name = key.FullName();
    if (name == "Ctrl+V") {
        UserPaste(TheDesktop().ClipboardText());
        return true;
    }
    // Taking typing back is the business of the widget; it never means what the form did before.
    if (name == "Ctrl+Z" || name == "Ctrl+Shift+Z" || name == "Ctrl+Y") return true;
    if (name != "Ctrl+C" && name != "Ctrl+X") return false;
    if (length_ == 0) return true;
    TheDesktop().ClipboardText(FromPoints(ToPoints(text_).substr(start_, length_)));
    if (name == "Ctrl+X" && !locked_) ReplaceSelection({});
    return true;
}

bool TextBox::Edit(const Key& key) {
    const bool newLine = key.name == "Enter" && IsMultiLine();
    if (key.name == "Backspace") {
        if (length_ > 0 || start_ > 0) Erase(true);
    } else if (key.name == "Delete") {
        Erase(false);
    } else if (key.character >= U' ' || newLine) {
        const char32_t character = newLine ? U'\n' : key.character;
        ReplaceSelection(std::u32string_view(&character, 1));
    } else {
        return false;
    }
    return true;
}

bool TextBox::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    if (!IsUsable()) return false;
    if (Move(key) || UseClipboard(key)) return true;
    return !locked_ && !key.control && !key.alt && Edit(key);
}

std::string RichText::Display() const {
    return TextOfHtml(html_);
}

} // namespace vexora::ui
