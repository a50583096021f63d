#include "tables/frmData2.h"

#include <algorithm>

#include "grid/GridKey.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

bool StartsNumber(char32_t character) {
    return (character >= U'0' && character <= U'9') || character == U'.' || character == U'+' ||
           character == U'-';
}

bool IsArrow(const std::string& name) {
    return name == "Up" || name == "Down" || name == "Left" || name == "Right";
}

} // namespace

void frmData2::ToEditMode(const std::string& text) {
    const ui::Grid::Block& block = tblData.Selection();
    if (block.top < tblData.FixedRows() || !tblData.IsUsable()) return;
    editRow_ = block.top;
    editColumn_ = block.left;
    tblData.Select({editRow_, editColumn_, editRow_, editColumn_});
    txtCell.Text(text);
    txtCell.Visible(true);
    txtCell.SetFocus();
}

void frmData2::ToStandardMode() {
    if (!txtCell.Visible()) return;
    const std::string text = txtCell.Text();
    const bool hadFocus = txtCell.HasFocus();
    txtCell.Visible(false);
    if (hadFocus) tblData.SetFocus();
    tblData.OnEdit(editRow_, editColumn_, text);
}

void frmData2::GridKeys(ui::Key& key) {
    const ui::Grid::Block block = tblData.Selection();
    const std::string name = key.FullName();
    const bool scales = name.starts_with("Num"); // keeps the digits
    if (scales)
        GridKey(undo_, key);
    else
        Enter(block.left, block.right, [&] { GridKey(undo_, key); });
    if (key.swallowed) return;
    if (name == "Enter" || name == "F2") {
        key.swallowed = true;
        ToEditMode(tblData.Cell(block.top, block.left));
    } else if (name == "Backspace") {
        key.swallowed = true;
        EmptyCells();
    } else if (name == "Ctrl+Y") {
        key.swallowed = true;
        mnuRedo.UserClick();
    } else if (name == "Shift+Insert" || name == "Ctrl+Insert" || name == "Shift+Delete") {
        key.swallowed = true;
        (name == "Shift+Insert" ? mnuPaste : name == "Ctrl+Insert" ? mnuCopy : mnuCut).UserClick();
    } else if (name == "Ctrl+Shift++" || name == "Ctrl+=") { // where "+" stands on other keyboards
        key.swallowed = true;
        mnuInsertRows.UserClick();
    } else if (key.name == "Tab" && !key.control) {
        key.swallowed = MoveAlong(block.top, block.left, key.shift);
    } else if (key.character != 0) {
        key.swallowed = true; // other characters begin no number
        if (StartsNumber(key.character)) {
            std::string typed;
            AppendCodePoint(typed, key.character);
            ToEditMode(typed);
        }
    }
}

/// What is being typed is one step: an undo takes it back as a whole, as it does in the table.
void frmData2::CellKeys(ui::Key& key) {
    const std::string name = key.FullName();
    key.swallowed = true;
    if (name == "Escape") {
        txtCell.Visible(false);
        tblData.SetFocus();
    } else if (name == "Ctrl+Z") {
        mnuUndo.UserClick();
    } else if (name == "Ctrl+Shift+Z" || name == "Ctrl+Y") {
        mnuRedo.UserClick();
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
void frmData2::LeaveCell(const ui::Key& key) {
    const int row = editRow_;
    const int column = editColumn_;
    ToStandardMode();
    if (key.name == "Tab") return static_cast<void>(MoveAlong(row, column, key.shift));
    const bool up = key.name == "Up" || (key.name == "Enter" && key.shift);
    const bool down = key.name == "Down" || (key.name == "Enter" && !key.shift);
    const int page = key.name == "PageUp"     ? -tblData.PageRows
                     : key.name == "PageDown" ? tblData.PageRows
                                              : 0;
    MoveTo(row + page +
               (up     ? -1
                : down ? 1
                       : 0),
           column + (key.name == "Left"    ? -1
                     : key.name == "Right" ? 1
                                           : 0));
}

/// A block of several cells goes into the table, a single text to where the caret stands.
void frmData2::PasteInCell() {
    std::string text = ui::TheDesktop().ClipboardText();
    while (text.ends_with('\n') || text.ends_with('\r'))
        text.pop_back();
    if (text.find_first_of("\t\r\n") == text.npos) return txtCell.UserPaste(text);
    ToStandardMode();
    Paste(text);
}

/// To the next cell that is typed into, from row to row; the figures of the evaluation are passed
/// over. False behind the last cell or in front of the first, where the key leaves the table.
bool frmData2::MoveAlong(int row, int column, bool backwards) {
    const int last = std::max(columns_.Find(TableColumn::Kind::KVO) - 1, 0);
    column += backwards ? -1 : 1;
    if (column > last) {
        column = 0;
        ++row;
    } else if (column < 0) {
        column = last;
        --row;
    }
    if (row < tblData.FixedRows() || row >= tblData.Rows()) return false;
    MoveTo(row, column);
    return true;
}

void frmData2::MoveTo(int row, int column) {
    row = std::clamp(row, tblData.FixedRows(), std::max(tblData.Rows() - 1, tblData.FixedRows()));
    column = std::clamp(column, 0, std::max(tblData.Columns() - 1, 0));
    tblData.Select({row, column, row, column});
}

/// Counts of digits that were those of the text follow a text that is entered anew; those that a
/// person has stated otherwise, or enters along with it, stay.
void frmData2::Enter(int firstColumn, int lastColumn, const std::function<void()>& enters) {
    entered_ = {firstColumn, lastColumn};
    enters();
    entered_.reset();
}

void frmData2::FollowCell(TableEdit& edit, int row, int column, const std::string& before) {
    using Kind = TableColumn::Kind;
    // A failed evaluation was that of the old values.
    const int figure = columns_.Find(Kind::KVO);
    if (column != figure && tblData.Cell(row, figure) == "Error") edit.Cell(row, figure, {});
    if (!entered_ || column >= columns_.Count() || columns_[column].kind != Kind::Value) return;
    const int digits = columns_.Find(Kind::Digits, columns_[column].item);
    if (digits < 0 || (digits >= entered_->first && digits <= entered_->second)) return;
    const auto countOf = [](const std::string& text) {
        const int count = SignificantDigits(NormalizeNumber(text));
        return count > 0 ? std::to_string(count) : std::string();
    };
    if (tblData.Cell(row, digits) == countOf(before))
        edit.Cell(row, digits, before.empty() ? std::string() : countOf(tblData.Cell(row, column)));
}

} // namespace vexora
