#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "qt/View.h"

namespace vexora::qt {

class CornerView;
class GridView;
class HeadView;

/// The cells of a grid behind its fixed rows and columns, which become the headers. It reads the
/// model on demand, so that a grid of many thousand rows opens at once.
class GridModel : public QAbstractTableModel {
public:
    GridModel(GridView& view, ui::Grid& grid);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// Follows a change of one cell, or of the whole table for a row of -1.
    void CellChanged(int row, int column);

private:
    void FollowRows();
    QVariant MarkData(const ui::Grid::Mark& mark, int role) const;

    GridView& view_;
    ui::Grid& grid_;
    int rows_ = 0;
    int columns_ = 0;
};

/// A table whose selection and edits go to the grid.
class GridView : public ViewOf<ui::Grid, QTableView> {
public:
    GridView(FormWindow& window, ui::Grid& grid);
    QWidget* ClickTarget() const override { return own_->viewport(); }
    bool Wants(const ui::Key& key) const override;
    /// The cell as the model counts it, fixed rows and columns included.
    QModelIndex IndexOf(int row, int column) const;
    QTableView& Table() const { return *own_; }
    /// Clicks a head that is chosen, as the mouse does.
    void ClickHead(int row, int column);
    /// The form has gone, and its grid with it; the widgets are still asked for sizes.
    bool HasLostGrid() const;
    /// Selects as a drag from corner to corner does; false for a block that holds fixed cells.
    bool SelectAsDragged(const ui::Grid::Block& block);
    void Edit(int row, int column, const std::string& text);

protected:
    void Draw() override;
    bool MouseEvent(QEvent& event) override;

private:
    void HandOverSelection();
    void FollowCells(int row, int column);
    void FitColumns();
    int WidthOfTexts(int column) const;
    void DrawSelection();
    void ShowMenu(const QPoint& place);
    void PlaceEditor();
    void UseEditorOfForm(ui::TextBox& editor);
    void UseHeads();
    void PlaceCorner();
    void DrawHeads();
    void PlaceHeadList();

    GridModel cells_;
    HeadView* heads_ = nullptr; // of a table whose heads are chosen
    CornerView* corner_ = nullptr;
    bool fitted_ = false;
    bool fresh_ = true; // columns have not got their first widths
    bool following_ = false;
    int shown_ = 0; // TimesShown of the grid
};

} // namespace vexora::qt
