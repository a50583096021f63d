#pragma once

#include <functional>
#include <string>
#include <vector>

#include "grid/TableRules.h"
#include "ui/Buttons.h"

namespace vexora {

/// A block on its way into the table.
struct BlockToPut {
    PastedTable block;
    int column = 0;                            // where it begins
    std::function<void(bool done)> ahead = {}; // makes room for it, see TableUndo::Do
};
/// Whole blocks of a table: pasted, filled, emptied, put in and taken out as rows, read from files
/// and written into them; and the notices that stand below the table. Every change is a step of the
/// history. Belongs to the table editor.
class TableBlocks {
public:
    /// Takes the history's OnCell for itself, by which the form adds to each step what follows from
    /// it.
    TableBlocks(const TableRules& rules, TableUndo& history, ui::Label& notice);
    TableBlocks(const TableBlocks&) = delete;
    TableBlocks& operator=(const TableBlocks&) = delete;

    void Copy() const;
    void Cut();
    /// Puts a text in from the selected cell on; a single value fills a larger selection. A block
    /// that is too wide is refused with a box, nothing is done with an empty text.
    void Paste(const std::string& text);
    /// Pastes from the clipboard; PasteShown lets a person look at the block first.
    void Paste();
    void PasteShown();
    void Empty();
    /// As many empty rows as are selected, in front of them.
    void InsertRows();
    void RemoveRows();
    /// Nothing is asked: an undo brings all back.
    void Clear();
    /// Through the history; what has changed beside the selected rows comes into sight.
    void Undo();
    void Redo();

    /// The table of a file takes the place of what stood here. Asks for the file.
    /// Bytes that are no UTF-8 are read as Windows-1252; what cannot be read is told in a box.
    void OpenFile();
    /// Asks before it replaces a file. Only texts of cells go into it, no heads.
    void SaveFile() const;
    /// The rows down to the last one that holds something, cells parted by tabs.
    std::string Text() const;

    /// Tells this below the table in place of what stood there, with what the form remarks.
    void Tell(std::vector<PasteNotice> told);
    /// The same notices for a table that has changed.
    void TellAgain();

    /// Runs what types or pastes into these columns, so that the form can tell it from its own
    /// writing when it follows a change.
    void Enter(EnteredColumns columns, const std::function<void()>& enters);

    /// Lets the form ask about a block that fits, and make room for what it
    /// holds; false when it is not to go in.
    std::function<bool(BlockToPut&)> OnPut;

private:
    /// Column counts from 0 in the grid.
    PastedTable BesideStatements(PastedTable block, int column) const;
    bool FillSelection(const PastedTable& block);
    bool IsRefused(const PastedTable& block, int row, int column, bool isEmpty) const;
    void PutIn(const PastedTable& block, int row, int column);
    void MoveNotices(int row, int count);
    void Step(bool can, void (TableUndo::*step)());

    const TableRules& rules_;
    TableUndo& history_;
    ui::Grid& grid_;
    ui::Label& notice_;
    std::vector<PasteNotice> told_; // what the last paste had to guess
    EnteredColumns entered_;
};

} // namespace vexora
