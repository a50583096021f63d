#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "ui/Control.h"

namespace vexora::ui {

class ComboBox;
class TextBox;

/// A table of texts with fixed rows and columns at its head. Rows and columns count from 0, the
/// fixed ones included.
class Grid : public Control {
public:
    struct Block {
        int top = 0, left = 0, bottom = 0, right = 0;
        bool operator==(const Block&) const = default;
    };

    /// A remark on a cell: what is wrong, or only doubtful, with its text.
    struct Mark {
        bool isFault = true;
        std::string tip;
        bool operator==(const Mark&) const = default;
    };
    using Marks = std::map<std::pair<int, int>, Mark>; // by row and column
    using Proposals = std::map<std::pair<int, int>, std::string>;

    /// While one lives, changes of cells are told once, at its end: as that of the cell when there
    /// was only one, else as a change of the whole table.
    class Batch {
    public:
        explicit Batch(Grid& grid) : grid_(grid) { ++grid_.batches_; }
        ~Batch() { grid_.EndBatch(); }
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        Grid& grid_;
    };

    Grid(Form& form, std::string name, int rows = 1, int columns = 1, int fixedRows = 1,
         int fixedColumns = 0);

    int Rows() const { return static_cast<int>(cells_.size()); }
    int Columns() const { return columns_; }
    int FixedRows() const { return fixedRows_; }
    int FixedColumns() const { return fixedColumns_; }
    /// New cells are empty; cells outside the new size are dropped.
    void Resize(int rows, int columns);
    /// Puts empty rows in front of a row, which may be the one behind the last.
    void InsertRows(int row, int count);
    void RemoveRows(int row, int count);

    /// Text of a cell, empty outside the table.
    const std::string& Cell(int row, int column) const;
    void Cell(int row, int column, std::string text);
    bool IsEditable() const { return editable_; }
    void Editable(bool value) { Alter(editable_, value); }

    /// A field that the form shows while a cell is being edited; it is laid over the selected cell,
    /// and double clicks and typed keys are the form's to handle. Null: the view edits by itself.
    TextBox* Editor = nullptr;
    /// Lists by fixed row from which the texts of its cells are chosen: such a head is reached by
    /// mouse and keys, and the list lies over the selected one while it is visible. None: heads are
    /// only read.
    std::vector<ComboBox*> HeadLists;
    bool ChoosesHeads() const { return !HeadLists.empty(); }
    /// The selected cell is one of a head that is chosen.
    bool IsInHeads() const { return ChoosesHeads() && selection_.top < fixedRows_; }
    /// Texts that cells of heads would get, shown in the empty ones; they change nothing.
    const Proposals& Proposed() const { return proposals_; }
    void Propose(Proposals proposals) { Alter(proposals_, std::move(proposals)); }
    /// What stands for the empty cells of a column, by column: shown grey in those of filled rows.
    /// It is no content: scripts and records never see it.
    using ColumnTexts = std::map<int, std::string>;
    const ColumnTexts& Stated() const { return stated_; }
    void Stated(ColumnTexts texts) { Alter(stated_, std::move(texts)); }
    /// A second line of the heads, by column: quantity and unit. It is only drawn.
    const ColumnTexts& HeadNotes() const { return headNotes_; }
    void HeadNotes(ColumnTexts texts) { Alter(headNotes_, std::move(texts)); }
    /// Rows are numbered at their head, the first one behind the fixed rows by 1.
    bool ShowsRowNumbers = false;

    const Marks& CellMarks() const { return marks_; }
    /// Marks of cells in these rows take the place of those that they had.
    void MarkRows(int firstRow, int lastRow, Marks marks);
    /// The mark of a cell, or null.
    const Mark* MarkOf(int row, int column) const;

    const Block& Selection() const { return selection_; }
    void Select(Block block);
    /// Selects it and brings it into sight, even where it is selected already.
    void Show(Block block);
    int TimesShown() const { return timesShown_; }
    /// Row and column of the corner of the selection that keys move; the view keeps it in sight.
    std::pair<int, int> Cursor() const { return cursor_; }
    /// How far PageUp and PageDown go; the view knows how many rows it shows.
    int PageRows = 20;
    /// The selected cells as text, columns parted by tabs and rows by line feeds.
    std::string SelectionText() const;

    std::string Display() const override { return Cell(selection_.top, selection_.left); }

    /// Takes the text that a person enters in a cell; without it the text goes in as it stands.
    std::function<void(int row, int column, const std::string& text)> OnEdit;
    /// Takes a pasted text; without it nothing is pasted.
    std::function<void(const std::string& text)> OnPaste;
    /// A head that is chosen was clicked; it is selected then.
    std::function<void(int row, int column)> OnHead;

    void UserCell(int row, int column, const std::string& typed);
    void UserPaste(const std::string& text);
    void UserSelect(Block block);
    /// A click on a head; nothing happens where heads are only read.
    void UserHead(int row, int column);
    /// Ctrl+V pastes at the selection, Ctrl+C copies it; arrows, Home, End, PageUp and PageDown
    /// move it, with Ctrl to the edge of the table, with Shift they extend it.
    bool UserKey(Key& key) override;

    /// Which cell changed; rows and columns of -1 when it was the whole table.
    Signal<int, int> CellChanged;

private:
    bool IsInside(int row, int column) const;
    void EndBatch();
    void TellChange(int row, int column);
    bool Move(const Key& key);
    std::pair<int, int> Step(const Key& key, std::pair<int, int> from) const;

    std::vector<std::vector<std::string>> cells_;
    int columns_;
    int fixedRows_;
    int fixedColumns_;
    bool editable_ = true;
    Block selection_;
    std::pair<int, int> anchor_, cursor_; // corners of the selection, by row and column
    Marks marks_;
    Proposals proposals_;
    ColumnTexts stated_;
    ColumnTexts headNotes_;
    int timesShown_ = 0;
    int batches_ = 0;
    int changesInBatch_ = 0;
    std::pair<int, int> changedInBatch_; // the first of them
};

} // namespace vexora::ui
