#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/Control.h"

namespace vexora::ui {

/// A table of texts with fixed rows and columns at its head. Rows and columns count from 0, the
/// fixed ones included. OnCellChanged follows every change of one cell's text by a person.
class Grid : public Control {
public:
    struct Block {
        int top = 0, left = 0, bottom = 0, right = 0;
        bool operator==(const Block&) const = default;
    };

    Grid(Form& form, std::string name, int rows = 1, int columns = 1, int fixedRows = 1,
         int fixedColumns = 0);

    int Rows() const { return static_cast<int>(cells_.size()); }
    int Columns() const { return columns_; }
    int FixedRows() const { return fixedRows_; }
    int FixedColumns() const { return fixedColumns_; }
    /// New cells are empty; cells outside the new size are dropped.
    void Resize(int rows, int columns);

    /// Text of a cell, empty outside the table.
    const std::string& Cell(int row, int column) const;
    void Cell(int row, int column, std::string text);
    bool IsEditable() const { return editable_; }
    void Editable(bool value);

    const Block& Selection() const { return selection_; }
    void Select(Block block);
    /// The selected cells as text, columns parted by tabs and rows by line feeds.
    std::string SelectionText() const;

    std::string Display() const override { return Cell(selection_.top, selection_.left); }

    std::function<void(int row, int column)> OnCellChanged;
    /// Takes a pasted text; without it the text goes in as it stands.
    std::function<void(const std::string& text)> OnPaste;

    void UserCell(int row, int column, const std::string& text);
    void UserPaste(const std::string& text);
    void UserSelect(Block block);
    /// Ctrl+V pastes at the selection, Ctrl+C copies it.
    bool UserKey(Key& key) override;

    /// Which cell changed; rows and columns of -1 when it was the whole table.
    Signal<int, int> CellChanged;

private:
    bool IsInside(int row, int column) const;

    std::vector<std::vector<std::string>> cells_;
    int columns_;
    int fixedRows_;
    int fixedColumns_;
    bool editable_ = true;
    Block selection_;
};

} // namespace vexora::ui
