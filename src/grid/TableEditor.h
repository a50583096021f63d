#pragma once

#include <functional>
#include <string>

#include "grid/FindingList.h"
#include "grid/GridKey.h"
#include "grid/TableBlocks.h"
#include "grid/TableMenu.h"
#include "grid/TableRules.h"
#include "grid/TableUndo.h"
#include "ui/Form.h"

namespace vexora {

/// The controls of a form that show a table: the grid, the field laid over a cell that is being
/// typed into, the notices and the findings below.
/// References only: the form owns them, and they must outlive the editor.
struct TableControls {
    ui::Grid& grid;
    ui::TextBox& cell;
    ui::Label& notice;
    ui::ListBox& findings;
};

/// The work in the table of a form: typing into cells, keys, blocks, history and findings, all
/// wired to the controls, which stay the form's. What the columns mean, the form says by its rules.
/// A form declares the editor behind its controls and so owns it; one of several tables has an
/// editor for each. These share the menu, whose entries work on the table that was entered last.
class TableEditor {
public:
    TableEditor(const TableRules& rules, const TableControls& controls, TableMenu& menu);
    ~TableEditor();
    TableEditor(const TableEditor&) = delete;
    TableEditor& operator=(const TableEditor&) = delete;

    /// Who changes the table by code does it through the history, so that it can be undone.
    TableUndo& History() { return history_; }
    const TableUndo& History() const { return history_; }
    TableBlocks& Blocks() { return blocks_; }
    const TableBlocks& Blocks() const { return blocks_; }
    FindingList& Findings() { return findings_; }
    const FindingList& Findings() const { return findings_; }

    /// Follows every step of the history, behind the findings.
    std::function<void()> OnChanged;

    /// What is being typed into a cell becomes the text of the cell.
    /// To be called before the cells are read. Nothing is typed: nothing happens.
    void EndTyping();
    /// A click on the entry runs the action behind what is being typed, which belongs to the table
    /// before anything else is done with it.
    void Wire(ui::MenuItem& item, std::function<void()> action);
    /// Selects the cell, or the one nearest to it.
    void MoveTo(int row, int column) { SelectCell(grid_, row, column); }

private:
    void WireTable();
    void WireMenu();
    /// Lays the field over the selected cell; not over a head, nor in a table that is closed.
    void BeginTyping(const std::string& text);
    void GridKeys(ui::Key& key);
    bool UseOtherKey(const std::string& name);
    void CellKeys(ui::Key& key);
    void LeaveCell(const ui::Key& key);
    void PasteInCell();
    bool MoveAlong(int row, int column, bool backwards);

    const TableRules& rules_;
    ui::Grid& grid_;
    ui::TextBox& cell_;
    TableMenu& menu_;
    TableUndo history_;
    TableBlocks blocks_;
    FindingList findings_;
    int row_ = 0, column_ = 0; // of the cell that is being typed into
    bool isInHand_ = false;    // of the tables of the form, the one that was entered last
    int follows_ = 0;          // ticket for the changes of focus
};

} // namespace vexora
