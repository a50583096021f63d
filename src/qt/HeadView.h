#pragma once

#include <functional>

#include <QHeaderView>

#include "ui/Grid.h"

namespace vexora::qt {

class GridView;

/// The head of a table whose heads are chosen: each fixed row is a line of cells of its own, the
/// one with the selection is framed, and texts that are only proposed look so. Their labels, the
/// fixed column, stand in the corner.
class HeadView : public QHeaderView {
public:
    HeadView(GridView& view, ui::Grid& grid, QWidget* parent);

    /// Where the cell stands, in the coordinates of the viewport.
    QRect CellRect(int row, int column) const;
    int LineHeight() const;
    /// Of the labels in the corner.
    int LabelWidth() const;
    void PaintLabels(QPainter& painter, const QRect& corner) const;

    std::function<void(int row, int column)> OnPressed;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    QSize sectionSizeFromContents(int section) const override;
    void mousePressEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    /// What the cell shows: its text, what is proposed for it, or the number of its column.
    struct Shown {
        QString text;
        bool isProposed = false, isNumber = false;
    };
    Shown TextOf(int row, int column) const;
    void PaintCell(QPainter& painter, const QRect& place, int row, int column) const;

    GridView& view_;
    ui::Grid& grid_;
};

/// The corner between the heads and the rows, with the labels of the heads.
class CornerView : public QWidget {
public:
    CornerView(HeadView& heads, QWidget* parent) : QWidget(parent), heads_(heads) {}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    HeadView& heads_;
};

} // namespace vexora::qt
