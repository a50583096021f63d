#include "grid/TableEditor.h"

#include <algorithm>
#include <utility>

#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

/// Other letters begin nothing in a table of numbers.
bool StartsNumber(char32_t character) {
    return (character >= U'0' && character <= U'9') || character == U'.' || character == U'+' ||
           character == U'-';
}

bool IsArrow(const std::string& name) {
    return name == "Up" || name == "Down" || name == "Left" || name == "Right";
}

} // namespace

TableEditor::TableEditor(const TableRules& rules, const TableControls& controls, TableMenu& menu)
    : rules_(rules), grid_(controls.grid), cell_(controls.cell), menu_(menu), history_(grid_),
      blocks_(rules, history_, controls.notice), findings_(rules, grid_, controls.findings) {
    grid_.Editor = &cell_;
    // Findings and notices name rows by them.
    grid_.ShowsRowNumbers = true;
    cell_.Visible(false);
    WireTable();
    WireMenu();
    follows_ = grid_.Owner().FocusChanged.Connect([this] {
        const ui::Control* active = grid_.Owner().ActiveControl();
        const bool isTable = active && active->Kind() == ui::ControlKind::Grid;
        if (isTable || active == &cell_) isInHand_ = active == &grid_ || active == &cell_;
    });
}

TableEditor::~TableEditor() {
    grid_.Owner().FocusChanged.Disconnect(follows_);
}

void TableEditor::WireTable() {
    grid_.OnKey = [this](ui::Key& key) { GridKeys(key); };
    grid_.OnDoubleClick = [this] {
        const ui::Grid::Block& block = grid_.Selection();
        BeginTyping(grid_.Cell(block.top, block.left));
    };
    grid_.OnEdit = [this](int row, int column, const std::string& text) {
        blocks_.Enter({column, column},
                      [&] { history_.Do([&](TableEdit& edit) { edit.Cell(row, column, text); }); });
    };
    grid_.OnPaste = [this](const std::string& text) { blocks_.Paste(text); };
    cell_.OnKey = [this](ui::Key& key) { CellKeys(key); };
    cell_.OnLostFocus = [this] { EndTyping(); };
    history_.OnChange = [this] {
        // Hints cost most and do not depend on all columns: not on uncertainties beside values.
        const bool valuesChanged = std::ranges::any_of(
            rules_.HintColumns(), [this](int column) { return history_.Concerns(column); });
        findings_.FindAgain(history_.FirstRow(), history_.LastRow(), valuesChanged);
        blocks_.TellAgain();
        if (OnChanged) OnChanged();
    };
}

void TableEditor::WireMenu() {
    Wire(menu_.mnuFileOpen, [this] { blocks_.OpenFile(); });
    Wire(menu_.mnuFileSave, [this] { blocks_.SaveFile(); });
    Wire(menu_.mnuUndo, [this] { blocks_.Undo(); });
    Wire(menu_.mnuRedo, [this] { blocks_.Redo(); });
    Wire(menu_.mnuCopy, [this] { blocks_.Copy(); });
    Wire(menu_.mnuCut, [this] { blocks_.Cut(); });
    Wire(menu_.mnuPaste, [this] { blocks_.Paste(); });
    Wire(menu_.mnuPasteShown, [this] { blocks_.PasteShown(); });
    Wire(menu_.mnuInsertRows, [this] { blocks_.InsertRows(); });
    Wire(menu_.mnuRemoveRows, [this] { blocks_.RemoveRows(); });
    Wire(menu_.mnuNextFinding, [this] { findings_.Step(1); });
    Wire(menu_.mnuLastFinding, [this] { findings_.Step(-1); });
}

void TableEditor::Wire(ui::MenuItem& item, std::function<void()> action) {
    item.OnClick = [this, action = std::move(action), ofOther = item.OnClick] {
        if (!isInHand_ && ofOther) return ofOther();
        EndTyping();
        action();
    };
}

void TableEditor::BeginTyping(const std::string& text) {
    const ui::Grid::Block& block = grid_.Selection();
    if (block.top < grid_.FixedRows() || !grid_.IsUsable()) return;
    row_ = block.top;
    column_ = block.left;
    grid_.Select({row_, column_, row_, column_});
    cell_.Text(text);
    cell_.Visible(true);
    cell_.SetFocus();
}

void TableEditor::EndTyping() {
    if (!cell_.Visible()) return;
    const std::string text = cell_.Text();
    // A click elsewhere has taken the focus already and must keep it.
    const bool hadFocus = cell_.HasFocus();
    cell_.Visible(false);
    if (hadFocus) grid_.SetFocus();
    grid_.OnEdit(row_, column_, text);
}

