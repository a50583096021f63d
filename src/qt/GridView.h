#pragma once

#include <optional>
#include <vector>

#include <QTableView>

#include "grid/ColumnShape.h"
#include "qt/GridModel.h"
#include "qt/View.h"

namespace vexora::qt {

class CornerView;
class HeadView;

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
    /// What is stated for the whole set and stands grey in this empty cell; empty for nothing, and
    /// in a row that holds nothing.
    QString StatedIn(const QModelIndex& index) const;
    /// Free behind a number, so that the points of its column stand in line [px].
    int RoomBehind(int column, const NumberShape& number) const;
    /// Of all columns with what stands beside them [px].
    int WidthOfAll() const;

protected:
    void Draw() override;
    bool MouseEvent(QEvent& event) override;

private:
    void HandOverSelection();
    void FollowCells(int row, int column);
    void FitColumns();
    int WidthOfTexts(int column) const;
    const ColumnShape& Shape(int column) const;
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
    int shown_ = 0;                                          // TimesShown of the grid
    mutable std::vector<std::optional<ColumnShape>> shapes_; // by column of the grid
    ui::Grid::ColumnTexts notes_;                            // as drawn
};

} // namespace vexora::qt
