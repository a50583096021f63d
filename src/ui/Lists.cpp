#include "ui/Lists.h"

#include <algorithm>

#include "ui/Desktop.h"
#include "ui/OneLine.h"
#include "ui/Utf8.h"

namespace vexora::ui {

namespace {

constexpr int Page = 10; // entries that PageUp and PageDown pass

char32_t Folded(char32_t letter) {
    return letter >= U'A' && letter <= U'Z' ? letter + (U'a' - U'A') : letter;
}

bool BeginsWith(const std::string& text, char32_t letter) {
    const std::u32string points = ToPoints(text);
    return !points.empty() && Folded(points.front()) == Folded(letter);
}

} // namespace

const std::string& ItemList::Item(int index) const {
    static const std::string none;
    return index >= 0 && index < Count() ? items_[static_cast<std::size_t>(index)] : none;
}

int ItemList::Find(std::string_view text) const {
    const auto found = std::find(items_.begin(), items_.end(), text);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ItemList::Add(std::string text) {
    Insert(Count(), std::move(text));
}

void ItemList::Insert(int index, std::string text) {
    index = std::clamp(index, 0, Count());
    items_.insert(items_.begin() + index, std::move(text));
    if (index_ >= index) ++index_;
    EntryInserted(index);
    Changed();
}

void ItemList::Remove(int index) {
    if (index < 0 || index >= Count()) return;
    items_.erase(items_.begin() + index);
    if (index_ == index) index_ = -1;
    if (index_ > index) --index_;
    EntryRemoved(index);
    Changed();
}

void ItemList::Clear() {
    while (Count() > 0) {
        items_.pop_back();
        EntryRemoved(Count());
    }
    index_ = -1;
    Changed();
}

void ItemList::Assign(std::vector<std::string> items) {
    Clear();
    for (std::string& item : items) {
        items_.push_back(std::move(item));
        EntryInserted(Count() - 1);
    }
    Changed();
}

void ItemList::Index(int index) {
    if (index < 0 || index >= Count()) index = -1;
    if (Alter(index_, index)) Fire(OnClick);
}

bool ItemList::Choose(std::string_view text) {
    const int index = Find(text);
    Index(index);
    return index >= 0;
}

void ItemList::UserChoose(int index) {
    if (!IsUsable() || index < 0 || index >= Count()) return;
    SetFocus();
    if (index_ != index)
        Index(index);
    else
        Fire(OnClick);
}

bool ItemList::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    if (!IsUsable()) return false;
    const int step = key.name == "Down" ? 1 : key.name == "Up" ? -1 : 0;
    if (step == 0) return false;
    const int next = std::clamp(index_ + step, 0, Count() - 1);
    if (next != index_ && Count() > 0) Index(next);
    return true;
}

std::string ComboBox::Text() const {
    return IsEditable() && Index() < 0 ? typed_ : Chosen();
}

void ComboBox::Text(std::string text) {
    if (!IsEditable()) {
        Choose(text);
        return;
    }
    const bool same = Text() == text;
    typed_ = std::move(text); // also of a chosen entry, which may leave the list
    if (!same || Index() < 0) SetIndexQuietly(Find(typed_));
    if (same) return;
    selectedFrom_.reset();
    Changed();
    Fire(OnChange);
}

void ComboBox::SelectFrom(std::size_t start) {
    if (!IsEditable() || start >= ToPoints(Text()).size()) return;
    selectedFrom_ = start;
    Changed();
}

void ComboBox::UserEdited(const std::string& typed) {
    const std::string text = OneLine(typed);
    const bool same = Text() == text;
    selectedFrom_.reset();
    if (same)
        Changed();
    else
        Text(text);
}

void ComboBox::Unfolded(bool open) {
    walked_ = false;
    Alter(unfolded_, open && IsEditable() && HasFocus() && Count() > 0);
}

void ComboBox::FocusLost() {
    Unfolded(false);
    Control::FocusLost();
}

void ComboBox::UserDropDown() {
    if (!IsUsable()) return;
    Unfolded(false); // all entries drop down in their place
    SetFocus();
    Fire(OnDropDown);
}

void ComboBox::UserChoose(int index) {
    if (index < 0 || index >= Count()) return;
    Unfolded(false);
    typed_ = Item(index);
    selectedFrom_.reset();
    ItemList::UserChoose(index);
}

/// To the ends of the list, by pages, and to the next entry with a letter.
bool ComboBox::Jump(const Key& key) {
    const int last = Count() - 1;
    int next = -1;
    if (key.name == "Home") next = 0;
    if (key.name == "End") next = last;
    if (key.name == "PageUp") next = std::max(Index() - Page, 0);
    if (key.name == "PageDown") next = std::min(Index() + Page, last);
    for (int step = 1; key.character > U' ' && next < 0 && step <= Count(); ++step) {
        const int at = (Index() + step) % Count();
        if (BeginsWith(Item(at), key.character)) next = at;
    }
    if (next < 0) return false;
    if (next != Index()) UserChoose(next);
    return true;
}

/// Escape leaves the open entries, Enter takes the one that was reached; otherwise both are keys of
/// the form.
bool ComboBox::Fold(const Key& key) {
    if (!unfolded_ || (key.name != "Escape" && key.name != "Enter")) return false;
    const bool isDone = key.name == "Escape" || walked_;
    Unfolded(false);
    return isDone;
}

bool ComboBox::UserKey(Key& key) {
    if (ItemList::UserKey(key)) {
        walked_ = unfolded_;
        return true;
    }
    return Fold(key) || Edit(key);
}

bool ComboBox::Edit(const Key& key) {
    const bool pastes = IsEditable() && key.FullName() == "Ctrl+V";
    if (!IsUsable() || (!pastes && (key.control || key.alt))) return false;
    if (!IsEditable()) return Jump(key);
    std::u32string points = ToPoints(Text());
    const bool selected = selectedFrom_ && *selectedFrom_ < points.size();
    if (selected && (key.name == "End" || key.name == "Right")) {
        selectedFrom_.reset(); // takes up what is proposed
        Changed();
        return true;
    }
    if (selected) points.resize(*selectedFrom_);
    if (key.name == "Backspace" || (selected && key.name == "Delete")) {
        if (!selected && !points.empty()) points.pop_back();
    } else if (pastes) {
        points += OneLine(ToPoints(TheDesktop().ClipboardText()));
    } else if (key.character >= U' ') {
        points.push_back(key.character);
    } else {
        return false;
    }
    UserEdited(FromPoints(points));
    return true;
}

bool ListBox::Selected(int index) const {
    if (mode_ == Mode::Single) return index >= 0 && index == Index();
    return index >= 0 && index < Count() && selected_[static_cast<std::size_t>(index)];
}

void ListBox::Selected(int index, bool on) {
    if (index < 0 || index >= Count() || Selected(index) == on) return;
    if (mode_ == Mode::Single) {
        Index(on ? index : -1);
        return;
    }
    selected_[static_cast<std::size_t>(index)] = on;
    Changed();
    Fire(OnClick);
}

int ListBox::SelectedCount() const {
    if (mode_ == Mode::Single) return Index() >= 0 ? 1 : 0;
    return static_cast<int>(std::count(selected_.begin(), selected_.end(), true));
}

void ListBox::UserSelect(int index, bool on) {
    if (!IsUsable()) return;
    SetFocus();
    Selected(index, on);
}

/// Where several entries can be on, the arrows go along them, beginning with the first; Space turns
/// the one that they have reached on or off.
bool ListBox::UserKey(Key& key) {
    if (mode_ != Mode::Single && Index() < 0 && Count() > 0) SetIndexQuietly(0);
    if (ItemList::UserKey(key)) return true;
    if (!IsUsable() || mode_ == Mode::Single || key.character != U' ' || Index() < 0) return false;
    UserSelect(Index(), !Selected(Index()));
    return true;
}

void ListBox::UserChoose(int index) {
    if (mode_ == Mode::Single)
        ItemList::UserChoose(index);
    else
        UserSelect(index, true);
}

} // namespace vexora::ui
