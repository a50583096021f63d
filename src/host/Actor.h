#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora::host {

/// What a person does at the workbench, as a front carries it out: with no screen directly on the
/// models, with windows by real mouse and key events. The player of scripts has tested before each
/// call that a person could do it (the control is usable, its form reachable, the entry there); an
/// actor that still cannot throws ActorError.
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

    virtual void Click(ui::Control& control) = 0;
    virtual void DoubleClick(ui::Control& control) = 0;
    /// Enters the control, replaces its content at once, leaves it.
    virtual void Set(ui::Control& control, const std::string& text) = 0;
    /// Enters the control and types; characters go where the focus is when they are typed.
    virtual void Type(ui::Control& control, const std::string& text) = 0;
    virtual void PressKey(ui::Control& control, const ui::Key& key) = 0;
    /// Opens the list of a combo box, which may fill it only now; Choose follows.
    virtual void DropDown(ui::ComboBox& combo) { combo.UserDropDown(); }
    /// Picks an entry of a combo box that has been dropped down, of a list box or a tab strip.
    virtual void Choose(ui::ItemList& list, int index) = 0;
    virtual void Select(ui::ListBox& list, int index, bool on) = 0;
    virtual void Check(ui::CheckBox& box, bool on) = 0;
    virtual void ClickNode(ui::TreeView& tree, ui::TreeNode& node) = 0;
    virtual void DoubleClickNode(ui::TreeView& tree, ui::TreeNode& node) = 0;
    virtual void ReachNode(ui::TreeView& tree, ui::TreeNode& node) = 0;
    virtual void TypeCell(ui::Grid& grid, int row, int column, const std::string& text) = 0;
    /// Puts the text on the clipboard and pastes it at the cell.
    virtual void PasteCells(ui::Grid& grid, int row, int column, const std::string& text) = 0;
    virtual void SelectBlock(ui::Grid& grid, const ui::Grid::Block& block) = 0;
    virtual void Drag(ui::Picture& picture, double x, double y, double x2, double y2) = 0;
    virtual void Hover(ui::Picture& picture, double x, double y) = 0;
    virtual void Drop(ui::TreeView& tree, const std::string& path) = 0;
    virtual void CloseWindow(ui::Form& form) = 0;

    /// Shows a question whose answer is already known, and gives that answer as a person would.
    virtual void Answer(const ui::Message& message, ui::Answer answer) = 0;
    virtual void Answer(const ui::Input& input, const std::optional<std::string>& answer) = 0;
    virtual void Answer(const ui::FileChoice& choice, const std::optional<std::string>& answer) = 0;

    virtual std::string ClipboardText() = 0;
    virtual void ClipboardText(const std::string& text) = 0;
    virtual void Hourglass(bool on) = 0;
    /// Saves a picture of the active window; false where there is no screen.
    virtual bool Shot(const std::string& path) = 0;
    /// A picture as the bytes of a PNG file; nothing where there is no screen.
    virtual std::optional<std::string> PngOf(const ui::Picture&) { return {}; }
    /// Lets everything settle that the last action set going.
    virtual void Settle() = 0;
};

/// An action that the front could not carry out.
class ActorError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace vexora::host
