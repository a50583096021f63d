#include "grid/TableBlocks.h"

#include <algorithm>
#include <utility>

#include "grid/GridKey.h"
#include "reference/SafeFile.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr const char* TextTables = "Text tables (*.txt *.csv *.dat)";

/// Columns up to the last one with a value.
int FilledColumns(const ui::Grid& grid) {
    int columns = grid.FixedColumns();
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
        for (int column = columns; column < grid.Columns(); ++column)
            if (!grid.Cell(row, column).empty()) columns = column + 1;
    return columns;
}

} // namespace

TableBlocks::TableBlocks(const TableRules& rules, TableUndo& history, ui::Label& notice)
    : rules_(rules), history_(history), grid_(history.Table()), notice_(notice) {
    history_.OnCell = [this](TableEdit& edit, int row, int column, const std::string& before) {
        rules_.Follow(edit, row, column, before, entered_);
    };
}

/// The columns are known while the step is made only: an undo is nobody's typing.
void TableBlocks::Enter(EnteredColumns columns, const std::function<void()>& enters) {
    entered_ = columns;
    enters();
    entered_ = {};
}

void TableBlocks::Copy() const {
    ui::TheDesktop().ClipboardText(grid_.SelectionText());
}

void TableBlocks::Cut() {
    Copy();
    Empty();
}

/// Bare values, a column for each quantity and no more, go past the columns of digits and
/// statements that stand between those of the values; any other block goes in as it is.
PastedTable TableBlocks::BesideStatements(PastedTable block, int column) const {
    const std::vector<int> places = rules_.ValueColumns();
    // Without columns between the values there is nothing to go past.
    const bool parted = !places.empty() && places.back() >= static_cast<int>(places.size());
    if (!parted || column != grid_.FixedColumns() || block.Columns() != places.size()) return block;
    const auto& first = block.rows.front(); // not full: the corner of a table in two dimensions
    if (first.size() < places.size() || std::ranges::find(first, std::string()) != first.end())
        return block;
    for (std::vector<std::string>& cells : block.rows) {
        std::vector<std::string> spread(static_cast<std::size_t>(places.back()) + 1);
        for (std::size_t i = 0; i < std::min(cells.size(), places.size()); ++i)
            spread[static_cast<std::size_t>(places[i])] = std::move(cells[i]);
        cells = std::move(spread);
    }
    block.notices.push_back(
        {0, "The values went past the columns between them; Ctrl+Z takes them back"});
    return block;
}

void TableBlocks::Paste() {
    Paste(ui::TheDesktop().ClipboardText());
}

/// The notices count rows as the table does.
void TableBlocks::Paste(const std::string& text) {
    if (text.empty()) return; // nothing, or no text, was copied
    const ui::Grid::Block cells = grid_.Selection();
    const int row = std::max(cells.top, grid_.FixedRows());
    const int column = std::max(cells.left, grid_.FixedColumns());
    const PastedTable block =
        BesideStatements(CleanTable(text, row - grid_.FixedRows() + 1, rules_.Parting()), column);
    if (!FillSelection(block)) PutIn(block, row, column);
}

void TableBlocks::PasteShown() {
    const std::string text = ui::TheDesktop().ClipboardText();
    if (rules_.IsWanted(CleanTable(text, 1, rules_.Parting()))) Paste(text);
}

/// A single value goes into every cell of a larger selection.
bool TableBlocks::FillSelection(const PastedTable& block) {
    const ui::Grid::Block cells = grid_.Selection();
    const bool several = cells.top < cells.bottom || cells.left < cells.right;
    if (!several || block.rows.size() != 1 || block.rows.front().size() != 1) return false;
    const auto writer = [&](TableEdit& edit) {
        for (int row = std::max(cells.top, grid_.FixedRows()); row <= cells.bottom; ++row) {
            for (int column = std::max(cells.left, grid_.FixedColumns()); column <= cells.right;
                 ++column)
                edit.Cell(row, column, block.rows.front().front());
        }
    };
    Enter({cells.left, cells.right}, [&] { history_.Do(writer); });
    Tell(block.notices);
    return true;
}

void TableBlocks::PutIn(const PastedTable& block, int row, int column) {
    if (IsRefused(block, row, column, history_.LastFilledRow() < grid_.FixedRows())) return;
    BlockToPut put{block, column};
    if (OnPut && !OnPut(put)) return;
    Enter({put.column, put.column + static_cast<int>(put.block.Columns()) - 1}, [&] {
        PasteTable(history_, put.block, row, put.column, {.widens = true, .ahead = put.ahead});
    });
    Tell(put.block.notices);
}

/// A block that is too wide is refused, but for a table that is to be turned: one in two dimensions
/// or one of several parts side by side comes to an empty table, which grows for it.
bool TableBlocks::IsRefused(const PastedTable& block, int row, int column, bool isEmpty) const {
    const int columns = static_cast<int>(block.Columns());
    if (column + columns <= grid_.Columns() || rules_.GrowsEverywhere()) return false;
    // Anywhere else a block that is too wide is a slip of the selection.
    const bool atStart = row == grid_.FixedRows() && column == grid_.FixedColumns();
    if (atStart && isEmpty && block.rows.size() > 1 && rules_.MayGrowFor(columns)) return false;
    ui::Say("The block has " + std::to_string(columns) + " columns, the table has room for " +
            std::to_string(grid_.Columns() - column) + "\nNothing was pasted");
    return true;
}

