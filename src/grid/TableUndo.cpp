#include "grid/TableUndo.h"

#include <algorithm>

namespace vexora {

namespace {

// Changes of cells that are kept in all; some seven pastes of the largest table.
constexpr std::size_t mostChanges = 1'000'000;

bool IsEmptyRow(const ui::Grid& grid, int row) {
    for (int column = 0; column < grid.Columns(); ++column) {
        if (!grid.Cell(row, column).empty()) return false;
    }
    return true;
}

} // namespace

class TableUndo::Recorder : public TableEdit {
public:
    explicit Recorder(ui::Grid& grid) : grid_(grid), batch_(grid) { step.rowsBefore = grid.Rows(); }

    void Cell(int row, int column, const std::string& text) override {
        if (row < 0 || row >= grid_.Rows() || column < 0 || column >= grid_.Columns()) return;
        const std::string& before = grid_.Cell(row, column);
        if (before == text) return;
        step.changes.push_back({row, column, before, text});
        grid_.Cell(row, column, text);
    }

    void Rows(int rows) override {
        rows = std::max(rows, grid_.FixedRows());
        for (int row = rows; row < grid_.Rows(); ++row) {
            for (int column = 0; column < grid_.Columns(); ++column)
                Cell(row, column, {});
        }
        if (rows != grid_.Rows()) grid_.Resize(rows, grid_.Columns());
    }

    Step step;

private:
    ui::Grid& grid_;
    ui::Grid::Batch batch_;
};

bool TableUndo::Do(const std::function<void(TableEdit&)>& writer,
                   const std::function<void(bool)>& beside) {
    Step step;
    {
        Recorder recorder(grid_);
        writer(recorder);
        const std::size_t written = OnCell ? recorder.step.changes.size() : 0;
        for (std::size_t i = 0; i < written; ++i) {
            const auto [row, column] =
                std::pair(recorder.step.changes[i].row, recorder.step.changes[i].column);
            OnCell(recorder, row, column);
        }
        KeepSpareRow(recorder);
        recorder.step.rowsAfter = grid_.Rows();
        step = std::move(recorder.step);
    }
    if (step.changes.empty() && step.rowsBefore == step.rowsAfter) return false;
    step.beside = beside;
    if (beside) beside(true);
    steps_.resize(done_);
    steps_.push_back(std::move(step));
    done_ = steps_.size();
    ForgetOldest();
    Tell(steps_.back());
    return true;
}

void TableUndo::KeepSpareRow(TableEdit& edit) {
    int last = grid_.Rows() - 1;
    while (last >= grid_.FixedRows() && IsEmptyRow(grid_, last))
        --last;
    edit.Rows(std::max(last + 2, grid_.FixedRows() + 1));
}

void TableUndo::ForgetOldest() {
    std::size_t changes = 0;
    std::size_t first = steps_.size();
    while (first > 0 && (changes += steps_[first - 1].changes.size()) <= mostChanges)
        --first;
    first = std::min(first, steps_.size() - 1);
    steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(first));
    done_ = steps_.size();
}

void TableUndo::Undo() {
    if (!CanUndo()) return;
    const Step& step = steps_[--done_];
    if (step.beside) step.beside(false);
    {
        const ui::Grid::Batch batch(grid_);
        if (grid_.Rows() < step.rowsBefore) grid_.Resize(step.rowsBefore, grid_.Columns());
        for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
            grid_.Cell(change->row, change->column, change->before);
        if (grid_.Rows() != step.rowsBefore) grid_.Resize(step.rowsBefore, grid_.Columns());
    }
    Tell(step);
}

void TableUndo::Redo() {
    if (!CanRedo()) return;
    const Step& step = steps_[done_++];
    {
        const ui::Grid::Batch batch(grid_);
        if (grid_.Rows() < step.rowsAfter) grid_.Resize(step.rowsAfter, grid_.Columns());
        for (const Change& change : step.changes)
            grid_.Cell(change.row, change.column, change.after);
        if (grid_.Rows() != step.rowsAfter) grid_.Resize(step.rowsAfter, grid_.Columns());
    }
    if (step.beside) step.beside(true);
    Tell(step);
}

void TableUndo::Tell(const Step& step) {
    firstRow_ = lastRow_ = step.changes.empty() ? grid_.FixedRows() : step.changes.front().row;
    for (const Change& change : step.changes) {
        firstRow_ = std::min(firstRow_, change.row);
        lastRow_ = std::max(lastRow_, change.row);
    }
    const ui::Grid::Block& block = grid_.Selection();
    const int bottom = grid_.Rows() - 1;
    if (block.bottom > bottom || block.right >= grid_.Columns()) {
        const int row = block.bottom > bottom ? std::min(firstRow_, bottom) : block.top;
        const int column = std::min(block.left, grid_.Columns() - 1);
        grid_.Select({row, column, row, column});
    }
    if (OnChange) OnChange();
}

void TableUndo::Clear() {
    steps_.clear();
    done_ = 0;
}

void TableUndo::MoveColumns(const std::vector<int>& columns, int behind) {
    for (Step& step : steps_) {
        for (Change& change : step.changes) {
            const auto from = static_cast<std::size_t>(change.column);
            change.column = from < columns.size() ? columns[from] : change.column + behind;
        }
        std::erase_if(step.changes, [](const Change& change) { return change.column < 0; });
    }
}

} // namespace vexora
