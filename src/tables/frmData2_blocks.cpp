#include "tables/frmData2.h"

#include <algorithm>

#include "entry/TableTurns.h"
#include "globals/PlotTable.h"
#include "grid/GridKey.h"
#include "grid/TablePaste.h"
#include "records/clsTwo.h"
#include "reference/Numbers.h"
#include "reference/SafeFile.h"
#include "reference/Text.h"
#include "tables/frmPasteView.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int plottedRows = static_cast<int>(PlotTable::MostPoints);

std::string Join(const std::vector<PasteNotice>& notices) {
    std::string text;
    for (const PasteNotice& notice : notices)
        text += (text.empty() ? "" : "\n") + notice.Line();
    return text;
}

} // namespace

/// Bare values, a column for each quantity and no more, go past the columns of digits and
/// statements that stand between those of the values; any other block goes in as it is.
PastedTable frmData2::BesideStatements(PastedTable block, int column) const {
    std::vector<std::size_t> places;
    for (int at = 0; at < columns_.Count(); ++at)
        if (columns_[at].kind == TableColumn::Kind::Value)
            places.push_back(static_cast<std::size_t>(at));
    const bool parted = !places.empty() && places.back() + 1 > places.size();
    if (!parted || column != 0 || block.Columns() != places.size()) return block;
    const auto& first = block.rows.front(); // not full: the corner of a table in two dimensions
    if (first.size() < places.size() || std::ranges::find(first, std::string()) != first.end())
        return block;
    for (std::vector<std::string>& cells : block.rows) {
        std::vector<std::string> spread(places.back() + 1);
        for (std::size_t i = 0; i < std::min(cells.size(), places.size()); ++i)
            spread[places[i]] = std::move(cells[i]);
        cells = std::move(spread);
    }
    block.notices.push_back(
        {0, "The values went past the columns between them; Ctrl+Z takes them back"});
    return block;
}

/// A block goes in from the selected cell on; the notices count rows as the table does.
void frmData2::Paste(const std::string& text) {
    if (text.empty()) return; // nothing, or no text, was copied
    const ui::Grid::Block cells = tblData.Selection();
    const int row = std::max(cells.top, tblData.FixedRows());
    const PastedTable block =
        BesideStatements(CleanTable(text, row - tblData.FixedRows() + 1), cells.left);
    if (!FillSelection(block)) PutIn(block, row, cells.left);
}

