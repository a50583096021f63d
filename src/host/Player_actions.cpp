#include <filesystem>

#include "host/PlayFailure.h"
#include "host/Player.h"
#include "host/Reach.h"
#include "reference/Numbers.h"
#include "ui/FileTarget.h"

namespace vexora::host {

namespace {

int Entry(const ui::ItemList& list, const ScriptLine& line, std::size_t word) {
    const int index = EntryIndex(list, line.Text(word), line.words[word].quoted);
    if (index >= 0) return index;
    CannotDo("entry " + Quoted(line.Text(word)) + " in " + list.Name(),
             EntriesText(list, "an empty list"));
}

/// A person can put text into it.
void NeedsTyping(const ui::Control& control) {
    if (control.Kind() == ui::ControlKind::TextBox) {
        if (!static_cast<const ui::TextBox&>(control).Locked()) return;
        CannotDo("a text that can be changed", control.Name() + " is locked");
    }
    if (control.Kind() == ui::ControlKind::ComboBox &&
        static_cast<const ui::ComboBox&>(control).IsEditable()) {
        return;
    }
    CannotDo("a field for text", control.Name() + " takes none");
}

void NeedsCell(const ui::Grid& grid, int row, int column, bool forTyping) {
    const std::string place =
        "cell " + std::to_string(row) + ' ' + std::to_string(column) + " of " + grid.Name();
    if (row >= grid.Rows() || column >= grid.Columns()) {
        CannotDo(place, std::to_string(grid.Rows()) + " rows and " +
                            std::to_string(grid.Columns()) + " columns");
    }
    if (!forTyping) return;
    if (!grid.IsEditable()) CannotDo(place, "the grid is locked");
    if (row < grid.FixedRows() || column < grid.FixedColumns()) CannotDo(place, "a fixed cell");
}

void NeedsPoint(const ui::Picture& picture, double x, double y) {
    if (x >= 0 && y >= 0 && x <= picture.Width() && y <= picture.Height()) return;
    CannotDo("a point of " + picture.Name(), "a width of " + NumberText(picture.Width()) +
                                                 " and a height of " +
                                                 NumberText(picture.Height()));
}

bool AnswersClicks(const ui::Control& control) {
    using Kind = ui::ControlKind;
    if (control.OnClick || control.TakesFocus()) return true;
    return control.Kind() == Kind::ToolButton ||
           (control.Kind() == Kind::MenuItem &&
            static_cast<const ui::MenuItem&>(control).Children().empty());
}

ui::TreeNode& WantedNode(const ui::TreeView& tree, const ScriptLine& line) {
    const auto nodes = NodesNamed(tree, line, 1);
    if (!nodes.empty()) return *nodes.front();
    const char* what = line.Is(1, "key") ? "a node with the key " : "the node ";
    CannotDo(what + Quoted(line.words.back().text), "none");
}

} // namespace

ui::Forms& Player::OpenForms() const {
    if (!program_) CannotDo("a workbench", "it has not been started");
    return program_->Forms();
}

ui::Form& Player::NamedForm(const std::string& name) const {
    ui::Form* form = OpenForms().Find(name);
    if (!form) CannotDo(name + " open", name + " is not open");
    return *form;
}

ui::Control& Player::Named(const std::string& word) const {
    const std::size_t dot = word.find('.');
    const ui::Form& form = NamedForm(word.substr(0, dot));
    ui::Control* control = form.Find(word.substr(dot + 1));
    if (!control) CannotDo(word, form.Name() + " has no such control");
    return *control;
}

template <class T>
T& Player::Reached(const std::string& word) const {
    ui::Control& control = Named(word);
    auto* wanted = dynamic_cast<T*>(&control);
    if (!wanted) CannotDo("a control for this command", word + " is of another kind");
    if (const std::string why = WhyNotUsable(control); !why.empty()) {
        CannotDo(word + " usable", why);
    }
    return *wanted;
}

ui::TreeView& Player::Tree() const {
    ui::Forms& forms = OpenForms();
    std::vector<ui::Form*> places = forms.OpenForms();
    if (ui::Form* front = forms.Front()) places.insert(places.begin(), front);
    for (const ui::Form* form : places) {
        for (ui::Control* control : form->Controls()) {
            if (control->Kind() == ui::ControlKind::TreeView)
                return static_cast<ui::TreeView&>(*control);
        }
    }
    CannotDo("a tree", "no open form has one");
}

ui::TreeView& Player::ReachedTree() const {
    ui::TreeView& tree = Tree();
    if (const std::string why = WhyNotUsable(tree); !why.empty()) CannotDo("the tree", why);
    return tree;
}

void Player::CloseWindow(ui::Form& form, const std::string& name) {
    if (const std::string why = WhyNotReachable(form); !why.empty())
        CannotDo(name + " in reach", why);
    actor_.CloseWindow(form);
}

void Player::Start(const ScriptLine& line) {
    if (program_ && (program_->MainForm() || modalDepth_ > 0)) {
        CannotDo("no workbench yet", "it is running");
    }
    DropProgram();
    program_ = make_(*this);
    Follow(program_->Forms());
    actor_.Attach(program_->Forms());
    const std::string document = line.Has(1) ? line.Text(1) : std::string();
    if (!document.empty()) reach_.AllowFolderOf(document);
    program_->Start(document);
}

void Player::Quit(const ScriptLine&) {
    OpenForms();
    ui::Form* main = program_->MainForm();
    if (!main) CannotDo("the main window", "it is not open");
    CloseWindow(*main, "the main window");
}

void Player::Click(const ScriptLine& line) {
    auto& control = Reached<ui::Control>(line.Text(1));
    if (!AnswersClicks(control)) CannotDo(line.Text(1) + " to answer clicks", "it does not");
    actor_.Click(control);
}

void Player::DoubleClick(const ScriptLine& line) {
    actor_.DoubleClick(Reached<ui::Control>(line.Text(1)));
}

void Player::Enter(const ScriptLine& line) {
    auto& control = Reached<ui::Control>(line.Text(1));
    NeedsTyping(control);
    if (line.Is(0, "set"))
        actor_.Set(control, line.Text(2));
    else
        actor_.Type(control, line.Text(2));
}

void Player::PressKey(const ScriptLine& line) {
    actor_.PressKey(Reached<ui::Control>(line.Text(1)), ui::ParseKey(line.Text(2)));
}

void Player::ChooseEntry(const ScriptLine& line) {
    auto& list = Reached<ui::ItemList>(line.Text(1));
    if (list.Kind() == ui::ControlKind::ComboBox) {
        actor_.DropDown(static_cast<ui::ComboBox&>(list));
    }
    actor_.Choose(list, Entry(list, line, 2));
}

void Player::SelectEntry(const ScriptLine& line) {
    auto& list = Reached<ui::ListBox>(line.Text(1));
    if (list.SelectionMode() == ui::ListBox::Mode::Single) {
        CannotDo("a list with several entries on", list.Name() + " takes one");
    }
    actor_.Select(list, Entry(list, line, 2), line.Is(3, "on"));
}

void Player::Check(const ScriptLine& line) {
    auto& box = Reached<ui::CheckBox>(line.Text(1));
    const bool on = line.Is(2, "on");
    if (box.Value() == on) return;
    if (!on && box.Kind() == ui::ControlKind::OptionButton) {
        CannotDo("an option turned off", "only another option turns it off");
    }
    actor_.Check(box, on);
}

void Player::Tab(const ScriptLine& line) {
    auto& tabs = Reached<ui::TabStrip>(line.Text(1));
    actor_.Choose(tabs, Entry(tabs, line, 2));
}

void Player::Node(const ScriptLine& line) {
    ui::TreeView& tree = ReachedTree();
    ui::TreeNode& node = WantedNode(tree, line);
    node.EnsureVisible();
    if (line.Is(0, "dblnode"))
        actor_.DoubleClickNode(tree, node);
    else if (line.Is(0, "keynode"))
        actor_.ReachNode(tree, node);
    else
        actor_.ClickNode(tree, node);
}

void Player::Cell(const ScriptLine& line) {
    auto& grid = Reached<ui::Grid>(line.Text(1));
    NeedsCell(grid, line.Int(2), line.Int(3), true);
    if (line.block)
        actor_.PasteCells(grid, line.Int(2), line.Int(3), line.BlockText());
    else
        actor_.TypeCell(grid, line.Int(2), line.Int(3), line.Text(4));
}

void Player::Block(const ScriptLine& line) {
    auto& grid = Reached<ui::Grid>(line.Text(1));
    const ui::Grid::Block block{line.Int(2), line.Int(3), line.Int(4), line.Int(5)};
    NeedsCell(grid, block.top, block.left, false);
    NeedsCell(grid, block.bottom, block.right, false);
    actor_.SelectBlock(grid, block);
}

void Player::Clipboard(const ScriptLine& line) {
    actor_.ClipboardText(line.BlockText());
}

void Player::Drag(const ScriptLine& line) {
    auto& picture = Reached<ui::Picture>(line.Text(1));
    const double x = Val(line.Text(2)), y = Val(line.Text(3));
    const double x2 = Val(line.Text(4)), y2 = Val(line.Text(5));
    NeedsPoint(picture, x, y);
    NeedsPoint(picture, x2, y2);
    actor_.Drag(picture, x, y, x2, y2);
}

void Player::Hover(const ScriptLine& line) {
    auto& picture = Reached<ui::Picture>(line.Text(1));
    NeedsPoint(picture, Val(line.Text(2)), Val(line.Text(3)));
    actor_.Hover(picture, Val(line.Text(2)), Val(line.Text(3)));
}

void Player::Drop(const ScriptLine& line) {
    reach_.AllowFolderOf(line.Text(1));
    ui::Form* front = program_ ? program_->Forms().Front() : nullptr;
    if (dynamic_cast<ui::FileTarget*>(front) != nullptr)
        actor_.Drop(*front, line.Text(1));
    else
        actor_.Drop(ReachedTree(), line.Text(1));
}

void Player::Close(const ScriptLine& line) {
    CloseWindow(NamedForm(line.Text(1)), line.Text(1));
}

void Player::StrayAnswer(const ScriptLine& line) {
    CannotDo("a question that waits for " + line.Text(0), "the workbench has asked nothing");
}

void Player::Shot(const ScriptLine& line) {
    if (options_.shots.empty()) return;
    const std::string path = (std::filesystem::path(options_.shots) / line.Text(1)).string();
    NeedsReach(reach_.WhyNot(path));
    actor_.Shot(path);
}

void Player::NeedsReach(const std::string& whyNot) {
    if (!whyNot.empty()) CannotDo("a file in reach of the script", whyNot);
}

void Player::CopyFile(const ScriptLine& line) {
    namespace fs = std::filesystem;
    NeedsReach(reach_.WhyNot(line.Text(2)));
    std::error_code error;
    const fs::path to(line.Text(2));
    if (to.has_parent_path()) fs::create_directories(to.parent_path(), error);
    fs::copy_file(line.Text(1), to, fs::copy_options::overwrite_existing, error);
    if (error) CannotDo("a copy of " + line.Text(1), error.message());
}

void Player::DeleteFile(const ScriptLine& line) {
    NeedsReach(reach_.WhyNotName(line.Text(1)));
    std::error_code error;
    std::filesystem::remove(line.Text(1), error);
    if (error) CannotDo("no file " + line.Text(1), error.message());
}

} // namespace vexora::host
