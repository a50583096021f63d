#pragma once

#include <QAbstractTableModel>

#include "ui/Grid.h"

namespace vexora::qt {

class GridView;

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

} // namespace vexora::qt