void TableEditor::GridKeys(ui::Key& key) {
    const ui::Grid::Block block = grid_.Selection();
    const std::string name = key.FullName();
    // The form may adapt a count of digits to what is typed; a change of sign or by ten is none of
    // these.
    const bool scales = name.starts_with("Num"); // keeps the digits
    if (scales)
        GridKey(history_, key);
    else
        blocks_.Enter({block.left, block.right}, [&] { GridKey(history_, key); });
    if (key.swallowed) return;
    if (name == "Enter" || name == "F2") {
        key.swallowed = true;
        BeginTyping(grid_.Cell(block.top, block.left));
    } else if (UseOtherKey(name)) {
        key.swallowed = true;
    } else if (key.name == "Tab" && !key.control) {
        key.swallowed = MoveAlong(block.top, block.left, key.shift);
    } else if (key.character != 0) {
        key.swallowed = true; // other characters begin no number
        if (StartsNumber(key.character) || rules_.TakesText(block.left)) {
            std::string typed;
            AppendCodePoint(typed, key.character);
            BeginTyping(typed);
        }
    }
}

/// Keys beside those that the menu shows, as people know them from elsewhere.
bool TableEditor::UseOtherKey(const std::string& name) {
    if (name == "Backspace")
        blocks_.Empty();
    else if (name == "Ctrl+Y")
        menu_.mnuRedo.UserClick();
    else if (name == "Shift+Insert")
        menu_.mnuPaste.UserClick();
    else if (name == "Ctrl+Insert")
        menu_.mnuCopy.UserClick();
    else if (name == "Shift+Delete")
        menu_.mnuCut.UserClick();
    else if (name == "Ctrl+Shift++" || name == "Ctrl+=") // where "+" stands on other keyboards
        menu_.mnuInsertRows.UserClick();
    else
        return false;
    return true;
}

/// What is being typed is one step: an undo takes it back as a whole, as it does in the table.
void TableEditor::CellKeys(ui::Key& key) {
    const std::string name = key.FullName();
    key.swallowed = true;
    if (name == "Escape") {
        cell_.Visible(false);
        grid_.SetFocus();
    } else if (name == "Ctrl+Z") {
        menu_.mnuUndo.UserClick();
    } else if (name == "Ctrl+Shift+Z" || name == "Ctrl+Y") {
        menu_.mnuRedo.UserClick();
    } else if (name == "Ctrl+V") {
        PasteInCell();
    } else if (name == "Tab" || name == "Shift+Tab" || name == "Enter" || name == "Shift+Enter" ||
               IsArrow(name) || name == "PageUp" || name == "PageDown") {
        LeaveCell(key);
    } else {
        key.swallowed = false;
    }
}

/// Enter, Tab and the arrows leave the cell for its neighbour, a page key for the next page.
void TableEditor::LeaveCell(const ui::Key& key) {
    int row = row_;
    int column = column_;
    EndTyping();
    if (key.name == "Tab") return static_cast<void>(MoveAlong(row, column, key.shift));
    if (key.name == "Up" || (key.name == "Enter" && key.shift))
        --row;
    else if (key.name == "Down" || key.name == "Enter")
        ++row;
    else if (key.name == "PageUp")
        row -= grid_.PageRows;
    else if (key.name == "PageDown")
        row += grid_.PageRows;
    else
        column += key.name == "Left" ? -1 : 1;
    MoveTo(row, column);
}

/// A block of several cells goes into the table, a single text to where the caret stands.
void TableEditor::PasteInCell() {
    std::string text = ui::TheDesktop().ClipboardText();
    // A spreadsheet ends even a single cell with a line end.
    while (text.ends_with('\n') || text.ends_with('\r'))
        text.pop_back();
    if (text.find_first_of("\t\r\n") == text.npos) return cell_.UserPaste(text);
    EndTyping();
    blocks_.Paste(text);
}

/// To the next cell that is typed into, from row to row; the other columns are passed over. False
/// behind the last cell or in front of the first, where the key leaves the table.
bool TableEditor::MoveAlong(int row, int column, bool backwards) {
    const int step = backwards ? -1 : 1;
    while (row >= grid_.FixedRows() && row < grid_.Rows()) {
        column += step;
        if (column < grid_.FixedColumns() || column >= grid_.Columns()) {
            row += step;
            column = backwards ? grid_.Columns() : grid_.FixedColumns() - 1;
        } else if (rules_.IsTypedInto(column)) {
            MoveTo(row, column);
            return true;
        }
    }
    return false;
}

} // namespace vexora
