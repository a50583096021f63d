#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "ui/Grid.h"

namespace vexora {

/// What writes into a table in one step that can be undone as a whole.
/// Handed to a writer by TableUndo::Do and valid for that call only. Rows and columns count from 0
/// in the grid; a place outside it changes nothing.
class TableEdit {
public:
    virtual ~TableEdit() = default;
    /// The same text as before is no change.
    virtual void Cell(int row, int column, const std::string& text) = 0;
    /// Makes the table so many rows high, the fixed ones included. Texts in rows that go are kept
    /// for an undo.
    virtual void Rows(int rows) = 0;
    /// Puts empty rows in front of this one.
    virtual void InsertRows(int row, int count) = 0;
    /// Takes rows away with their texts; those below move up.
    virtual void RemoveRows(int row, int count) = 0;
    /// Makes the table so many columns wide. Texts in columns that go are kept for an undo.
    virtual void Columns(int columns) = 0;
};

/// The history of a grid: every change goes through Do and can be taken back and done again, to the
/// last typed zero. It keeps one empty row behind the last one that holds something. The form that
/// owns the grid owns it.
class TableUndo {
public:
    explicit TableUndo(ui::Grid& grid) : grid_(grid) { Clear(); }

    ui::Grid& Table() const { return grid_; }
    /// Runs the writer; what it changed becomes one step. False when it changed
    /// nothing. What goes along with the step beside the cells is done by
    /// `beside`, with true when the step has been done or done again and with
    /// false before it is taken back; that is a step without changes of cells as
    /// well. It may lay out other columns, for each step finds those that it
    /// knew. `ahead` is the same for what must be there before the cells are
    /// written: columns for them. The writer must not call Do again. Steps that
    /// were taken back are forgotten.
    bool Do(const std::function<void(TableEdit&)>& writer,
            const std::function<void(bool done)>& beside = {},
            const std::function<void(bool done)>& ahead = {});
    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }
    /// Takes back the last step, or does the next one again.
    void Undo();
    void Redo();
    /// Lets the table have so many rows at least, the fixed ones included.
    void KeepRows(int least) { leastRows_ = least; }
    /// Forgets all steps.
    /// The table stays as it is.
    void Clear();
    /// Where the row stood when the history began, wherever it has moved since; 0 for a new one.
    /// By it what a stored row has beside its cells finds its way back to it.
    int FirstPlaceOf(int row) const;
    /// The last row that holds something; the one in front of the first when there is none.
    int LastFilledRow() const;
    /// Rows from the first changed to the last changed by the last step, done or taken back.
    int FirstRow() const { return firstRow_; }
    int LastRow() const { return lastRow_; }
    /// Whether that step changed cells of this column, or more than cells.
    bool Concerns(int column) const;

    /// Follows every step, done, taken back or done again.
    std::function<void()> OnChange;
    /// Lets the owner add to a step what follows from the change of a cell by it.
    std::function<void(TableEdit&, int row, int column, const std::string& before)> OnCell;

private:
    /// Of one cell, or of rows or columns when the column says so; the row is then a place in
    /// Step::rows or Step::widths.
    struct Change {
        int row = 0, column = 0;
        std::string before, after;
        bool IsOfCell() const { return column >= 0; }
    };
    struct RowChange {
        int row = 0;
        bool inserted = true;
        std::vector<int> places; // FirstPlaceOf, one for each row
    };
    /// How many columns the table had and has.
    struct WidthChange {
        int before = 0, after = 0;
    };
    struct Step {
        std::vector<Change> changes;
        std::vector<RowChange> rows;
        std::vector<WidthChange> widths;
        std::function<void(bool)> beside, ahead;
        bool IsEmpty() const;
    };
    class Recorder;

    void KeepSpareRow(TableEdit& edit);
    void Apply(const Step& step, const Change& change, bool done);
    void MoveRows(const RowChange& change, bool inserts);
    void ForgetOldest();
    void Tell(const Step& step);

    ui::Grid& grid_;
    std::vector<Step> steps_;
    std::vector<int> places_; // FirstPlaceOf
    std::size_t done_ = 0;
    int firstRow_ = 0;
    int lastRow_ = 0;
    int leastRows_ = 0;
    std::vector<bool> columns_; // Concerns
};

} // namespace vexora
