#pragma once

#include <QStyledItemDelegate>

namespace vexora::qt {

class GridView;

/// Draws the cells of a table: numbers to the right, their points in line, and grey in an empty
/// cell what the set states for the whole column.
class CellDelegate : public QStyledItemDelegate {
public:
    CellDelegate(const GridView& view, QObject* parent)
        : QStyledItemDelegate(parent), view_(view) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const GridView& view_;
};

} // namespace vexora::qt
