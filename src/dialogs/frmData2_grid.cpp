#include "dialogs/frmData2.h"

#include <algorithm>

#include "dialogs/TableTurns.h"
#include "dialogs/frmPasteView.h"
#include "globals/KVOGlobal.h"
#include "globals/PlotTable.h"
#include "grid/GridKey.h"
#include "grid/TablePaste.h"
#include "records/clsTwo.h"
#include "reference/Text.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int plottedRows = static_cast<int>(PlotTable::MostPoints);

bool StartsNumber(char32_t character) {
    return (character >= U'0' && character <= U'9') || character == U'.' || character == U'+' ||
           character == U'-';
}

bool IsArrow(const std::string& name) {
    return name == "Up" || name == "Down" || name == "Left" || name == "Right";
}

std::string Join(const std::vector<std::string>& notices) {
    std::string text;
    for (const std::string& notice : notices)
        text += (text.empty() ? "" : "\n") + notice;
    return text;
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
    GridKey(undo_, key);
    if (key.swallowed) return;
    const ui::Grid::Block& block = tblData.Selection();
    if (key.FullName() == "Enter" || key.FullName() == "F2") {
        key.swallowed = true;
        ToEditMode(tblData.Cell(block.top, block.left));
    } else if (key.name == "Escape") {
        key.swallowed = undo_.CanUndo(); // a whole table is not given up by a slip of the finger
    } else if (key.FullName() == "Backspace") {
        key.swallowed = true;
        EmptySelection(undo_);
    } else if (key.FullName() == "Ctrl+Y") {
        key.swallowed = true;
        mnuRedo.UserClick();
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

/// Enter, Tab and the arrows leave the cell for its neighbour, Escape leaves it as it was.
void frmData2::CellKeys(ui::Key& key) {
    const std::string name = key.FullName();
    if (name == "Escape") {
        key.swallowed = true;
        txtCell.Visible(false);
        tblData.SetFocus();
        return;
    }
    const bool along = name == "Tab" || name == "Shift+Tab";
    if (!along && name != "Enter" && name != "Shift+Enter" && !IsArrow(name)) return;
    key.swallowed = true;
    const int row = editRow_;
    const int column = editColumn_;
    ToStandardMode();
    if (along) return static_cast<void>(MoveAlong(row, column, key.shift));
    const bool up = name == "Up" || name == "Shift+Enter";
    const bool down = name == "Down" || name == "Enter";
    MoveTo(row + (up     ? -1
                  : down ? 1
                         : 0),
           column + (name == "Left"    ? -1
                     : name == "Right" ? 1
                                       : 0));
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

void frmData2::Paste(const std::string& text) {
    const ui::Grid::Block block = tblData.Selection();
    if (FillSelection(CleanTable(text))) return;
    PutIn(text, std::max(block.top, tblData.FixedRows()), block.left);
}

/// A single value goes into every cell of a larger selection.
bool frmData2::FillSelection(const PastedTable& block) {
    const ui::Grid::Block cells = tblData.Selection();
    const bool several = cells.top < cells.bottom || cells.left < cells.right;
    if (!several || block.rows.size() != 1 || block.rows.front().size() != 1) return false;
    undo_.Do([&](TableEdit& edit) {
        for (int row = std::max(cells.top, tblData.FixedRows()); row <= cells.bottom; ++row) {
            for (int column = cells.left; column <= cells.right; ++column)
                edit.Cell(row, column, block.rows.front().front());
        }
    });
    ShowNotice(Join(block.notices));
    return true;
}

/// The block is looked at before it goes in.
void frmData2::PasteShown() {
    const std::string text = ui::TheDesktop().ClipboardText();
    auto& view = ui::Forms::Current().Get<frmPasteView>("frmPasteView");
    view.Fill(CleanTable(text));
    view.ShowModal();
    const bool accepted = view.IsAccepted();
    view.Close();
    if (accepted) Paste(text);
}

bool frmData2::PutIn(const std::string& text, int row, int column) {
    const PastedTable block = CleanTable(text);
    if (!MakesRoomFor(text, block.Columns(), row, column)) return false;
    PasteTable(undo_, block, row, column);
    ShowNotice(Join(block.notices));
    return true;
}

/// What the last paste had to guess, and that not all rows find room in a plot.
void frmData2::ShowNotice(std::string told) {
    told_ = std::move(told);
    const int rows = LastRow() - tblData.FixedRows() + 1;
    std::string text = told_;
    if (rows > plottedRows)
        text += (text.empty() ? "" : "\n") + std::string("The table holds ") +
                std::to_string(rows) + " rows; a plot shows the first " +
                std::to_string(plottedRows);
    lblNotice.Caption(text);
}

/// A block that is too wide is refused, but for a table that is to be turned: one in two dimensions
/// or one of several parts side by side comes to an empty table, which grows for it.
bool frmData2::MakesRoomFor(const std::string& text, std::size_t columns, int row, int column) {
    const int wide = column + static_cast<int>(columns);
    if (wide <= tblData.Columns()) return true;
    const int values = set_ ? set_->nVar + 1 : 2;
    const bool atStart = row == tblData.FixedRows() && column == 0;
    const bool turns = values == 3 || static_cast<int>(columns) % values == 0;
    if (atStart && turns && LastRow() < tblData.FixedRows() && text.find('\n') != text.npos) {
        tblData.Resize(tblData.Rows(), wide);
        return true;
    }
    ui::Say("The block has " + std::to_string(columns) + " columns, the table has room for " +
            std::to_string(tblData.Columns() - column) + "\nNothing was pasted");
    return false;
}

void frmData2::OpenFile() {
    const auto path = ui::TheDesktop().Choose({false, {}, {}, "Text tables (*.txt)"});
    if (!path) return;
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(*path, error);
    if (!text) {
        ui::Say(error);
        return;
    }
    PutIn(ToUtf8(*text), tblData.FixedRows(), 0);
}

void frmData2::SaveFile() {
    const auto path = ui::TheDesktop().Choose({true, {}, "table.txt", "Text tables (*.txt)"});
    if (!path) return;
    ui::FileSystem& files = ui::TheDesktop().Files();
    std::string temporary;
    std::string error;
    if (auto file = files.CreateBeside(*path, temporary, error)) {
        error = file->Write(TableText());
        if (error.empty()) error = file->Flush();
        const std::string closing = file->Close();
        if (error.empty()) error = closing;
        if (error.empty()) error = files.Rename(temporary, *path);
        if (!error.empty()) files.Remove(temporary);
    }
    if (!error.empty()) ui::Say(error);
}

std::string frmData2::TableText() const {
    std::string text;
    for (int row = tblData.FixedRows(); row <= LastRow(); ++row) {
        for (int column = 0; column < tblData.Columns(); ++column)
            text += (column > 0 ? "\t" : "") + tblData.Cell(row, column);
        text += "\n";
    }
    return text;
}

/// The last row that holds something; the one in front of the first when there is none.
int frmData2::LastRow() const {
    int row = tblData.Rows() - 1;
    while (row >= tblData.FixedRows() && IsEmptyRow(tblData, columns_, row) &&
           tblData.Cell(row, columns_.Find(TableColumn::Kind::KVO)).empty())
        --row;
    return row;
}

void frmData2::Action2D() {
    if (!set_ || set_->nVar != 2)
        ui::Say("Only a set with two variables has a table in two dimensions");
    else if (TurnTwoDimensional(undo_, columns_))
        ShowNotice("");
    else
        ui::Say("The table has no values below its top row and behind its left column");
}

void frmData2::Split() {
    if (!MoveBlockBelow(undo_, columns_))
        ui::Say("Select the block that is to stand below the table");
}

void frmData2::Clear() {
    undo_.Do([this](TableEdit& edit) { edit.Rows(tblData.FixedRows()); });
    ShowNotice("");
    tblData.SetFocus(); // what comes next is typed or pasted there
}

} // namespace vexora
