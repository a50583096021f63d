#include "ui/Grid.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

#include "ui/Desktop.h"
#include "ui/OneLine.h"

namespace vexora::ui {

Grid::Grid(Form& form, std::string name, int rows, int columns, int fixedRows, int fixedColumns)
    : Control(form, ControlKind::Grid, std::move(name)), columns_(columns), fixedRows_(fixedRows),
      fixedColumns_(fixedColumns) {
    Resize(rows, columns);
}

void Grid::Resize(int rows, int columns) {
    columns_ = std::max(columns, 0);
    cells_.resize(static_cast<std::size_t>(std::max(rows, 0)));
    for (auto& row : cells_)
        row.resize(static_cast<std::size_t>(columns_));
    Changed();
    TellChange(-1, -1);
}

void Grid::InsertRows(int row, int count) {
    if (row < 0 || row > Rows() || count <= 0) return;
    const std::vector<std::string> empty(static_cast<std::size_t>(columns_));
    cells_.insert(cells_.begin() + row, static_cast<std::size_t>(count), empty);
    Changed();
    TellChange(-1, -1);
}

void Grid::RemoveRows(int row, int count) {
    count = std::min(count, Rows() - row);
    if (row < 0 || count <= 0) return;
    cells_.erase(cells_.begin() + row, cells_.begin() + row + count);
    Changed();
    TellChange(-1, -1);
}

void Grid::TellChange(int row, int column) {
    if (batches_ == 0) return CellChanged.Emit(row, column);
    if (changesInBatch_++ == 0) changedInBatch_ = {row, column};
}

void Grid::EndBatch() {
    if (--batches_ > 0) return;
    const int changes = std::exchange(changesInBatch_, 0);
    if (changes == 1)
        CellChanged.Emit(changedInBatch_.first, changedInBatch_.second);
    else if (changes > 1)
        CellChanged.Emit(-1, -1);
}

void Grid::MarkRows(int firstRow, int lastRow, Marks marks) {
    const auto at = [this](int row) {
        return marks_.lower_bound({row, std::numeric_limits<int>::min()});
    };
    const auto first = at(firstRow);
    const auto end = lastRow < std::numeric_limits<int>::max() ? at(lastRow + 1) : marks_.end();
    if (std::equal(first, end, marks.begin(), marks.end())) return;
    marks_.erase(first, end);
    if (marks_.empty())
        marks_ = std::move(marks);
    else
        marks_.merge(marks);
    Changed();
}

const Grid::Mark* Grid::MarkOf(int row, int column) const {
    const auto found = marks_.find({row, column});
    return found == marks_.end() ? nullptr : &found->second;
}

bool Grid::IsInside(int row, int column) const {
    return row >= 0 && row < Rows() && column >= 0 && column < columns_;
}

const std::string& Grid::Cell(int row, int column) const {
    static const std::string none;
    if (!IsInside(row, column)) return none;
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void Grid::Cell(int row, int column, std::string text) {
    if (!IsInside(row, column) || Cell(row, column) == text) return;
    cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = std::move(text);
    TellChange(row, column);
}

void Grid::Select(Block block) {
    if (selection_ == block) return;
    selection_ = block;
    anchor_ = {block.top, block.left};
    cursor_ = {block.bottom, block.right};
    Changed();
}

void Grid::Show(Block block) {
    Select(block);
    ++timesShown_;
    Changed();
}

std::string Grid::SelectionText() const {
    std::string text;
    for (int row = selection_.top; row <= selection_.bottom; ++row) {
        if (row > selection_.top) text += '\n';
        for (int column = selection_.left; column <= selection_.right; ++column) {
            if (column > selection_.left) text += '\t';
            text += Cell(row, column);
        }
    }
    return text;
}

void Grid::UserCell(int row, int column, const std::string& typed) {
    const std::string text = OneLine(typed);
    if (!IsUsable() || !editable_ || !IsInside(row, column)) return;
    if (row < fixedRows_ || column < fixedColumns_) return;
    SetFocus();
    UserSelect({row, column, row, column});
    if (Cell(row, column) == text) return;
    if (OnEdit)
        OnEdit(row, column, text);
    else
        Cell(row, column, text);
}

void Grid::UserPaste(const std::string& text) {
    if (IsUsable() && editable_ && OnPaste) OnPaste(text);
}

bool Grid::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    if (!IsUsable()) return false;
    const std::string name = key.FullName();
    if (name == "Ctrl+V")
        UserPaste(TheDesktop().ClipboardText());
    else if (name == "Ctrl+C")
        TheDesktop().ClipboardText(SelectionText());
    else
        return Move(key);
    return true;
}

/// Where a key leads from a cell; the same place for a key that does not move.
std::pair<int, int> Grid::Step(const Key& key, std::pair<int, int> from) const {
    auto [row, column] = from;
    const std::string& name = key.name;
    const bool down = name == "Down" || name == "PageDown";
    const bool right = name == "Right" || name == "End";
    if (down || name == "Up" || name == "PageUp") {
        const int far = key.control ? Rows() : name.starts_with("Page") ? PageRows : 1;
        row += down ? far : -far;
    } else if (right || name == "Left" || name == "Home") {
        const bool edge = name == "Home" || name == "End";
        const int far = key.control || edge ? columns_ : 1;
        column += right ? far : -far;
        if (edge && key.control) row = right ? Rows() : 0;
    }
    // Long ways end at the first row; one step more leads to the heads.
    const bool toHeads = ChoosesHeads() && from.first <= fixedRows_;
    return {std::clamp(row, toHeads ? 0 : fixedRows_, Rows() - 1),
            std::clamp(column, fixedColumns_, columns_ - 1)};
}

bool Grid::Move(const Key& key) {
    static constexpr std::string_view moves[] = {"Left", "Right", "Up",     "Down",
                                                 "Home", "End",   "PageUp", "PageDown"};
    if (key.alt || std::find(std::begin(moves), std::end(moves), key.name) == std::end(moves))
        return false;
    if (Rows() <= fixedRows_ || columns_ <= fixedColumns_) return false;
    const auto anchor = anchor_;
    const auto cursor = Step(key, key.shift ? cursor_ : anchor_);
    const auto from = key.shift ? anchor : cursor;
    Show({std::min(from.first, cursor.first), std::min(from.second, cursor.second),
          std::max(from.first, cursor.first), std::max(from.second, cursor.second)});
    anchor_ = from;
    cursor_ = cursor;
    return true;
}

void Grid::UserHead(int row, int column) {
    if (!IsUsable() || !ChoosesHeads() || !IsInside(row, column)) return;
    if (row >= fixedRows_ || column < fixedColumns_) return;
    SetFocus();
    UserSelect({row, column, row, column});
    if (OnHead) OnHead(row, column);
}

void Grid::UserSelect(Block block) {
    if (IsUsable() && IsInside(block.top, block.left) && IsInside(block.bottom, block.right)) {
        Select(block);
    }
}

} // namespace vexora::ui
