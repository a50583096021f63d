#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "ui/Grid.h"

namespace vexora {

/// What writes into a table in one step that can be undone as a whole.
class TableEdit {
public:
    virtual ~TableEdit() = default;
    virtual void Cell(int row, int column, const std::string& text) = 0;
    /// Makes the table so many rows high, the fixed ones included. Texts in rows that go are kept
    /// for an undo.
    virtual void Rows(int rows) = 0;
};

/// The history of a grid: every change goes through Do and can be taken back and done again, to the
/// last typed zero. It keeps one empty row behind the last one that holds something. The form that
/// owns the grid owns it.
class TableUndo {
public:
    explicit TableUndo(ui::Grid& grid) : grid_(grid) {}

    ui::Grid& Table() const { return grid_; }
    /// Runs the writer; what it changed becomes one step. False when it changed nothing. What goes
    /// along with the step beside the cells is done by `beside`, with true when the step has been
    /// done or done again and with false before it is taken back.
    bool Do(const std::function<void(TableEdit&)>& writer,
            const std::function<void(bool done)>& beside = {});
    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }
    /// Takes back the last step, or does the next one again.
    void Undo();
    void Redo();
    /// Forgets all steps.
    void Clear();
    /// The columns of the grid have moved: place i is now columns[i], or gone when that is -1.
    /// Those behind them have moved by so many places.
    void MoveColumns(const std::vector<int>& columns, int behind = 0);
    /// Rows from the first changed to the last changed by the last step, done or taken back.
    int FirstRow() const { return firstRow_; }
    int LastRow() const { return lastRow_; }

    /// Follows every step, done, taken back or done again.
    std::function<void()> OnChange;
    /// Lets the owner add to a step what follows from the change of a cell by it.
    std::function<void(TableEdit&, int row, int column)> OnCell;

private:
    struct Change {
        int row = 0, column = 0;
        std::string before, after;
    };
    struct Step {
        int rowsBefore = 0, rowsAfter = 0;
        std::vector<Change> changes;
        std::function<void(bool)> beside;
    };
    class Recorder;

    void KeepSpareRow(TableEdit& edit);
    void ForgetOldest();
    void Tell(const Step& step);

    ui::Grid& grid_;
    std::vector<Step> steps_;
    std::size_t done_ = 0;
    int firstRow_ = 0;
    int lastRow_ = 0;
};

} // namespace vexora
