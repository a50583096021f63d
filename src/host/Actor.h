#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora::host {

/// What a person does at the workbench. As it stands here it is done directly on the models, for a
/// front with no screen, and the clipboard is its own; a front with windows does it by real mouse
/// and key events. The player of scripts has tested before each call that a person could do it (the
/// control is usable, its form reachable, the entry there); an actor that still cannot throws
/// ActorError.
class Actor {
public:
    virtual ~Actor() = default;

    /// A program has been made, nothing of it is open yet: a front with windows listens from here
    /// on.
    virtual void Attach(ui::Forms&) {}
    /// The program is about to go.
    virtual void Detach(ui::Forms&) {}
    /// Whether an exception may pass through the event handling of the front; it is how a script
    /// that ends below a modal form leaves the handlers that are still waiting.
    virtual bool LetsExceptionsThrough() const { return true; }

    virtual void Click(ui::Control& control) { control.UserClick(); }
    virtual void DoubleClick(ui::Control& control);
    /// Enters the control, replaces its content at once, leaves it.
    void Set(ui::Control& control, const std::string& text);
    /// Enters the control and types; characters go where the focus is when they are typed.
    virtual void Type(ui::Control& control, const std::string& text);
    virtual void PressKey(ui::Control& control, const ui::Key& key);
    /// Opens the list of a combo box, which may fill it only now; Choose follows.
    virtual void DropDown(ui::ComboBox& combo) { combo.UserDropDown(); }
    /// Picks an entry of a combo box that has been dropped down, of a list box or a tab strip.
    virtual void Choose(ui::ItemList& list, int index) { list.UserChoose(index); }
    virtual void Select(ui::ListBox& list, int index, bool on) { list.UserSelect(index, on); }
    void Check(ui::CheckBox& box, bool on);
    /// The node is one whose parents are open; ReachNode gets to it by the keyboard.
    virtual void ClickNode(ui::TreeView& tree, ui::TreeNode& node) { tree.UserNodeClick(node); }
    virtual void DoubleClickNode(ui::TreeView& tree, ui::TreeNode& node) {
        tree.UserNodeDoubleClick(node);
    }
    virtual void ReachNode(ui::TreeView& tree, ui::TreeNode& node) { tree.UserNodeReached(node); }
    virtual void TypeCell(ui::Grid& grid, int row, int column, const std::string& text) {
        grid.UserCell(row, column, text);
    }
    /// Puts the text on the clipboard and pastes it at the cell.
    virtual void PasteCells(ui::Grid& grid, int row, int column, const std::string& text);
    virtual void SelectBlock(ui::Grid& grid, const ui::Grid::Block& block);
    virtual void Drag(ui::Picture& picture, double x, double y, double x2, double y2) {
        picture.UserDrag(x, y, x2, y2);
    }
    virtual void Hover(ui::Picture& picture, double x, double y) { picture.UserHover(x, y); }
    virtual void Drop(ui::TreeView& tree, const std::string& path) { tree.UserDrop(path); }
    /// Drops a file on the window of a form that takes files.
    virtual void Drop(ui::Form& form, const std::string& path);
    virtual void CloseWindow(ui::Form& form) { form.UserClose(); }

    /// Shows a question whose answer is already known, and gives that answer as a person would.
    virtual void Answer(const ui::Message&, ui::Answer) {}
    virtual void Answer(const ui::Input&, const std::optional<std::string>&) {}
    virtual void Answer(const ui::FileChoice&, const std::optional<std::string>&) {}

    virtual std::string ClipboardText() { return clipboard_; }
    virtual void ClipboardText(const std::string& text) { clipboard_ = text; }
    virtual void Hourglass(bool) {}
    /// Saves a picture of the active window; false where there is no screen.
    virtual bool Shot(const std::string&) { return false; }
    /// A picture as the bytes of a PNG file; nothing where there is no screen.
    virtual std::optional<std::string> PngOf(const ui::Picture&) { return {}; }
    /// Lets everything settle that the last action set going.
    virtual void Settle() {}

protected:
    /// Brings the focus there, or throws.
    static void Enter(ui::Control& control);
    /// Puts a text in the place of all that stands in a control that has been entered.
    virtual void Replace(ui::Control& control, const std::string& text);

private:
    std::string clipboard_;
};

/// An action that the front could not carry out.
class ActorError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace vexora::host
