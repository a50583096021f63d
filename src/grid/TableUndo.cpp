#include "grid/TableUndo.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vexora {

namespace {

// Changes of cells that are kept in all; some seven pastes of the largest table.
constexpr std::size_t MostChanges = 1'000'000;

// The columns of changes that are none of a cell.
constexpr int WholeRows = -2;
constexpr int WholeColumns = -3;

bool IsEmptyRow(const ui::Grid& grid, int row) {
    for (int column = 0; column < grid.Columns(); ++column) {
        if (!grid.Cell(row, column).empty()) return false;
    }
    return true;
}

} // namespace

/// Writes at once and notes how to take it back. The batch tells the views when all is done.
class TableUndo::Recorder : public TableEdit {
public:
    explicit Recorder(TableUndo& table) : table_(table), grid_(table.grid_), batch_(grid_) {}

    void Cell(int row, int column, const std::string& text) override {
        if (row < 0 || row >= grid_.Rows() || column < 0 || column >= grid_.Columns()) return;
        const std::string& before = grid_.Cell(row, column);
        if (before == text) return;
        step.changes.push_back({row, column, before, text});
        grid_.Cell(row, column, text);
    }

    void Rows(int rows) override {
        rows = std::max(rows, grid_.FixedRows());
        InsertRows(grid_.Rows(), rows - grid_.Rows());
        RemoveRows(rows, grid_.Rows() - rows);
    }

    void InsertRows(int row, int count) override {
        if (count <= 0 || row < grid_.FixedRows() || row > grid_.Rows()) return;
        Note({row, true, std::vector<int>(static_cast<std::size_t>(count), 0)});
    }

    void RemoveRows(int row, int count) override {
        count = std::min(count, grid_.Rows() - row);
        if (count <= 0 || row < grid_.FixedRows()) return;
        // The texts are changes of their own, so that an undo puts them back into the rows it
        // brings.
        for (int at = row; at < row + count; ++at) {
            for (int column = 0; column < grid_.Columns(); ++column)
                Cell(at, column, {});
        }
        RowChange change{row, false, {}};
        for (int at = row; at < row + count; ++at)
            change.places.push_back(table_.FirstPlaceOf(at));
        Note(std::move(change));
        settled = step.changes.size();
    }

    void Columns(int columns) override {
        columns = std::max(columns, grid_.FixedColumns() + 1);
        if (columns == grid_.Columns()) return;
        for (int row = 0; row < grid_.Rows(); ++row) { // the heads as well
            for (int column = columns; column < grid_.Columns(); ++column)
                Cell(row, column, {});
        }
        step.changes.push_back({static_cast<int>(step.widths.size()), WholeColumns, {}, {}});
        step.widths.push_back({grid_.Columns(), columns});
        grid_.Resize(grid_.Rows(), columns);
    }

    Step step;
    std::size_t settled = 0; // changes up to here are of cells that have gone or moved

private:
    void Note(RowChange change) {
        step.changes.push_back({static_cast<int>(step.rows.size()), WholeRows, {}, {}});
        table_.MoveRows(change, change.inserted);
        step.rows.push_back(std::move(change));
    }

    TableUndo& table_;
    ui::Grid& grid_;
    ui::Grid::Batch batch_;
};

/// Rows that only came and went at the end of the table are no change, nor are such columns.
bool TableUndo::Step::IsEmpty() const {
    int more = 0;
    for (const RowChange& change : rows) {
        const int count = static_cast<int>(change.places.size());
        more += change.inserted ? count : -count;
    }
    const bool sameWidth = widths.empty() || widths.front().before == widths.back().after;
    return changes.size() == rows.size() + widths.size() && more == 0 && sameWidth;
}

bool TableUndo::Do(const std::function<void(TableEdit&)>& writer,
                   const std::function<void(bool)>& beside,
                   const std::function<void(bool)>& ahead) {
    Step step;
    if (ahead) ahead(true);
    {
        Recorder recorder(*this);
        writer(recorder);
        // Only what the writer wrote: what follows from it has no followers of its own.
        const std::size_t written = OnCell ? recorder.step.changes.size() : 0;
        for (std::size_t i = recorder.settled; i < written; ++i) {
            // A copy: what follows may let the list of changes grow and move.
            const Change change = recorder.step.changes[i];
            if (change.IsOfCell() && change.row >= grid_.FixedRows())
                OnCell(recorder, change.row, change.column, change.before);
        }
        KeepSpareRow(recorder);
        step = std::move(recorder.step);
    }
    if (step.IsEmpty() && !beside && !ahead) return false;
    step.beside = beside;
    step.ahead = ahead;
    if (beside) beside(true);
    // A new step ends the way forward.
    steps_.resize(done_);
    steps_.push_back(std::move(step));
    done_ = steps_.size();
    ForgetOldest();
    Tell(steps_.back());
    return true;
}

