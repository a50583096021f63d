#include "host/PlayFailure.h"
#include "host/Player.h"
#include "host/Reach.h"
#include "host/TreeText.h"

namespace vexora::host {

namespace {

std::string KindName(ui::ControlKind kind) {
    static const char* const names[] = {"Label",        "TextBox",  "CommandButton", "CheckBox",
                                        "OptionButton", "ComboBox", "ListBox",       "Frame",
                                        "Grid",         "TreeView", "Toolbar",       "ToolButton",
                                        "TabStrip",     "MenuItem", "Picture",       "RichText"};
    return names[static_cast<std::size_t>(kind)];
}

bool IsLocked(const ui::Control& control) {
    if (const auto* box = dynamic_cast<const ui::TextBox*>(&control)) return box->Locked();
    if (const auto* grid = dynamic_cast<const ui::Grid*>(&control)) return !grid->IsEditable();
    return false;
}

/// One line: name, kind, text and what is special about it.
std::string StateLine(const ui::Control& control) {
    std::string line = control.Name() + ' ' + KindName(control.Kind());
    line += ' ' + Quoted(ShownText(control));
    if (IsOn(control).value_or(false)) line += " on";
    if (IsLocked(control)) line += " locked";
    if (!IsEnabledThrough(control)) line += " disabled";
    if (!IsSeen(control)) line += " hidden";
    if (control.HasFocus()) line += " focused";
    const auto* combo = dynamic_cast<const ui::ComboBox*>(&control);
    if (combo && combo->IsUnfolded()) line += " open";
    return line;
}

void PrintEntries(std::ostream& out, const ui::ItemList& list) {
    const auto* box = dynamic_cast<const ui::ListBox*>(&list);
    for (int i = 0; i < list.Count(); ++i) {
        const bool on = box ? box->Selected(i) : list.Index() == i;
        out << (on ? "* " : "  ") << Quoted(list.Item(i)) << '\n';
    }
}

void PrintRows(std::ostream& out, const ui::Grid& grid) {
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Columns(); ++column)
            out << (column > 0 ? " | " : "  ") << grid.Cell(row, column);
        out << '\n';
    }
}

void PrintStrokes(std::ostream& out, const ui::Picture& picture) {
    for (const auto* strokes : {&picture.Strokes(), &picture.Overlay()}) {
        for (const auto& stroke : *strokes)
            if (!stroke.text.empty()) out << "  " << Quoted(stroke.text) << '\n';
    }
}

void PrintControl(std::ostream& out, const ui::Control& control) {
    out << StateLine(control) << '\n';
    if (const auto* list = dynamic_cast<const ui::ItemList*>(&control)) PrintEntries(out, *list);
    if (const auto* grid = dynamic_cast<const ui::Grid*>(&control)) PrintRows(out, *grid);
    if (const auto* tree = dynamic_cast<const ui::TreeView*>(&control)) out << TreeText(*tree);
    if (const auto* picture = dynamic_cast<const ui::Picture*>(&control)) {
        PrintStrokes(out, *picture);
    }
}

void PrintForm(std::ostream& out, const ui::Form& form) {
    out << form.Name() << ' ' << Quoted(form.Caption());
    if (form.IsModal()) out << " modal";
    if (!form.IsVisible()) out << " hidden";
    out << '\n';
}

void PrintFile(std::ostream& out, const std::string& path) {
    const auto text = FileText(path);
    if (!text) CannotDo("the file " + path, "none");
    for (const std::string& line : LinesOf(*text))
        out << line << '\n';
}

} // namespace

void Player::PrintState(const ScriptLine& line) {
    if (line.Is(1, "tree")) {
        out_ << TreeText(Tree());
    } else if (line.Is(1, "forms")) {
        for (const ui::Form* form : OpenForms().OpenForms())
            PrintForm(out_, *form);
    } else if (line.Is(1, "form")) {
        const ui::Form& form = NamedForm(line.Text(2));
        PrintForm(out_, form);
        for (const ui::Control* control : form.Controls())
            out_ << "  " << StateLine(*control) << '\n';
    } else if (line.Is(1, "file")) {
        PrintFile(out_, line.Text(2));
    } else {
        PrintControl(out_, Named(line.Text(1)));
    }
}

} // namespace vexora::host
