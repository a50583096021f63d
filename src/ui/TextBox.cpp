#include "ui/TextBox.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ui/Desktop.h"
#include "ui/Form.h"
#include "ui/Utf8.h"

namespace vexora::ui {

namespace {

/// Line ends of what goes into a field of one line become blanks.
std::u32string OneLine(std::u32string_view text) {
    std::u32string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n';
        if (!pair) line += text[i] == U'\r' || text[i] == U'\n' ? U' ' : text[i];
    }
    return line;
}

} // namespace

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
    const std::u32string points = ToPoints(text);
    TextAndCaret(IsMultiLine() ? text : FromPoints(OneLine(points)), points.size());
}

void TextBox::UserEdited(std::string text, std::size_t caret) {
    if (IsUsable() && !locked_) TextAndCaret(std::move(text), caret);
}

void TextBox::UserPaste(const std::string& text) {
    if (IsUsable() && !locked_) ReplaceSelection(ToPoints(text));
}

void TextBox::ReplaceSelection(std::u32string_view with) {
    std::u32string points = ToPoints(text_);
    const std::u32string text = IsMultiLine() ? std::u32string(with) : OneLine(with);
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
    static constexpr std::pair<std::string_view, char> entities[] = {
        {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&amp;", '&'}};
    std::string text;
    bool inTag = false;
    for (std::size_t i = 0; i < html_.size(); ++i) {
        char c = html_[i];
        if (c == '<') inTag = true;
        if (!inTag) {
            for (const auto& [entity, sign] : entities) {
                if (html_.compare(i, entity.size(), entity) != 0) continue;
                i += entity.size() - 1;
                c = sign;
                break;
            }
            text += c;
        } else if (c == '>') {
            inTag = false;
        }
    }
    return text;
}

} // namespace vexora::ui
