#include "host/ModelActor.h"

#include "ui/Utf8.h"

namespace vexora::host {

namespace {

void Enter(ui::Control& control) {
    control.SetFocus();
    if (!control.HasFocus()) throw ActorError(control.Name() + " did not take the focus");
}

} // namespace

void ModelActor::Click(ui::Control& control) {
    control.UserClick();
}

void ModelActor::DoubleClick(ui::Control& control) {
    if (control.TakesFocus()) control.SetFocus();
    control.UserDoubleClick();
}

void ModelActor::Set(ui::Control& control, const std::string& text) {
    ui::Form& form = control.Owner();
    Enter(control);
    if (control.Kind() == ui::ControlKind::ComboBox)
        static_cast<ui::ComboBox&>(control).UserEdited(text);
    else
        dynamic_cast<ui::TextBox&>(control).UserReplaceAll(text);
    if (form.IsOpen() && control.HasFocus()) form.FocusTo(nullptr);
}

void ModelActor::Type(ui::Control& control, const std::string& text) {
    ui::Form& form = control.Owner();
    Enter(control);
    for (const char32_t character : ui::ToPoints(text)) {
        if (character == U'\n')
            form.UserKey(ui::ParseKey("Enter"));
        else if (character == U'\t')
            form.UserKey(ui::ParseKey("Tab"));
        else
            form.UserKey(ui::CharacterKey(character));
    }
}

void ModelActor::PressKey(ui::Control& control, const ui::Key& key) {
    Enter(control);
    control.Owner().UserKey(key);
}

void ModelActor::Choose(ui::ItemList& list, int index) {
    list.UserChoose(index);
}

void ModelActor::Select(ui::ListBox& list, int index, bool on) {
    list.UserSelect(index, on);
}

void ModelActor::Check(ui::CheckBox& box, bool on) {
    if (box.Value() != on) box.UserClick();
}

void ModelActor::ClickNode(ui::TreeView& tree, ui::TreeNode& node) {
    node.EnsureVisible();
    tree.UserNodeClick(node);
}

void ModelActor::DoubleClickNode(ui::TreeView& tree, ui::TreeNode& node) {
    node.EnsureVisible();
    tree.UserNodeDoubleClick(node);
}

void ModelActor::ReachNode(ui::TreeView& tree, ui::TreeNode& node) {
    node.EnsureVisible();
    tree.UserNodeReached(node);
}

void ModelActor::TypeCell(ui::Grid& grid, int row, int column, const std::string& text) {
    grid.UserCell(row, column, text);
}

void ModelActor::PasteCells(ui::Grid& grid, int row, int column, const std::string& text) {
    ClipboardText(text);
    Enter(grid);
    grid.UserSelect({row, column, row, column});
    grid.UserPaste(text);
}

void ModelActor::SelectBlock(ui::Grid& grid, const ui::Grid::Block& block) {
    grid.SetFocus();
    grid.UserSelect(block);
}

void ModelActor::Drag(ui::Picture& picture, double x, double y, double x2, double y2) {
    picture.UserDrag(x, y, x2, y2);
}

void ModelActor::Hover(ui::Picture& picture, double x, double y) {
    picture.UserHover(x, y);
}

void ModelActor::Drop(ui::TreeView& tree, const std::string& path) {
    tree.UserDrop(path);
}

void ModelActor::CloseWindow(ui::Form& form) {
    form.UserClose();
}

} // namespace vexora::host
