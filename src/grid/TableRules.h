#pragma once

#include <string>
#include <vector>

#include "grid/Finding.h"
#include "grid/TablePaste.h"
#include "grid/TableUndo.h"

namespace vexora {

/// The columns that a person types or pastes into at the moment; none while rows move or the form
/// itself writes.
struct EnteredColumns {
    int first = 0, last = -1;
    bool Any() const { return first <= last; }
    bool Has(int column) const { return column >= first && column <= last; }
};

/// What the editor of a table asks of the form that owns it: all that depends on what the columns
/// stand for. A form derives from it; what it leaves out goes by the plain answers here.
/// No rule asks or tells a person anything but IsWanted; they are called while somebody types.
class TableRules {
public:
    virtual ~TableRules() = default;

    /// The columns of the values, ascending. Bare values that are pasted from the first column on
    /// go past the columns that stand between these.
    virtual std::vector<int> ValueColumns() const = 0;
    /// Tab goes to columns that are typed into and passes over the others.
    virtual bool IsTypedInto(int) const { return true; }
    /// Where any character begins to type into a cell; elsewhere only one of a number does.
    virtual bool TakesText(int) const { return false; }
    /// How the list of findings names a column, also one beside those of the form.
    virtual std::string ColumnName(int column) const = 0;
    /// What is to be said of the cells of one row; none for an empty one. It is asked again when
    /// the row has changed.
    /// The row counts as in the grid, heads included.
    virtual std::vector<Finding> FindingsOf(int row) const = 0;
    /// What only the whole table shows of its rows; it is asked again when any of these columns has
    /// changed.
    virtual std::vector<Finding> Hints() const { return {}; }
    virtual std::vector<int> HintColumns() const { return ValueColumns(); }
    /// Adds to a step what follows from the change of a cell, which held another text before.
    /// Row, column, the text before, and the columns that are typed or pasted into. What it adds
    /// does not make it called again.
    virtual void Follow(TableEdit&, int, int, const std::string&, const EnteredColumns&) const {}
    /// Whether an empty table grows for a block with so many columns, which is to be turned there;
    /// a block that is too wide is refused otherwise.
    virtual bool MayGrowFor(int) const { return false; }
    /// The table gets more columns wherever a block needs them.
    virtual bool GrowsEverywhere() const { return false; }
    /// How the lines of a pasted block are parted into cells.
    virtual CellParting Parting() const { return CellParting::AtBlanks; }
    /// Stands below what the last paste had to guess; rows counts those down to the last filled
    /// one.
    virtual std::string Remark(int) const { return {}; }
    /// Shows a block to a person before it is pasted; false when it is not to go in.
    virtual bool IsWanted(const PastedTable&) const { return true; }
};

} // namespace vexora