void TableBlocks::Empty() {
    const ui::Grid::Block& cells = grid_.Selection();
    Enter({cells.left, cells.right}, [this] { EmptySelection(history_); });
}

void TableBlocks::InsertRows() {
    const ui::Grid::Block cells = grid_.Selection();
    const int row = std::max(cells.top, grid_.FixedRows());
    if (row > history_.LastFilledRow()) return; // an empty row stands there already
    const int count = cells.bottom - row + 1;
    if (count <= 0) return; // heads are selected
    history_.Do([&](TableEdit& edit) { edit.InsertRows(row, count); });
    MoveNotices(row, count);
}

void TableBlocks::RemoveRows() {
    const ui::Grid::Block cells = grid_.Selection();
    const int row = std::max(cells.top, grid_.FixedRows());
    const int count = cells.bottom - row + 1;
    if (count <= 0) return;
    history_.Do([&](TableEdit& edit) { edit.RemoveRows(row, count); });
    // The rows that were selected are gone.
    SelectCell(grid_, row, cells.left);
    MoveNotices(row, -count);
}

void TableBlocks::Clear() {
    history_.Do([this](TableEdit& edit) { edit.Rows(grid_.FixedRows()); });
    Tell({});
    grid_.SetFocus(); // what comes next is typed or pasted there
}

void TableBlocks::Undo() {
    Step(history_.CanUndo(), &TableUndo::Undo);
}

void TableBlocks::Redo() {
    Step(history_.CanRedo(), &TableUndo::Redo);
}

/// Notices belong to the state that has gone.
void TableBlocks::Step(bool can, void (TableUndo::*step)()) {
    Tell({});
    if (!can) return;
    (history_.*step)();
    const int first = history_.FirstRow();
    const int last = history_.LastRow();
    const ui::Grid::Block& cells = grid_.Selection();
    if (first > last || (cells.bottom >= first && cells.top <= last)) return;
    const int row = std::min(first, grid_.Rows() - 1);
    grid_.Show({row, cells.left, row, cells.left});
}

/// In one step that can be undone.
void TableBlocks::OpenFile() {
    const auto path = ui::TheDesktop().Choose({false, {}, {}, TextTables});
    if (!path) return;
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(*path, error);
    if (!text) {
        ui::Say(error);
        return;
    }
    const int left = grid_.FixedColumns();
    const PastedTable block =
        BesideStatements(CleanTable(ToUtf8(*text), 1, rules_.Parting()), left);
    const int first = grid_.FixedRows();
    if (IsRefused(block, first, left, true)) return;
    BlockToPut put{block, left};
    if (OnPut && !OnPut(put)) return;
    const int replaced = history_.LastFilledRow() - first + 1;
    PasteTable(history_, put.block, first, put.column,
               {.replaces = true, .widens = true, .ahead = put.ahead});
    SelectCell(grid_, first, left);
    std::vector<PasteNotice> told = put.block.notices;
    if (replaced > 0)
        told.insert(told.begin(), {0, "The table of the file replaced " + std::to_string(replaced) +
                                          (replaced == 1 ? " row" : " rows") +
                                          "; Ctrl+Z brings back what stood here"});
    Tell(std::move(told));
}

void TableBlocks::SaveFile() const {
    const auto path = ui::TheDesktop().Choose({true, {}, "table.txt", TextTables});
    if (!path) return;
    ui::FileSystem& files = ui::TheDesktop().Files();
    if (files.Exists(*path) && !ui::AskYesNo(*path + " exists already\nReplace it?")) return;
    const SaveOutcome outcome = WriteSafely(files, *path, Text(), false);
    if (const std::string told = outcome.Told("The file " + *path); !told.empty()) ui::Say(told);
}

std::string TableBlocks::Text() const {
    std::string text;
    const int last = history_.LastFilledRow();
    const int end = rules_.GrowsEverywhere() ? FilledColumns(grid_) : grid_.Columns();
    for (int row = grid_.FixedRows(); row <= last; ++row) {
        for (int column = grid_.FixedColumns(); column < end; ++column) {
            if (column > grid_.FixedColumns()) text += '\t';
            text += grid_.Cell(row, column);
        }
        text += '\n';
    }
    return text;
}

void TableBlocks::Tell(std::vector<PasteNotice> told) {
    told_ = std::move(told);
    TellAgain();
}

void TableBlocks::TellAgain() {
    std::string text;
    const auto add = [&](const std::string& line) {
        if (!line.empty()) text += (text.empty() ? "" : "\n") + line;
    };
    for (const PasteNotice& notice : told_)
        add(notice.Line());
    add(rules_.Remark(history_.LastFilledRow() - grid_.FixedRows() + 1));
    notice_.Caption(text);
}

/// Notices keep to their rows; those of rows that go, go with them.
void TableBlocks::MoveNotices(int row, int count) {
    const int first = row - grid_.FixedRows() + 1; // as notices count
    std::erase_if(told_, [&](const PasteNotice& notice) {
        return count < 0 && notice.row >= first && notice.row < first - count;
    });
    for (PasteNotice& notice : told_)
        if (notice.row >= first) notice.row += count;
    TellAgain();
}

} // namespace vexora