/// A single value goes into every cell of a larger selection.
bool frmData2::FillSelection(const PastedTable& block) {
    const ui::Grid::Block cells = tblData.Selection();
    const bool several = cells.top < cells.bottom || cells.left < cells.right;
    if (!several || block.rows.size() != 1 || block.rows.front().size() != 1) return false;
    const auto writer = [&](TableEdit& edit) {
        for (int row = std::max(cells.top, tblData.FixedRows()); row <= cells.bottom; ++row) {
            for (int column = cells.left; column <= cells.right; ++column)
                edit.Cell(row, column, block.rows.front().front());
        }
    };
    Enter(cells.left, cells.right, [&] { undo_.Do(writer); });
    ShowNotice(block.notices);
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

void frmData2::PutIn(const PastedTable& block, int row, int column) {
    if (!MakesRoomFor(block, row, column, LastRow() < tblData.FixedRows())) return;
    Enter(column, column + static_cast<int>(block.Columns()) - 1,
          [&] { PasteTable(undo_, block, row, column); });
    ShowNotice(block.notices);
}

/// What the last paste had to guess, and that not all rows find room in a plot.
void frmData2::ShowNotice(std::vector<PasteNotice> told) {
    told_ = std::move(told);
    const int rows = LastRow() - tblData.FixedRows() + 1;
    std::string text = Join(told_);
    if (rows > plottedRows)
        text += (text.empty() ? "" : "\n") + std::string("The table holds ") +
                std::to_string(rows) + " rows; a plot shows the first " +
                std::to_string(plottedRows);
    lblNotice.Caption(text);
}

/// A block that is too wide is refused, but for a table that is to be turned: one in two dimensions
/// or one of several parts side by side comes to an empty table, which grows for it.
bool frmData2::MakesRoomFor(const PastedTable& block, int row, int column, bool isEmpty) {
    const int columns = static_cast<int>(block.Columns());
    const int wide = column + columns;
    if (wide <= tblData.Columns()) return true;
    const int values = set_ ? set_->nVar + 1 : 2;
    const bool atStart = row == tblData.FixedRows() && column == 0;
    const bool turns = values == 3 || columns % values == 0;
    if (atStart && turns && isEmpty && block.rows.size() > 1) {
        tblData.Resize(tblData.Rows(), wide);
        return true;
    }
    ui::Say("The block has " + std::to_string(columns) + " columns, the table has room for " +
            std::to_string(tblData.Columns() - column) + "\nNothing was pasted");
    return false;
}

void frmData2::EmptyCells() {
    const ui::Grid::Block& cells = tblData.Selection();
    Enter(cells.left, cells.right, [this] { EmptySelection(undo_); });
}

/// Through the history; what has changed beside the selected rows comes into sight.
void frmData2::StepBack(bool can, const std::function<void()>& step) {
    ShowNotice({});
    if (!can) return;
    step();
    const ui::Grid::Block& cells = tblData.Selection();
    const bool anyRow = undo_.FirstRow() <= undo_.LastRow();
    if (!anyRow || (cells.bottom >= undo_.FirstRow() && cells.top <= undo_.LastRow())) return;
    const int row = std::min(undo_.FirstRow(), tblData.Rows() - 1);
    tblData.Show({row, cells.left, row, cells.left});
}

/// As many empty rows as are selected, in front of them.
void frmData2::InsertRows() {
    const ui::Grid::Block cells = tblData.Selection();
    const int row = std::max(cells.top, tblData.FixedRows());
    if (row > LastRow()) return; // an empty row stands there already
    const int count = cells.bottom - row + 1;
    undo_.Do([&](TableEdit& edit) { edit.InsertRows(row, count); });
    MoveNotices(row, count);
}

void frmData2::RemoveRows() {
    const ui::Grid::Block cells = tblData.Selection();
    const int row = std::max(cells.top, tblData.FixedRows());
    const int count = cells.bottom - row + 1;
    undo_.Do([&](TableEdit& edit) { edit.RemoveRows(row, count); });
    MoveTo(row, cells.left);
    MoveNotices(row, -count);
}

/// Notices keep to their rows; those of rows that go, go with them.
void frmData2::MoveNotices(int row, int count) {
    const int first = row - tblData.FixedRows() + 1; // as notices count
    std::erase_if(told_, [&](const PasteNotice& notice) {
        return count < 0 && notice.row >= first && notice.row < first - count;
    });
    for (PasteNotice& notice : told_)
        if (notice.row >= first) notice.row += count;
    ShowNotice(std::move(told_));
}

/// The table of a file takes the place of what stood here, in one step that can be undone.
void frmData2::OpenFile() {
    const auto path = ui::TheDesktop().Choose({false, {}, {}, "Text tables (*.txt *.csv *.dat)"});
    if (!path) return;
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(*path, error);
    if (!text) {
        ui::Say(error);
        return;
    }
    const PastedTable block = BesideStatements(CleanTable(ToUtf8(*text)), 0);
    const int first = tblData.FixedRows();
    if (!MakesRoomFor(block, first, 0, true)) return;
    const int replaced = LastRow() - first + 1;
    PasteTable(undo_, block, first, 0, true);
    MoveTo(first, 0);
    std::vector<PasteNotice> told = block.notices;
    if (replaced > 0)
        told.insert(told.begin(), {0, "The table of the file replaced " + std::to_string(replaced) +
                                          (replaced == 1 ? " row" : " rows") +
                                          "; Ctrl+Z brings back what stood here"});
    ShowNotice(std::move(told));
}

void frmData2::SaveFile() {
    const auto path =
        ui::TheDesktop().Choose({true, {}, "table.txt", "Text tables (*.txt *.csv *.dat)"});
    if (!path) return;
    ui::FileSystem& files = ui::TheDesktop().Files();
    if (files.Exists(*path) && !ui::AskYesNo(*path + " exists already\nReplace it?")) return;
    const std::string error = WriteSafely(files, *path, TableText(), false);
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
    if (!set_ || set_->nVar != 2) {
        ui::Say("Only a set with two variables has a table in two dimensions");
        return;
    }
    const auto corner = TurnTwoDimensional(undo_, columns_);
    if (!corner) {
        ui::Say("The table has no values below its top row and behind its left column");
        return;
    }
    // Mostly a table that was in rows already.
    if (IsNumeric(*corner))
        ShowNotice({{0, "The number in the corner, " + *corner +
                            ", was left out; Ctrl+Z brings the printed table back"}});
    else
        ShowNotice({});
}

void frmData2::Split() {
    if (!MoveBlockBelow(undo_, columns_))
        ui::Say("Select the block that is to stand below the table");
}

void frmData2::Clear() {
    undo_.Do([this](TableEdit& edit) { edit.Rows(tblData.FixedRows()); });
    ShowNotice({});
    tblData.SetFocus(); // what comes next is typed or pasted there
}

} // namespace vexora
