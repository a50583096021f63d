#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Control.h"

namespace vexora::ui {

/// Entries by position from 0, one of them chosen; the common part of combo and list boxes. OnClick
/// follows every change of the chosen entry, by a person or by the code.
class ItemList : public Control {
public:
    const std::vector<std::string>& Items() const { return items_; }
    int Count() const { return static_cast<int>(items_.size()); }
    /// The entry at a position, empty outside the range.
    const std::string& Item(int index) const;
    /// Position of an exact text, -1 when it is not there.
    int Find(std::string_view text) const;

    void Add(std::string text);
    void Insert(int index, std::string text);
    void Remove(int index);
    /// Empties the list; no entry is chosen then.
    void Clear();
    void Assign(std::vector<std::string> items);

    /// The chosen entry, -1 for none.
    int Index() const { return index_; }
    void Index(int index);
    /// Text of the chosen entry, empty for none.
    const std::string& Chosen() const { return Item(index_); }
    /// The first entry says what is to be chosen and is no datum; it is drawn grey.
    bool FirstIsPrompt = false;
    /// Chooses the entry with this exact text, or none; false when it is not there.
    bool Choose(std::string_view text);

    std::string Display() const override { return Chosen(); }

    /// A person picks an entry: fires OnClick even if it was the chosen one.
    virtual void UserChoose(int index);
    bool UserKey(Key& key) override;

protected:
    using Control::Control;
    virtual void EntryRemoved(int) {}
    virtual void EntryInserted(int) {}
    void SetIndexQuietly(int index) { index_ = index; }

private:
    std::vector<std::string> items_;
    int index_ = -1;
};

/// A drop-down list; an editable one takes typed text as well, and then OnChange follows the
/// typing.
class ComboBox : public ItemList {
public:
    enum class Style { DropList, Editable };

    ComboBox(Form& form, std::string name, Style style = Style::DropList)
        : ItemList(form, ControlKind::ComboBox, std::move(name)), style_(style) {}
    bool IsEditable() const { return style_ == Style::Editable; }

    /// What the field shows: the typed text of an editable one, else the chosen entry.
    std::string Text() const;
    /// Of an editable one: sets the typed text, and the entry that has it, if any.
    void Text(std::string text);
    std::string Display() const override { return Text(); }

    /// Of an editable one: selects from this character (from 0) to the end, so that what a person
    /// types next replaces it; a proposed completion is shown so. Any change of the text undoes it.
    void SelectFrom(std::size_t start);
    /// Where that selection begins, nothing when there is none.
    std::optional<std::size_t> SelectedFrom() const { return selectedFrom_; }

    /// Of an editable one that has the focus: its entries stand open below what is being typed.
    /// Arrows go through them; Escape, an entry that is taken and leaving the field close them.
    void Unfolded(bool open);
    bool IsUnfolded() const { return unfolded_; }

    std::function<void()> OnChange;
    std::function<void()> OnDropDown;

    void UserDropDown();
    void UserChoose(int index) override;
    void UserEdited(const std::string& typed);
    bool UserKey(Key& key) override;

protected:
    void FocusLost() override;

private:
    bool Jump(const Key& key);
    bool Fold(const Key& key);
    bool Edit(const Key& key);

    Style style_;
    std::string typed_;
    std::optional<std::size_t> selectedFrom_;
    bool unfolded_ = false;
    bool walked_ = false; // an arrow has reached one of the open entries
};

/// A list in the open. Multi and Check let several entries be on at a time.
class ListBox : public ItemList {
public:
    enum class Mode { Single, Multi, Check };

    ListBox(Form& form, std::string name, Mode mode = Mode::Single)
        : ItemList(form, ControlKind::ListBox, std::move(name)), mode_(mode) {}
    ui::ListBox::Mode SelectionMode() const { return mode_; }
    /// The list is what its form is for: it takes the room there is, however few its entries.
    bool TakesRoom = false;
    bool Selected(int index) const;
    void Selected(int index, bool on);
    int SelectedCount() const;

    void UserSelect(int index, bool on);
    void UserChoose(int index) override;
    bool UserKey(Key& key) override;

protected:
    void EntryRemoved(int index) override { selected_.erase(selected_.begin() + index); }
    void EntryInserted(int index) override { selected_.insert(selected_.begin() + index, false); }

private:
    Mode mode_;
    std::vector<bool> selected_;
};

/// Pages reached by tabs; the layout says which group belongs to which page. OnClick follows every
/// change of page.
class TabStrip : public ItemList {
public:
    TabStrip(Form& form, std::string name)
        : ItemList(form, ControlKind::TabStrip, std::move(name)) {}
};

} // namespace vexora::ui
