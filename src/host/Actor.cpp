#include "host/Actor.h"

#include "ui/FileTarget.h"
#include "ui/Utf8.h"

namespace vexora::host {

void Actor::Enter(ui::Control& control) {
    control.SetFocus();
    if (!control.HasFocus()) throw ActorError(control.Name() + " did not take the focus");
}

void Actor::DoubleClick(ui::Control& control) {
    if (control.TakesFocus()) control.SetFocus();
    control.UserDoubleClick();
}

void Actor::Drop(ui::Form& form, const std::string& path) {
    if (auto* target = dynamic_cast<ui::FileTarget*>(&form)) target->TakeFile(path);
}

void Actor::Set(ui::Control& control, const std::string& text) {
    ui::Form& form = control.Owner();
    Replace(control, text);
    if (form.IsOpen() && control.HasFocus()) form.FocusTo(nullptr);
    Settle();
}

void Actor::Replace(ui::Control& control, const std::string& text) {
    Enter(control);
    if (control.Kind() == ui::ControlKind::ComboBox)
        static_cast<ui::ComboBox&>(control).UserEdited(text);
    else
        dynamic_cast<ui::TextBox&>(control).UserReplaceAll(text);
}

void Actor::Type(ui::Control& control, const std::string& text) {
    ui::Form& form = control.Owner();
    Enter(control);
    for (const char32_t character : ui::ToPoints(text))
        form.UserKey(ui::CharacterKey(character));
}

void Actor::PressKey(ui::Control& control, const ui::Key& key) {
    Enter(control);
    control.Owner().UserKey(key);
}

void Actor::Check(ui::CheckBox& box, bool on) {
    if (box.Value() != on) Click(box);
}

void Actor::PasteCells(ui::Grid& grid, int row, int column, const std::string& text) {
    ClipboardText(text);
    Enter(grid);
    grid.UserSelect({row, column, row, column});
    grid.UserPaste(text);
}

void Actor::SelectBlock(ui::Grid& grid, const ui::Grid::Block& block) {
    if (grid.ChoosesHeads() && block.bottom < grid.FixedRows())
        return grid.UserHead(block.top, block.left);
    grid.SetFocus();
    grid.UserSelect(block);
}

} // namespace vexora::host