void TableUndo::MoveRows(const RowChange& change, bool inserts) {
    const int count = static_cast<int>(change.places.size());
    places_.resize(static_cast<std::size_t>(grid_.Rows()));
    const auto at = places_.begin() + change.row;
    if (inserts) {
        places_.insert(at, change.places.begin(), change.places.end());
        grid_.InsertRows(change.row, count);
    } else {
        places_.erase(at, at + count);
        grid_.RemoveRows(change.row, count);
    }
}

int TableUndo::LastFilledRow() const {
    int last = grid_.Rows() - 1;
    while (last >= grid_.FixedRows() && IsEmptyRow(grid_, last))
        --last;
    return last;
}

void TableUndo::KeepSpareRow(TableEdit& edit) {
    edit.Rows(std::max({LastFilledRow() + 2, grid_.FixedRows() + 1, leastRows_}));
}

void TableUndo::ForgetOldest() {
    std::size_t changes = 0;
    std::size_t first = steps_.size();
    // From the newest step back; the last one stays, however large it is.
    while (first > 0 && (changes += steps_[first - 1].changes.size()) <= MostChanges)
        --first;
    first = std::min(first, steps_.size() - 1);
    steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(first));
    done_ = steps_.size();
}

void TableUndo::Apply(const Step& step, const Change& change, bool done) {
    const auto place = static_cast<std::size_t>(change.row);
    if (change.IsOfCell()) {
        grid_.Cell(change.row, change.column, done ? change.after : change.before);
    } else if (change.column == WholeRows) {
        MoveRows(step.rows[place], step.rows[place].inserted == done);
    } else {
        const WidthChange& width = step.widths[place];
        grid_.Resize(grid_.Rows(), done ? width.after : width.before);
    }
}

void TableUndo::Undo() {
    if (!CanUndo()) return;
    const Step& step = steps_[--done_];
    // In front of the cells on the way back and behind them on the way forth, as it was done first.
    if (step.beside) step.beside(false);
    {
        const ui::Grid::Batch batch(grid_);
        // Backwards, for a cell may have changed more than once in a step.
        for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
            Apply(step, *change, false);
    }
    if (step.ahead) step.ahead(false);
    Tell(step);
}

void TableUndo::Redo() {
    if (!CanRedo()) return;
    const Step& step = steps_[done_++];
    if (step.ahead) step.ahead(true);
    {
        const ui::Grid::Batch batch(grid_);
        for (const Change& change : step.changes)
            Apply(step, change, true);
    }
    if (step.beside) step.beside(true);
    Tell(step);
}

/// Rows that come or go move all those below.
void TableUndo::Tell(const Step& step) {
    firstRow_ = grid_.Rows();
    lastRow_ = grid_.FixedRows();
    const bool more = !step.rows.empty() || !step.widths.empty() || step.beside || step.ahead;
    columns_.assign(static_cast<std::size_t>(grid_.Columns()), more);
    for (const Change& change : step.changes) {
        if (!change.IsOfCell() || change.row < grid_.FixedRows()) continue;
        // Moved rows shift every column.
        if (!more) columns_[static_cast<std::size_t>(change.column)] = true;
        firstRow_ = std::min(firstRow_, change.row);
        lastRow_ = std::max(lastRow_, change.row);
    }
    for (const RowChange& change : step.rows) {
        firstRow_ = std::min(firstRow_, change.row);
        lastRow_ = std::max(lastRow_, grid_.Rows() - 1);
    }
    // A selection must not stay on cells that have gone.
    const ui::Grid::Block& block = grid_.Selection();
    const int bottom = grid_.Rows() - 1;
    if (block.bottom > bottom || block.right >= grid_.Columns()) {
        const int row = block.bottom > bottom ? std::min(firstRow_, bottom) : block.top;
        const int column = std::min(block.left, grid_.Columns() - 1);
        grid_.Select({row, column, row, column});
    }
    if (OnChange) OnChange();
}

bool TableUndo::Concerns(int column) const {
    const auto at = static_cast<std::size_t>(column);
    return at >= columns_.size() || columns_[at];
}

void TableUndo::Clear() {
    steps_.clear();
    done_ = 0;
    places_.resize(static_cast<std::size_t>(grid_.Rows()));
    std::iota(places_.begin(), places_.end(), 0);
}

int TableUndo::FirstPlaceOf(int row) const {
    const auto at = static_cast<std::size_t>(row);
    return at < places_.size() ? places_[at] : 0;
}

} // namespace vexora
